// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieInput.h"

#include "platform/base/PathNames.h"
#include "platform/movie/mpv/Libraries.h"

namespace platform {

bool isNetworkURL(const QUrl& url) {
    return !url.isLocalFile() && !url.scheme().isEmpty();
}

QByteArray addressOf(const QUrl& url) {
    return url.isLocalFile() ? "file:" + nativePath(url) : url.toEncoded();
}

MovieInput::MovieInput()
    : _context(AvLibrary::get()->avformat_alloc_context()) {}

MovieInput::~MovieInput() {
    const AvLibrary& av = *AvLibrary::get();
    av.avformat_close_input(&_context);
    av.avio_closep(&_file);
}

void MovieInput::endWith(const std::atomic<bool>& cancelled) {
    _cancelled = &cancelled;
    _context->interrupt_callback = {&MovieInput::isToEnd, this};
}

int MovieInput::isToEnd(void* self) {
    constexpr std::chrono::seconds timeout(1);
    auto& input = *static_cast<MovieInput*>(self);
    if (!input._cancelled->load())
        return 0;
    const auto now = std::chrono::steady_clock::now();
    if (!input._cancelledAt)
        input._cancelledAt = now;
    return now - *input._cancelledAt >= timeout ? 1 : 0;
}

int MovieInput::open(const QUrl& url, AVDictionary*& options) {
    const AvLibrary& av = *AvLibrary::get();
    const QByteArray address = addressOf(url);
    if (isNetworkURL(url)) {
        const QByteArray protocols = partProtocols + (',' + url.scheme().toUtf8());
        av.av_dict_set(&options, "protocol_whitelist", protocols.constData(), 0);
    } else {
        // Opened beforehand: for the context itself no protocol is left.
        if (const int error =
                av.avio_open2(&_file, address.constData(), AVIO_FLAG_READ, &_context->interrupt_callback, nullptr);
            error < 0)
            return error;
        _context->pb = _file;
        av.av_dict_set(&options, "protocol_whitelist", localProtocols, 0);
    }
    return av.avformat_open_input(&_context, address.constData(), nullptr, &options);
}

} // namespace platform

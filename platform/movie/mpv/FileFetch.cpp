// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FileFetch.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/movie/mpv/NetworkInput.h"

#include <algorithm>
#include <chrono>

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto fetchTimeout = std::chrono::seconds(20);
constexpr const char* silenceTimeout = "10000000"; // microseconds

struct Deadline {
    Clock::time_point end;
    const std::atomic<bool>& cancelled;

    static int interrupt(void* opaque) {
        const auto* self = static_cast<const Deadline*>(opaque);
        return Clock::now() >= self->end || self->cancelled.load(std::memory_order_relaxed) ? 1 : 0;
    }
};

/// Where the server sent on to.
QUrl locationOf(AVIOContext* input, const QUrl& asked) {
    const AvLibrary& av = *AvLibrary::get();
    std::uint8_t* location = nullptr;
    if (av.av_opt_get(input, "location", AV_OPT_SEARCH_CHILDREN, &location) < 0 || !location)
        return asked;
    const QUrl url = asked.resolved(QUrl::fromEncoded(reinterpret_cast<const char*>(location)));
    av.av_free(location);
    return url.isValid() && isNetworkURL(url) ? url : asked;
}

} // namespace

FetchedFile fetchFile(const QUrl& url, qsizetype limit, const std::atomic<bool>& cancelled) {
    const AvLibrary* av = AvLibrary::get();
    if (!av)
        return {{}, url, movieError::noMediaHandler};
    if (url.scheme() != QStringLiteral("http") && url.scheme() != QStringLiteral("https"))
        return {{}, url, movieError::unknownScheme};
    Deadline deadline{Clock::now() + fetchTimeout, cancelled};
    const AVIOInterruptCB interrupt{&Deadline::interrupt, &deadline};
    AVDictionary* options = nullptr;
    av->av_dict_set(&options, "protocol_whitelist", partProtocols, 0);
    av->av_dict_set(&options, "rw_timeout", silenceTimeout, 0);
    AVIOContext* input = nullptr;
    int code = av->avio_open2(&input, url.toEncoded().constData(), AVIO_FLAG_READ, &interrupt, &options);
    av->av_dict_free(&options);
    if (code < 0)
        return {{}, url, networkError(url, code, false)};
    FetchedFile file{{}, locationOf(input, url)};
    constexpr int pieceSize = 64 * 1024;
    QByteArray piece(pieceSize, Qt::Uninitialized);
    while (file.bytes.size() < limit) {
        const auto wanted = static_cast<int>(std::min<qsizetype>(pieceSize, limit - file.bytes.size()));
        code = av->avio_read(input, reinterpret_cast<unsigned char*>(piece.data()), wanted);
        if (code <= 0)
            break;
        file.bytes.append(piece.constData(), code);
    }
    av->avio_closep(&input);
    if (code < 0 && code != AVERROR_EOF)
        file.error = networkError(url, code, true);
    return file;
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrameDecoder.h"

#include "platform/base/Background.h"

namespace platform {

PreparedFrame FirstFrameDecoder::decode(const QUrl& url, std::int32_t time, double seconds) {
    cancel();
    _cancelled = std::make_shared<std::atomic<bool>>(false);
    PreparedFrame prepared{url, time, std::make_shared<Delivery<std::shared_ptr<const FirstFrame>>>()};
    background::run([prepared, seconds, cancelled = _cancelled] {
        prepared.frame->deliver(FirstFrame::decode(prepared.url, *cancelled, FirstFrame::PictureOf::movie, seconds));
    });
    return prepared;
}

void FirstFrameDecoder::cancel() {
    if (_cancelled)
        *_cancelled = true;
}

} // namespace platform

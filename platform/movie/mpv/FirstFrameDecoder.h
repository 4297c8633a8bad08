// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Delivery.h"
#include "platform/movie/mpv/FirstFrame.h"

#include <QUrl>

#include <atomic>
#include <cstdint>
#include <memory>

namespace platform {

/// A first frame that is being decoded ahead, of the movie at the URL that begins at a time; null where none comes.
struct PreparedFrame {
    QUrl url;
    std::int32_t time = 0; // in the movie's units
    std::shared_ptr<Delivery<std::shared_ptr<const FirstFrame>>> frame;
};

/// Decodes first frames in the background, for the movie that is wanted last. Main thread.
class FirstFrameDecoder {
public:
    FirstFrameDecoder() = default;
    FirstFrameDecoder(const FirstFrameDecoder&) = delete;
    FirstFrameDecoder& operator=(const FirstFrameDecoder&) = delete;
    ~FirstFrameDecoder() { cancel(); }

    /// That of a time, in the movie's units and in seconds. The one before is given up.
    PreparedFrame decode(const QUrl& url, std::int32_t time, double seconds);
    /// Gives up what is under way, without waiting for it.
    void cancel();

private:
    std::shared_ptr<std::atomic<bool>> _cancelled; // shared with the thread
};

} // namespace platform

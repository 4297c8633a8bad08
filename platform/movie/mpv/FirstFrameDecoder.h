// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Delivery.h"
#include "platform/movie/mpv/FirstFrame.h"

#include <QUrl>

#include <memory>
#include <vector>

namespace platform {

/// A first frame that is being decoded ahead, of the movie at the URL; null where none comes.
struct PreparedFrame {
    QUrl url;
    std::shared_ptr<Delivery<std::shared_ptr<const FirstFrame>>> frame;
};

/// Decodes first frames on threads of its own, for the movie that is wanted last. Main thread.
class FirstFrameDecoder {
public:
    FirstFrameDecoder();
    ~FirstFrameDecoder();

    /// The one before is given up.
    PreparedFrame decode(const QUrl& url);
    /// Gives up what is under way, without waiting for it.
    void cancel();
    /// Waits until the threads have ended.
    void finish();

private:
    struct Job;
    std::vector<std::unique_ptr<Job>> _jobs; // all but the last are cancelled
};

} // namespace platform

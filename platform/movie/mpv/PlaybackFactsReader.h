// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/PlaybackFacts.h"

#include <mpv/client.h>

#include <functional>
#include <vector>

namespace platform {

/// Asks libmpv how it plays, without waiting for it. Main thread.
class PlaybackFactsReader {
public:
    PlaybackFactsReader() = default;
    PlaybackFactsReader(const PlaybackFactsReader&) = delete;
    PlaybackFactsReader& operator=(const PlaybackFactsReader&) = delete;

    using Completion = std::function<void(const PlaybackFacts&)>;
    /// Calls `completion` once, from handle() or forget(), with what the core knows; pictures are counted by others.
    void ask(mpv_handle* handle, Completion completion);
    /// Takes an event that concerns it; false for others.
    bool handle(const mpv_event& event);
    /// The core goes: whoever waits gets what has come.
    void forget();

private:
    std::vector<Completion> _waiting;
    PlaybackFacts _coming;
};

} // namespace platform

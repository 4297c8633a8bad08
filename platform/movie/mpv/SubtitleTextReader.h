// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

#include <mpv/client.h>

#include <functional>

namespace platform {

/// Follows the text of one of libmpv's selected tracks of subtitles: it hears that another one is due, and asks for
/// that with its times. Main thread.
class SubtitleTextReader {
public:
    /// Which of libmpv's two tracks of subtitles.
    enum class Track { first, second };
    /// `tell` takes each text that differs from the one before.
    SubtitleTextReader(Track track, std::function<void(const SubtitleText&)> tell)
        : _track(track)
        , _tell(std::move(tell)) {}
    SubtitleTextReader(const SubtitleTextReader&) = delete;
    SubtitleTextReader& operator=(const SubtitleTextReader&) = delete;

    /// Begins to follow a core, once for each. Before, it costs nothing.
    void observe(mpv_handle* handle);
    /// The core goes; null events of it come no more.
    void forget();
    /// Another movie, or another track: what was due is not any more.
    void clear();
    /// Takes an event that concerns it; false for others.
    bool handle(const mpv_event& event);

private:
    void ask();
    void takeReply(const mpv_event& event);

    struct Names;
    const Names& names() const;

    Track _track;
    std::function<void(const SubtitleText&)> _tell;
    mpv_handle* _handle = nullptr;
    /// The asking that is under way, and whether something changed since.
    enum class Asked { no, once, again } _asked = Asked::no;
    SubtitleText _coming;
    SubtitleText _told;
};

} // namespace platform

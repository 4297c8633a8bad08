// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/PlayerState.h"

#include <string>

/// The movie that a script plays: ten seconds in hundredths.
inline constexpr platform::LoadedMovie tenSeconds{1000, 100, platform::LoadedMovie::Content::frames};

/// A player's state that events are told to, and what they lead to as text: the effects, then the reports, as in
/// "pause, seek 2.5 keyframe | jump, state".
class PlayerScript {
public:
    /// A movie whose first frame is shown, paused at a time.
    static PlayerScript showing(const platform::LoadedMovie& movie = tenSeconds, std::int32_t time = 0);

    std::string operator()(const platform::PlayerEvent& event);

    const platform::PlayerState& state() const { return _state; }
    std::int32_t time() const { return _state.time; }
    float rate() const { return _state.rate; }

private:
    platform::PlayerState _state;
};

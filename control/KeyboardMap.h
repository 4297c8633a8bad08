// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Events.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// What the meaning of a key depends on besides the key.
struct KeyboardState {
    bool isPlaying = false;
    float rate = 0;
    /// Monotonic seconds; when the arrows last doubled the speed, if they ever did.
    double now = 0;
    std::optional<double> lastRewind = std::nullopt;
    std::optional<double> lastForward = std::nullopt;
};

/// What a key event asks for. The caller carries it out.
struct KeyCommand {
    enum class Kind {
        passOn,  // not consumed: the view's own handling comes next
        consume, // consumed without effect
        stopRepeating,
        movieSize,      // argument: size code
        cycleSubtitles, // argument: +1 or -1, as for the next two
        cycleDisplays,
        toggleLooping,
        toggleController,
        volumeControl,   // argument: volume command
        performAction,   // argument: action code
        repeatAction,    // argument: action code, repeated until a key is released
        restorePlayback, // from fast motion to normal speed
        playPrevious,
        playNext,
        gotoBeginning,
        gotoEnd,
        fastRewind,
        fastForward,
    };
    Kind kind = Kind::passOn;
    std::int32_t argument = 0;
    /// The key of the confirmation text, where it does not depend on the outcome; else empty.
    std::string_view feedback = {};

    friend bool operator==(const KeyCommand&, const KeyCommand&) = default;
};

/// The keyboard map. Letters count whatever Shift says.
KeyCommand keyCommand(const platform::KeyEvent& event, const KeyboardState& state);

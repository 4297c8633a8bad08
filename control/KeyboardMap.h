// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"
#include "platform/window/Events.h"

#include <map>
#include <vector>

/// When the commands of paced keys last acted by their keys, monotonic seconds.
using PacedTimes = std::map<const Command*, double>;

/// What the meaning of a key depends on besides the key.
struct KeyboardState {
    bool isPlaying = false;
    float rate = 0;
    /// Monotonic seconds.
    double now = 0;
    const PacedTimes& paced;
};

/// What a key event asks for. The caller carries it out.
struct KeyMeaning {
    enum class Kind {
        passOn,  // not consumed: the view's own handling comes next
        consume, // consumed without effect
        stopRepeating,
        perform,
        performPaced, // and its time is to be kept for KeyboardState::paced
        repeat,       // perform its action again and again until a key is released
    };
    Kind kind = Kind::passOn;
    /// What to perform; else null.
    const Command* command = nullptr;

    friend bool operator==(const KeyMeaning&, const KeyMeaning&) = default;
};

/// The keys of a table of commands, sorted for looking them up. Letters count whatever Shift says.
class KeyboardMap {
public:
    /// A held key that is paced acts at most once in so many seconds.
    static constexpr double pace = 0.8;

    /// The commands must outlive the map.
    explicit KeyboardMap(std::span<const Command> commands);

    KeyMeaning meaning(const platform::KeyEvent& event, const KeyboardState& state) const;

private:
    struct Entry {
        CommandKey key;
        const Command* command;
    };
    /// By character, and for each the greatest modifiers first.
    std::vector<Entry> _entries;
};

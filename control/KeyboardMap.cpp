// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyboardMap.h"

#include <algorithm>
#include <functional>

using platform::KeyEvent;
using Kind = KeyMeaning::Kind;

namespace {

std::uint8_t motionOf(const KeyboardState& state) {
    if (!state.isPlaying)
        return motion::stopped;
    return state.rate == 1.0F ? motion::normal : motion::fast;
}

KeyMeaning pressed(const Command& command, KeyRepeat repeat) {
    switch (repeat) {
    case KeyRepeat::paced:
        return {Kind::performPaced, &command};
    case KeyRepeat::timed:
        return {Kind::repeat, &command};
    case KeyRepeat::acts:
    case KeyRepeat::consumed:
    case KeyRepeat::passedOn:
        break;
    }
    return {Kind::perform, &command};
}

KeyMeaning repeated(const Command& command, KeyRepeat repeat, const KeyboardState& state) {
    switch (repeat) {
    case KeyRepeat::acts:
        return {Kind::perform, &command};
    case KeyRepeat::paced: {
        const auto last = state.paced.find(&command);
        if (last != state.paced.end() && state.now - last->second > KeyboardMap::pace)
            return {Kind::performPaced, &command};
        break;
    }
    case KeyRepeat::passedOn:
        return {Kind::passOn};
    case KeyRepeat::consumed:
    case KeyRepeat::timed:
        break;
    }
    return {Kind::consume};
}

/// What the movie view does by itself with keys that nobody takes before.
bool isViewKey(char16_t character) {
    namespace fnkey = platform::functionKey;
    return character == fnkey::space || character == fnkey::left || character == fnkey::right;
}

} // namespace

KeyboardMap::KeyboardMap(std::span<const Command> commands) {
    for (const Command& command : commands)
        for (const CommandKey& key : command.keys)
            if (key.character && (key.taker == KeyTaker::keyboardMap || key.taker == KeyTaker::movieView))
                _entries.push_back({key, &command});
    std::ranges::stable_sort(_entries, [](const Entry& one, const Entry& other) {
        return one.key.character != other.key.character ? one.key.character < other.key.character
                                                        : one.key.modifiers > other.key.modifiers;
    });
}

KeyMeaning KeyboardMap::meaning(const KeyEvent& event, const KeyboardState& state) const {
    if (event.type == KeyEvent::Type::up)
        return {Kind::stopRepeating};
    if (event.charactersIgnoringModifiers.isEmpty())
        return {Kind::passOn};

    const char16_t character = event.charactersIgnoringModifiers.front().toLower().unicode();
    const std::uint8_t now = motionOf(state);
    const auto characterOf = [](const Entry& entry) { return entry.key.character; };
    for (const Entry& entry : std::ranges::equal_range(_entries, character, std::less(), characterOf)) {
        const bool isHeld = (event.modifierFlags & entry.key.modifiers) == entry.key.modifiers;
        if (!isHeld || !(entry.key.during & now))
            continue;
        if (entry.key.taker == KeyTaker::movieView)
            return {Kind::passOn};
        return event.isRepeat ? repeated(*entry.command, entry.key.repeat, state)
                              : pressed(*entry.command, entry.key.repeat);
    }
    // A key of the view that its command has lost is nobody's.
    return {isViewKey(character) ? Kind::consume : Kind::passOn};
}

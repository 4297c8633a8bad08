// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyboardMap.h"
#include "context/CommandTarget.h"

#include <gtest/gtest.h>

using namespace platform;
using Kind = KeyCommand::Kind;

namespace {

constexpr std::uint32_t none = 0;
const KeyCommand passOn{Kind::passOn};
const KeyCommand consume{Kind::consume};

KeyEvent key(char16_t character, std::uint32_t modifiers = none, bool repeat = false) {
    KeyEvent event;
    event.charactersIgnoringModifiers = QChar(character);
    event.modifierFlags = modifiers;
    event.isRepeat = repeat;
    return event;
}

constexpr KeyboardState stopped{};
constexpr KeyboardState playing{.isPlaying = true, .rate = 1.0F};
constexpr KeyboardState fast{.isPlaying = true, .rate = 4.0F};

} // namespace

TEST(KeyboardMap, Each_key_with_its_modifiers_presses_and_repeats_as_the_map_says) {
    using namespace platform::modifier;
    using namespace platform::functionKey;
    const std::uint32_t every = shift | control | option | command | capsLock;
    const KeyCommand acts{Kind::stopRepeating}; // stands for "a repeat is a press"
    const struct {
        const char* name;
        char16_t character;
        std::uint32_t modifiers;
        KeyCommand press, repeat;
    } cases[] = {
        {"1", u'1', every, {Kind::movieSize, 1, "Size: Normal"}, passOn},
        {"+", u'+', shift, {Kind::movieSize, -2, "Size: Bigger"}, acts},
        {"-", u'-', none, {Kind::movieSize, -3, "Size: Smaller"}, acts},
        {"s", u's', none, {Kind::cycleSubtitles, 1}, acts},
        {"Shift s", u'S', shift, {Kind::cycleSubtitles, -1}, acts},
        {"Shift d", u'd', shift, {Kind::cycleDisplays, -1}, acts},
        {"c", u'c', every, {Kind::toggleController}, consume},
        {"l", u'l', none, {Kind::toggleLooping, 1}, consume},
        {"Tab", tab, none, {Kind::performAction, action::nextScreen}, consume},
        {"Up", up, none, {Kind::repeatAction, action::volumeUp}, consume},
        {"Alt Up", up, option | command, {Kind::performAction, action::optionUp}, consume},
        {"Down", down, shift | control, {Kind::repeatAction, action::volumeDown}, consume},
        {"Super Left", left, command, {Kind::playPrevious}, acts},
        {"Super first, Left", left, every, {Kind::playPrevious}, acts},
        {"Alt Left", left, option | control, {Kind::gotoBeginning, 0, "Movie: Beginning"}, consume},
        {"Ctrl Left", left, control, {Kind::performAction, action::jumpBackward}, acts},
        {"Alt Right", right, option | control, {Kind::gotoEnd, 0, "Movie: End"}, consume},
        {"Ctrl Right", right, control, {Kind::performAction, action::jumpForward}, acts},
        {"x", u'x', every, passOn, passOn},
    };
    for (const auto& c : cases) {
        for (const KeyboardState& state : {stopped, playing, fast}) {
            EXPECT_EQ(keyCommand(key(c.character, c.modifiers), state), c.press) << c.name;
            EXPECT_EQ(keyCommand(key(c.character, c.modifiers, true), state), c.repeat == acts ? c.press : c.repeat)
                << c.name << " held";
        }
    }
}

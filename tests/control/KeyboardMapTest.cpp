// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyboardMap.h"
#include "app/context/CommandTarget.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

using namespace platform;
using Kind = KeyCommand::Kind;

std::ostream& operator<<(std::ostream& stream, const KeyCommand& command);
std::ostream& operator<<(std::ostream& stream, const KeyCommand& command) {
    return stream << "kind " << static_cast<int>(command.kind) << ", argument " << command.argument << ", \""
                  << command.feedback << '"';
}

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
        {"0", u'0', none, {Kind::movieSize, 0, "Size: Half"}, passOn},
        {"1", u'1', every, {Kind::movieSize, 1, "Size: Normal"}, passOn},
        {"2", u'2', none, {Kind::movieSize, 2, "Size: Double"}, passOn},
        {"3", u'3', none, {Kind::movieSize, 3, "Size: Full"}, passOn},
        {"F", u'F', shift, {Kind::movieSize, 3, "Size: Full"}, passOn},
        {"4", u'4', none, {Kind::movieSize, 4, "Size: Fit Width"}, passOn},
        {"w", u'w', none, {Kind::movieSize, 4, "Size: Fit Width"}, passOn},
        {"5", u'5', none, {Kind::movieSize, 5, "Size: Fit Height"}, passOn},
        {"h", u'h', option, {Kind::movieSize, 5, "Size: Fit Height"}, passOn},
        {"+", u'+', shift, {Kind::movieSize, -2, "Size: Bigger"}, acts},
        {"=", u'=', none, {Kind::movieSize, -2, "Size: Bigger"}, acts},
        {"-", u'-', none, {Kind::movieSize, -3, "Size: Smaller"}, acts},
        {"s", u's', none, {Kind::cycleSubtitles, 1}, acts},
        {"Shift s", u'S', shift, {Kind::cycleSubtitles, -1}, acts},
        {"s under Caps Lock", u'S', capsLock, {Kind::cycleSubtitles, 1}, acts},
        {"d", u'd', none, {Kind::cycleDisplays, 1}, acts},
        {"Shift d", u'd', shift, {Kind::cycleDisplays, -1}, acts},
        {"c", u'c', every, {Kind::toggleController}, consume},
        {"l", u'l', none, {Kind::toggleLooping, 1}, consume},
        {"Shift l", u'L', shift, {Kind::toggleLooping, -1}, consume},
        {"m", u'm', none, {Kind::volumeControl, 4}, consume},
        {"Tab", tab, none, {Kind::performAction, action::nextScreen}, consume},
        {"Shift Tab", tab, shift, {Kind::performAction, action::previousScreen}, consume},
        {"Up", up, none, {Kind::repeatAction, action::volumeUp}, consume},
        {"Alt Up", up, option | command, {Kind::performAction, action::optionUp}, consume},
        {"Down", down, shift | control, {Kind::repeatAction, action::volumeDown}, consume},
        {"Alt Down", down, option, {Kind::performAction, action::optionDown}, consume},
        {"Super Left", left, command, {Kind::playPrevious}, acts},
        {"Super first, Left", left, every, {Kind::playPrevious}, acts},
        {"Alt Left", left, option | control, {Kind::gotoBeginning, 0, "Movie: Beginning"}, consume},
        {"Ctrl Left", left, control, {Kind::performAction, action::jumpBackward}, acts},
        {"Super Right", right, command, {Kind::playNext}, consume},
        {"Super first, Right", right, every, {Kind::playNext}, consume},
        {"Alt Right", right, option | control, {Kind::gotoEnd, 0, "Movie: End"}, consume},
        {"Ctrl Right", right, control, {Kind::performAction, action::jumpForward}, acts},
        {"Escape", escape, none, passOn, passOn},
        {"Return", u'\r', none, passOn, passOn},
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

TEST(KeyboardMap, Any_release_ends_repeating_and_an_event_without_characters_is_passed_on) {
    KeyEvent event = key(u'x');
    event.type = KeyEvent::Type::up;
    EXPECT_EQ(keyCommand(event, playing).kind, Kind::stopRepeating);
    event.charactersIgnoringModifiers.clear();
    EXPECT_EQ(keyCommand(event, playing).kind, Kind::stopRepeating);
    event.type = KeyEvent::Type::down;
    EXPECT_EQ(keyCommand(event, playing), passOn);
}

TEST(KeyboardMap, Space_restores_normal_playback_only_from_fast_motion) {
    const KeyEvent press = key(functionKey::space), held = key(functionKey::space, none, true);
    for (const float rate : {2.0F, -2.0F, 0.5F}) {
        const KeyboardState state{.isPlaying = true, .rate = rate};
        EXPECT_EQ(keyCommand(press, state), (KeyCommand{Kind::restorePlayback, 0, "Movie: Play"})) << rate;
        EXPECT_EQ(keyCommand(held, state), consume) << rate;
    }
    for (const KeyboardState& state : {playing, stopped}) {
        EXPECT_EQ(keyCommand(press, state), passOn);
        EXPECT_EQ(keyCommand(held, state), passOn);
    }
}

TEST(KeyboardMap, A_held_arrow_doubles_the_speed_at_most_every_0_8_seconds_of_its_own) {
    constexpr double never = std::numeric_limits<double>::infinity();
    const struct {
        bool repeat;
        double age; // of the arrow's own timestamp
        Kind expected;
    } cases[] = {
        {false, never, Kind::fastRewind}, {false, 0.1, Kind::fastRewind}, {true, never, Kind::consume},
        {true, 0, Kind::consume},         {true, 0.75, Kind::consume},    {true, 0.8125, Kind::fastRewind},
        {true, 100, Kind::fastRewind},
    };
    for (const auto& c : cases) {
        const double now = 1000;
        const auto stamp = c.age == never ? std::optional<double>() : now - c.age;
        const KeyboardState rewinding{.isPlaying = true, .rate = -2.0F, .now = now, .lastRewind = stamp};
        EXPECT_EQ(keyCommand(key(functionKey::left, modifier::shift, c.repeat), rewinding).kind, c.expected) << c.age;

        const Kind forward = c.expected == Kind::fastRewind ? Kind::fastForward : c.expected;
        const KeyboardState forwarding{.isPlaying = true, .rate = 2.0F, .now = now, .lastForward = stamp};
        EXPECT_EQ(keyCommand(key(functionKey::right, none, c.repeat), forwarding).kind, forward) << c.age;
        if (c.repeat) {
            EXPECT_EQ(keyCommand(key(functionKey::right, none, true), rewinding), consume) << "the other arrow's stamp";
        }
    }
    EXPECT_EQ(keyCommand(key(functionKey::left), stopped), passOn);
    EXPECT_EQ(keyCommand(key(functionKey::right, none, true), stopped), passOn);
}

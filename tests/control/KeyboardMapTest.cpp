// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyboardMap.h"

#include <gtest/gtest.h>

using namespace platform;
using Kind = KeyMeaning::Kind;

namespace {

constexpr std::uint32_t none = 0;

KeyEvent key(char16_t character, std::uint32_t modifiers = none, bool repeat = false) {
    KeyEvent event;
    event.charactersIgnoringModifiers = QChar(character);
    event.modifierFlags = modifiers;
    event.isRepeat = repeat;
    return event;
}

const PacedTimes never;

/// What a key means to the player's own commands: the kind, and the command's name.
struct Meant {
    Kind kind;
    std::string_view command;
    friend bool operator==(const Meant&, const Meant&) = default;
    friend void PrintTo(const Meant& meant, std::ostream* out) {
        *out << static_cast<int>(meant.kind) << " " << meant.command;
    }
};

Meant meaning(const KeyEvent& event, bool isPlaying, float rate) {
    static const KeyboardMap map(commands());
    const KeyMeaning found = map.meaning(event, {isPlaying, rate, 0, never});
    return {found.kind, found.command ? found.command->name : ""};
}

} // namespace

TEST(KeyboardMap, Each_key_with_its_modifiers_presses_and_repeats_as_the_map_says) {
    using namespace platform::modifier;
    using namespace platform::functionKey;
    const std::uint32_t every = shift | control | option | command | capsLock;
    const Kind acts = Kind::perform;
    const struct {
        const char* name;
        char16_t character;
        std::uint32_t modifiers;
        Meant press;
        Kind repeat;
    } cases[] = {
        {"0", u'0', none, {acts, "half-size"}, Kind::passOn},
        {"1", u'1', every, {acts, "normal-size"}, Kind::passOn},
        {"2", u'2', none, {acts, "double-size"}, Kind::passOn},
        {"3", u'3', none, {acts, "full-size"}, Kind::passOn},
        {"f", u'f', none, {acts, "full-size"}, Kind::passOn},
        {"4", u'4', none, {acts, "fit-width"}, Kind::passOn},
        {"Shift w", u'W', shift, {acts, "fit-width"}, Kind::passOn},
        {"5", u'5', none, {acts, "fit-height"}, Kind::passOn},
        {"h", u'h', none, {acts, "fit-height"}, Kind::passOn},
        {"+", u'+', shift, {acts, "bigger"}, acts},
        {"=", u'=', none, {acts, "bigger"}, acts},
        {"-", u'-', none, {acts, "smaller"}, acts},
        {"s", u's', none, {acts, "next-subtitles"}, acts},
        {"Shift s", u'S', shift, {acts, "previous-subtitles"}, acts},
        {"d", u'd', control, {acts, "next-display"}, acts},
        {"Shift d", u'd', shift | option, {acts, "previous-display"}, acts},
        {"c", u'c', every, {acts, "toggle-controller"}, Kind::consume},
        {"l", u'l', none, {acts, "next-looping"}, Kind::consume},
        {"Shift l", u'L', shift, {acts, "previous-looping"}, Kind::consume},
        {"m", u'm', every, {acts, "mute"}, Kind::consume},
        {"Tab", tab, none, {acts, "next-screen"}, Kind::consume},
        {"Shift Tab", tab, shift, {acts, "previous-screen"}, Kind::consume},
        {"Up", up, none, {Kind::repeat, "volume-up"}, Kind::consume},
        {"Alt Up", up, option | command, {acts, "option-up"}, Kind::consume},
        {"Down", down, shift | control, {Kind::repeat, "volume-down"}, Kind::consume},
        {"Alt Down", down, option, {acts, "option-down"}, Kind::consume},
        {"Super Left", left, command, {acts, "previous-movie"}, acts},
        {"Super first, Left", left, every, {acts, "previous-movie"}, acts},
        {"Alt Left", left, option | control, {acts, "beginning"}, Kind::consume},
        {"Ctrl Left", left, control, {acts, "jump-backward"}, acts},
        {"Super Right", right, command | option, {acts, "next-movie"}, Kind::consume},
        {"Alt Right", right, option | control, {acts, "end"}, Kind::consume},
        {"Ctrl Right", right, control | shift, {acts, "jump-forward"}, acts},
        // The menu's, the window's and nobody's.
        {"Page Down", pageDown, none, {Kind::passOn, ""}, Kind::passOn},
        {"Esc", escape, none, {Kind::passOn, ""}, Kind::passOn},
        {"y", u'y', every, {Kind::passOn, ""}, Kind::passOn},
        {"Return", u'\r', none, {Kind::passOn, ""}, Kind::passOn},
    };
    for (const auto& c : cases) {
        for (const auto& [isPlaying, rate] : {std::pair{false, 0.0F}, {true, 1.0F}, {true, 4.0F}, {true, -2.0F}}) {
            EXPECT_EQ(meaning(key(c.character, c.modifiers), isPlaying, rate), c.press) << c.name;
            const Meant repeat{c.repeat, c.repeat == acts ? c.press.command : ""};
            EXPECT_EQ(meaning(key(c.character, c.modifiers, true), isPlaying, rate), repeat) << c.name << " held";
        }
    }
}

TEST(KeyboardMap, Space_and_arrows_are_the_views_but_while_fast_and_while_playing) {
    using namespace platform::functionKey;
    const Meant view{Kind::passOn, ""};
    const struct {
        bool isPlaying;
        float rate;
        Meant space, left, right;
    } cases[] = {
        {false, 0, view, view, view},
        // What the movie is to play at does not matter while it rests.
        {false, 2, view, view, view},
        {true, 1, view, {Kind::performPaced, "rewind"}, {Kind::performPaced, "forward"}},
        {true, 2, {Kind::perform, "normal-speed"}, {Kind::performPaced, "rewind"}, {Kind::performPaced, "forward"}},
        {true, -1, {Kind::perform, "normal-speed"}, {Kind::performPaced, "rewind"}, {Kind::performPaced, "forward"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(meaning(key(space), c.isPlaying, c.rate), c.space) << c.rate;
        EXPECT_EQ(meaning(key(left, modifier::shift), c.isPlaying, c.rate), c.left) << c.rate;
        EXPECT_EQ(meaning(key(right), c.isPlaying, c.rate), c.right) << c.rate;
        const Kind held = c.space == view ? Kind::passOn : Kind::consume;
        EXPECT_EQ(meaning(key(space, none, true), c.isPlaying, c.rate).kind, held) << c.rate;
    }
}

TEST(KeyboardMap, A_paced_key_held_acts_again_when_its_time_has_passed) {
    const KeyboardMap map(commands());
    const Command* rewind = commandWithName("rewind");
    const PacedTimes times{{rewind, 0.0}};
    const auto held = [&](char16_t character, double now, const PacedTimes& paced) {
        return map.meaning(key(character, none, true), {true, -2.0F, now, paced});
    };
    EXPECT_EQ(held(functionKey::left, 0.75, times), KeyMeaning{Kind::consume});
    EXPECT_EQ(held(functionKey::left, KeyboardMap::pace, times).kind, Kind::consume) << "not yet over";
    EXPECT_EQ(held(functionKey::left, 0.85, times), (KeyMeaning{Kind::performPaced, rewind}));
    EXPECT_EQ(held(functionKey::right, 0.85, times), KeyMeaning{Kind::consume}) << "the other arrow never acted";
}

TEST(KeyboardMap, Any_release_stops_repeating_and_a_key_without_a_character_is_passed_on) {
    KeyEvent release = key(u'x');
    release.type = KeyEvent::Type::up;
    EXPECT_EQ(meaning(release, true, 1), (Meant{Kind::stopRepeating, ""}));
    EXPECT_EQ(meaning(KeyEvent(), true, 1), (Meant{Kind::passOn, ""}));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyBindings.h"
#include "control/CommandHelp.h"
#include "control/CurrentCommands.h"
#include "control/KeyText.h"
#include "control/KeyboardMap.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "tests/control/MovieControllerRig.h"
#include "tests/support/CapturedLog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace platform;
using Kind = KeyMeaning::Kind;

const Command& command(std::string_view name) {
    return *commandWithName(name);
}

KeyChord key(const char* text) {
    return keyOfPortableText(text).value();
}

/// The keys of a command, as help would write them.
std::string keys(const KeyBindings& bindings, std::string_view name) {
    QStringList texts;
    for (const KeyChord chord : bindings.keysOf(command(name)))
        texts << portableKeyText(chord);
    return texts.join(u' ').toStdString();
}

/// What a key means with these bindings: the kind and the command.
std::string meaning(const KeyBindings& bindings, const char* text, bool isPlaying, float rate, bool isRepeat = false) {
    static const PacedTimes never;
    const std::vector<Command> table = bindings.commands();
    KeyEvent event;
    event.charactersIgnoringModifiers = QChar(key(text).character);
    event.modifierFlags = key(text).modifiers;
    event.isRepeat = isRepeat;
    const KeyMeaning found = KeyboardMap(table).meaning(event, {isPlaying, rate, 0, never});
    const char* kinds[] = {"passed on", "consumed", "stops", "performs", "paced", "repeats"};
    const std::string name(found.command ? found.command->name : "");
    return kinds[static_cast<int>(found.kind)] + (name.empty() ? name : " " + name);
}

} // namespace

TEST(KeyBindings, keys_are_read_as_they_are_written) {
    for (const Command& row : commands())
        for (const CommandKey& written : row.keys) {
            if (written.character) {
                EXPECT_EQ(keyOfPortableText(portableKeyText(written.chord())), written.chord()) << row.name;
            }
        }
    const KeyChord all{u'+', modifier::shift | modifier::control | modifier::option | modifier::command};
    EXPECT_EQ(portableKeyText(all), "Meta+Ctrl+Alt+Shift++");
    EXPECT_EQ(keyOfPortableText("meta+ctrl+alt+shift++"), all);
    EXPECT_EQ(keyOfPortableText("ctrl+pgdown"), (KeyChord{functionKey::pageDown, modifier::control}));
    EXPECT_EQ(keyOfPortableText("F12"), KeyChord{functionKey::f12});
    for (const char* text : {"", " ", "Ctrl+", "Hyper+A", "ab", "F13", "\uE000", "\u0001"})
        EXPECT_EQ(keyOfPortableText(text), std::nullopt) << text;
}

TEST(KeyBindings, a_given_key_is_taken_from_its_command_and_comes_back) {
    KeyBindings bindings(commands());
    EXPECT_EQ(bindings.holderOf(key("S"), command("mute")), &command("next-subtitles"));
    EXPECT_EQ(bindings.holderOf(key("Alt+Up"), command("mute")), nullptr) << "nothing is done with it";
    ASSERT_TRUE(bindings.give(key("S"), command("mute")));
    EXPECT_EQ(keys(bindings, "mute"), "M Volume Mute S");
    EXPECT_EQ(keys(bindings, "next-subtitles"), "");
    EXPECT_EQ(keys(bindings, "previous-subtitles"), "Shift+S") << "another key";
    EXPECT_TRUE(bindings.isChanged(command("next-subtitles")));
    EXPECT_EQ(bindings.setting(), (QVariantMap{{"mute", QVariantList{"M", "Volume Mute", "S"}}}));
    ASSERT_TRUE(bindings.give(key("N"), command("next-subtitles")));
    ASSERT_TRUE(bindings.give(key("N"), command("full-size"))) << "from one that was changed";
    EXPECT_EQ(keys(bindings, "next-subtitles"), "");
    EXPECT_EQ(keys(bindings, "full-size"), "3 F N");
    bindings.reset(command("next-subtitles"));
    EXPECT_EQ(keys(bindings, "next-subtitles"), "S");
    EXPECT_EQ(keys(bindings, "mute"), "M Volume Mute");
    EXPECT_EQ(bindings.setting(), (QVariantMap{{"full-size", QVariantList{"3", "F", "N"}}}));
    bindings.take(key("N"), command("full-size"));
    EXPECT_FALSE(bindings.isAnyChanged()) << "what the table says is no change";
}

TEST(KeyBindings, some_keys_are_refused_and_there_is_an_end_to_their_number) {
    EXPECT_EQ(refusalOf(key("Esc")), KeyRefusal::escape);
    EXPECT_EQ(refusalOf(key("Shift+Esc")), KeyRefusal::escape);
    EXPECT_EQ(refusalOf(key("Alt+F4")), KeyRefusal::desktop);
    EXPECT_EQ(refusalOf(key("Ctrl+Alt+F1")), KeyRefusal::desktop);
    EXPECT_EQ(refusalOf(key("F4")), KeyRefusal::none);
    KeyBindings bindings(commands());
    EXPECT_FALSE(bindings.give(key("Esc"), command("mute")));
    EXPECT_EQ(keys(bindings, "quit"), "Ctrl+Q") << "Escape is not among those that can be changed";
    for (const char* text : {"A", "B", "X"})
        EXPECT_TRUE(bindings.give(key(text), command("quit")));
    EXPECT_FALSE(bindings.give(key("Y"), command("quit")));
    bindings.take(key("Ctrl+Q"), command("quit"));
    EXPECT_EQ(meaning(bindings, "Esc", true, 1), "passed on") << "the window's";
    const std::vector<Command> table = bindings.commands();
    const auto quit = std::ranges::find(table, std::string_view("quit"), &Command::name);
    EXPECT_EQ(quit->keys[3].chord(), key("Esc"));
}

TEST(KeyBindings, what_is_damaged_in_the_settings_is_left_out) {
    const struct {
        QVariant setting;
        const char *leftOut, *mute, *pause;
    } cases[] = {
        {{}, "", "M Volume Mute", "Space Media Play"},
        {"text", "all of it", "M Volume Mute", "Space Media Play"},
        {QVariantMap{{"mute", 7}, {"no-such", QVariantList{"A"}}, {"option-up", QVariantList{"B"}}},
         "mute no-such option-up", "M Volume Mute", "Space Media Play"},
        {QVariantMap{{"mute", QVariantList{"K", 3, "Nonsense", "Esc", "K", "L", "O", "I", "J"}}},
         "mute Nonsense mute Esc mute K mute I mute J", "K 3 L O", "Space Media Play"},
        {QVariantMap{{"mute", QVariantList{"Space", "K"}}, {"play-pause", QVariantList{"k"}}}, "mute K", "Space", "K"},
        {QVariantMap{{"mute", QVariantList{}}, {"play-pause", QVariantList{"M"}}}, "", "", "M"},
        {QVariantMap{{"mute", QVariantList{"M", "Volume Mute"}}}, "", "M Volume Mute", "Space Media Play"},
    };
    for (const auto& c : cases) {
        KeyBindings bindings(commands());
        QStringList leftOut;
        bindings.read(c.setting, leftOut);
        EXPECT_EQ(leftOut.join(u' ').toStdString(), c.leftOut);
        EXPECT_EQ(keys(bindings, "mute"), c.mute);
        EXPECT_EQ(keys(bindings, "play-pause"), c.pause);
        KeyBindings again(commands());
        again.read(bindings.setting(), leftOut);
        EXPECT_TRUE(again == bindings);
    }
}

TEST(KeyBindings, a_new_key_repeats_and_turns_with_the_movie_as_the_first_one_does) {
    KeyBindings bindings(commands());
    const std::pair<const char*, const char*> given[] = {
        {"K", "play-pause"}, {"J", "forward"}, {"U", "volume-up"},   {"N", "next-movie"}, {"B", "previous-movie"},
        {"Home", "stop"},    {"G", "silent"},  {"Ctrl+1", "bigger"}, {"F2", "open"},      {"Ctrl+Q", "mute"}};
    for (const auto& [text, name] : given)
        ASSERT_TRUE(bindings.give(key(text), command(name))) << text;
    const struct {
        const char* key;
        bool isPlaying;
        float rate;
        const char *press, *repeat;
    } cases[] = {
        {"K", true, 1, "performs play-pause", "performs play-pause"},
        {"K", false, 0, "performs play-pause", "performs play-pause"},
        {"K", true, 2, "performs normal-speed", "consumed"},
        {"Space", true, 1, "passed on", "passed on"},
        {"Space", true, 2, "performs normal-speed", "consumed"},
        {"J", true, 1, "paced forward", "consumed"},
        {"J", false, 0, "performs forward", "performs forward"},
        {"Right", true, 1, "paced forward", "consumed"},
        {"Right", false, 0, "passed on", "passed on"},
        {"U", true, 1, "repeats volume-up", "consumed"},
        {"N", true, 1, "performs next-movie", "consumed"},
        {"B", true, 1, "performs previous-movie", "performs previous-movie"},
        {"Home", true, 1, "performs stop", "consumed"},
        {"G", true, 1, "performs silent", "consumed"},
        {"Ctrl+1", true, 1, "performs bigger", "performs bigger"},
        {"1", true, 1, "performs normal-size", "passed on"},
        {"F2", true, 1, "performs open", "consumed"},
        {"Ctrl+Q", true, 1, "performs mute", "consumed"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(meaning(bindings, c.key, c.isPlaying, c.rate), c.press) << c.key;
        EXPECT_EQ(meaning(bindings, c.key, c.isPlaying, c.rate, true), c.repeat) << c.key;
    }
}

TEST(KeyBindings, the_views_own_keys_do_nothing_without_their_command) {
    KeyBindings bindings(commands());
    bindings.take(key("Space"), command("play-pause"));
    bindings.give(key("Right"), command("mute"));
    for (const float rate : {0.0F, 1.0F, 2.0F}) {
        EXPECT_EQ(meaning(bindings, "Space", rate != 0, rate), "consumed") << rate;
        EXPECT_EQ(meaning(bindings, "Right", rate != 0, rate), "performs mute") << rate;
    }
    EXPECT_EQ(meaning(bindings, "Left", false, 0), "passed on");
}

TEST(KeyBindings, help_lists_the_keys_as_they_are) {
    KeyBindings bindings(commands());
    bindings.give(key("M"), command("play-pause"));
    bindings.take(key("R"), command("repair-subtitles"));
    bindings.give(key("X"), command("loop-all"));
    QStringList written;
    for (const HelpLine& line : helpLines(bindings.commands()))
        written << line.keys.join(u' ') + u' ' + QString::fromUtf8(line.text);
    const QString all = written.join(u'\n');
    EXPECT_TRUE(all.contains("Space/M")) << all.toStdString();
    EXPECT_FALSE(all.contains("Space/M M")) << "a key that two commands share is there once";
    EXPECT_TRUE(all.contains("X Loop All"));
    EXPECT_FALSE(all.contains("Repair damaged"));
}

using ChangedKeys = MovieControllerRig;

TEST_F(ChangedKeys, act_at_once_and_a_damaged_setting_is_logged_in_one_line) {
    addMovies(2);
    EXPECT_FALSE(press(u'k'));
    settings.defaults().setObject(QVariantMap{{"open", QVariantList{"K", "Esc"}}, {"none", 1}}, kQVCommandKeys);
    CapturedLog log;
    settings.notifications.post(QVPreferencesChangedNotification{kQVCommandKeys});
    EXPECT_EQ(log.count("Left out of QVCommandKeys: open Esc, none"), 1);
    EXPECT_TRUE(press(u'k'));
    EXPECT_EQ(services.calls, QStringList{"open"});
    // The items that are made as menus open.
    settings.defaults().setObject(QVariantMap{{"show-playlist", QVariantList{"F3"}}}, kQVCommandKeys);
    settings.notifications.post(QVPreferencesChangedNotification{kQVCommandKeys});
    playlistMenu.willOpen();
    EXPECT_EQ(playlistMenu.itemAt(playlistMenu.count() - 1).keyHint, "F3");
    EXPECT_FALSE(press(u'k'));
}

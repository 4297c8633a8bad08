// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Commands.h"
#include "control/CommandHelp.h"
#include "control/KeyText.h"
#include "platform/base/Localization.h"
#include "platform/window/Events.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include <optional>
#include <set>

TEST(Commands, names_codes_items_and_keys_are_each_one_commands_own) {
    std::set<std::string_view> names;
    std::set<std::int32_t> codes;
    std::set<std::pair<std::string_view, std::int32_t>> items;
    for (const Command& command : commands()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_TRUE(QRegularExpression("^[a-z]+(-[a-z]+)*$").match(command.name.data()).hasMatch()) << command.name;
        EXPECT_TRUE(command.action == noAction || codes.insert(command.action).second) << command.name;
        EXPECT_TRUE(!command.operation.perform || items.insert({command.operation.name, command.argument}).second)
            << command.name;
        EXPECT_EQ(command.operation.perform != nullptr, !command.operation.name.empty()) << command.name;
    }
    const auto meet = [](const CommandKey& one, const CommandKey& other) {
        return one.character && one.character == other.character && one.modifiers == other.modifiers &&
               (one.during & other.during);
    };
    for (const Command& one : commands())
        for (const CommandKey& key : one.keys)
            for (const Command& other : commands())
                for (const CommandKey& otherKey : other.keys)
                    EXPECT_TRUE(&key == &otherKey || !meet(key, otherKey)) << one.name << ", " << other.name;
}

TEST(Commands, every_row_can_be_reached_and_says_what_its_places_need) {
    for (const Command& command : commands()) {
        const bool hasKey = command.keys.front().character != 0;
        const bool fillsAMenu = command.name == "movie" || command.name == "clear-recent";
        // One with a title of its own waits on the page that gives keys.
        const bool mayGetKeys = !command.title.empty();
        EXPECT_TRUE(hasKey || command.action != noAction || !command.menu.title.empty() || fillsAMenu || mayGetKeys)
            << command.name;
        EXPECT_EQ(command.help.empty(), !hasKey || !command.operation.perform) << command.name;
        EXPECT_TRUE(command.menu.title.empty() ||
                    commandOfMenuItem(command.operation.name, command.argument) == &command)
            << command.name;
        const Command* other = commandWithName(command.menu.keyOf);
        EXPECT_TRUE(command.menu.keyOf.empty() || (!hasKey && other && other->keys.front().character)) << command.name;
        for (const CommandKey& key : command.keys) {
            EXPECT_TRUE(key.repeat != KeyRepeat::timed || command.action != noAction)
                << command.name << ": what repeats by itself is an action";
            EXPECT_EQ(QChar(key.character).toLower(), QChar(key.character)) << command.name;
        }
    }
}

TEST(Commands, a_tag_that_no_row_has_is_a_position_for_the_operation) {
    EXPECT_EQ(commandOfMenuItem("changeMovie", 7)->name, "movie");
    EXPECT_EQ(commandOfMenuItem("changeSubtitles", 0)->name, "no-subtitles");
    EXPECT_EQ(commandOfMenuItem("changeLooping", 2)->name, "loop-all");
    EXPECT_EQ(commandOfMenuItem("", 0), nullptr);
    EXPECT_EQ(commandOfMenuItem("noSuchOperation", 0), nullptr);
    EXPECT_EQ(commandWithAction(noAction), nullptr);
}

TEST(Commands, their_codes_and_arguments_are_those_that_settings_and_other_inputs_know) {
    const std::pair<std::int32_t, const char*> actions[] = {{0, "play-pause"},
                                                            {1, "fast-rewind"},
                                                            {2, "fast-forward"},
                                                            {3, "step-backward"},
                                                            {4, "step-forward"},
                                                            {5, "jump-backward"},
                                                            {6, "jump-forward"},
                                                            {19, "volume-up"},
                                                            {20, "volume-down"},
                                                            {21, "option-up"},
                                                            {22, "option-down"},
                                                            {24, "next-subtitles"},
                                                            {25, "previous-subtitles"},
                                                            {29, "next-screen"},
                                                            {30, "previous-screen"},
                                                            {31, "sleep"},
                                                            {32, "quit"}};
    for (const auto& [code, name] : actions)
        EXPECT_EQ(commandWithName(name)->action, code) << name;
    const std::pair<std::int32_t, std::vector<const char*>> arguments[] = {
        {1,
         {"next-display", "forward", "step-forward", "jump-forward", "end", "next-movie", "next-looping",
          "next-subtitles", "next-screen", "normal-size", "loop-one"}},
        {-1,
         {"previous-display", "rewind", "step-backward", "jump-backward", "beginning", "previous-movie",
          "previous-looping", "no-subtitles", "previous-subtitles", "previous-screen"}},
        {0, {"half-size", "looping-off"}},
        {2, {"double-size", "loop-all"}},
        {3, {"full-size"}},
        {4, {"fit-width"}},
        {5, {"fit-height"}},
        {-2, {"bigger"}},
        {-3, {"smaller"}}};
    for (const auto& [argument, names] : arguments)
        for (const char* name : names)
            EXPECT_EQ(commandWithName(name)->argument, argument) << name;
}

TEST(Commands, keys_are_written_for_menus_and_for_people) {
    using namespace platform;
    const struct {
        CommandKey key;
        const char *portable, *readable;
    } cases[] = {
        {{u'o', modifier::control}, "Ctrl+O", "Ctrl+O"},
        {{functionKey::left, modifier::command}, "Meta+Left", "Super+\u2190"},
        {{functionKey::pageDown}, "PgDown", "Page Down"},
        {{u'-', modifier::option | modifier::shift}, "Alt+Shift+-", "Alt+Shift+\u2212"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(portableKeyText(c.key.chord()).toStdString(), c.portable);
        EXPECT_EQ(readableKeyText(c.key.chord()).toStdString(), c.readable);
    }
}

TEST(Commands, help_puts_the_keys_of_commands_with_the_same_text_on_one_line_by_section) {
    using platform::functionKey::left;
    const Command rows[] = {
        {.name = "b", .keys = {{{left}, {left, 0, KeyRepeat::acts, KeyTaker::movieView}}}, .help = "Two"},
        {.name = "no-help", .keys = {{{u'x'}}}},
        {.name = "other", .keys = {{{u'o'}}}, .section = Section::help, .help = "Two"},
        {.name = "c",
         .keys = {{{u'c'},
                   {u'=', 0, KeyRepeat::acts, KeyTaker::keyboardMap, motion::any, CommandKey::Shown::no},
                   {u'd'}}},
         .help = "Two"},
        {.name = "a", .keys = {{{u'a'}}}, .help = "One"},
    };
    QStringList written;
    for (const HelpLine& line : helpLines(rows))
        written.append(line.keys.join(u' ') + u' ' + QString::fromUtf8(line.text));
    EXPECT_EQ(written.join(u'\n').toStdString(), "\u2190 C/D Two\nA One\nO Two");
}

TEST(Commands, every_line_of_the_help_stands_in_one_group) {
    QStringList all, grouped;
    for (const HelpLine& line : helpLines(commands()))
        all << line.keys.join(' ') + QString::fromUtf8(line.text);
    QStringList titles;
    for (const HelpGroup& group : helpGroups(commands())) {
        titles << platform::localizedString(QString::fromUtf8(group.title));
        for (const HelpLine& line : group.lines)
            grouped << line.keys.join(' ') + QString::fromUtf8(line.text);
    }
    EXPECT_TRUE(grouped.first().contains("Play")) << "what is needed first";
    all.sort();
    grouped.sort();
    EXPECT_EQ(grouped, all);
    EXPECT_EQ(titles.removeDuplicates(), 0);
}

TEST(Commands, the_table_of_keys_in_the_readme_is_the_one_that_the_commands_make) {
    platform::setLocalizationLanguages({"en"});
    const auto localized = [](std::string_view key) { return platform::localizedString(QString::fromUtf8(key)); };
    QStringList made{"| | Keys | |", "|---|---|---|"};
    std::optional<Section> before;
    for (const HelpLine& line : helpLines(commands())) {
        const QString title = before == line.section ? QString() : localized(sectionTitle(line.section));
        made << QString("| %1 | %2 | %3 |").arg(title, line.keys.join(", "), localized(line.text));
        before = line.section;
    }
    QFile readme(QStringLiteral(LUMARO_SOURCE_DIR "/README.md"));
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(readme.readAll()).split(u'\n');
    QStringList shown;
    for (qsizetype at = lines.indexOf(made.front()); at >= 0 && lines[at].startsWith(u'|'); ++at)
        shown << lines[at];
    EXPECT_EQ(shown.join(u'\n').toStdString(), made.join(u'\n').toStdString());
    platform::setLocalizationLanguages({});
}

TEST(Commands, every_text_of_a_command_is_translated) {
    platform::setLocalizationLanguages({"de"});
    std::set<std::string_view> texts;
    for (const Command& command : commands())
        texts.insert(
            {sectionTitle(command.section), command.menu.title, command.help, command.confirmation, command.title});
    texts.erase("");
    texts.erase("Playlist"); // the same in German
    for (const std::string_view text : texts)
        EXPECT_NE(platform::localizedString(QString::fromUtf8(text)).toStdString(), text);
    platform::setLocalizationLanguages({});
}

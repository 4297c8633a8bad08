// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/CommandHelp.h"

#include "control/KeyText.h"
#include "platform/base/Localization.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// Keys of localized texts.
constexpr const char* gestureNames[] = {"",         "Double Click", "Middle Button", "Back Button", "Forward Button",
                                        "Wheel Up", "Wheel Down"};

QString keysOf(const Command& command) {
    QStringList keys;
    for (const CommandKey& key : command.keys)
        if (key.character && key.shown == CommandKey::Shown::yes)
            keys.append(readableKeyText(key.chord()));
    if (command.gesture != MouseGesture::none)
        keys.append(
            platform::localizedString(QString::fromUtf8(gestureNames[static_cast<std::size_t>(command.gesture)])));
    keys.removeDuplicates(); // one key may mean the command by two takers
    return keys.join(u'/');
}

} // namespace

std::vector<HelpLine> helpLines(std::span<const Command> commands) {
    std::vector<HelpLine> lines;
    for (const Section section : sections) {
        for (const Command& command : commands) {
            const std::string_view text = command.help.empty() ? keyTitleOf(command) : command.help;
            const QString keys = keysOf(command);
            if (command.section != section || text.empty() || keys.isEmpty())
                continue;
            const auto isIts = [&](const HelpLine& line) { return line.section == section && line.text == text; };
            const auto line = std::ranges::find_if(lines, isIts);
            if (line == lines.end())
                lines.push_back({section, {keys}, text});
            else if (!line->keys.contains(keys))
                line->keys.append(keys);
        }
    }
    return lines;
}

std::vector<HelpGroup> helpGroups(std::span<const Command> commands) {
    constexpr std::pair<Section, std::string_view> titles[] = {
        {Section::playback, "Watch and move through the movie"},
        {Section::volume, "Louder, softer, silent"},
        {Section::subtitles, "Read along"},
        {Section::movie, "See the picture larger, and what is playing"},
        {Section::playlist, "Choose among the movies"},
        {Section::window, "Move to another screen"},
        {Section::file, "Open, set up and quit"},
        {Section::help, "Find help"},
    };
    static_assert(std::size(titles) == sections.size());
    const std::vector<HelpLine> lines = helpLines(commands);
    std::vector<HelpGroup> groups;
    for (const auto& [section, title] : titles) {
        HelpGroup group{title, {}};
        std::ranges::copy_if(lines, std::back_inserter(group.lines),
                             [wanted = section](const HelpLine& line) { return line.section == wanted; });
        if (!group.lines.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

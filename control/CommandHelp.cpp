// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/CommandHelp.h"

#include "platform/base/Localization.h"
#include "platform/window/Events.h"

#include <algorithm>

namespace {

struct KeyName {
    char16_t character;
    QStringView portable;
    QStringView readable;
};

constexpr KeyName keyNames[] = {
    {platform::functionKey::up, u"Up", u"\u2191"},
    {platform::functionKey::down, u"Down", u"\u2193"},
    {platform::functionKey::left, u"Left", u"\u2190"},
    {platform::functionKey::right, u"Right", u"\u2192"},
    {platform::functionKey::f1, u"F1", u"F1"},
    {platform::functionKey::pageUp, u"PgUp", u"Page Up"},
    {platform::functionKey::pageDown, u"PgDown", u"Page Down"},
    {platform::functionKey::escape, u"Esc", u"Esc"},
    {platform::functionKey::tab, u"Tab", u"Tab"},
    {platform::functionKey::space, u"Space", u"Space"},
    {u'-', u"-", u"\u2212"},
};

QString keyText(const CommandKey& key, QStringView KeyName::*form, QStringView superKey) {
    QString text;
    if (key.modifiers & platform::modifier::command)
        text += superKey.toString() + u'+';
    if (key.modifiers & platform::modifier::control)
        text += QStringLiteral("Ctrl+");
    if (key.modifiers & platform::modifier::option)
        text += QStringLiteral("Alt+");
    if (key.modifiers & platform::modifier::shift)
        text += QStringLiteral("Shift+");
    const auto* name = std::ranges::find(keyNames, key.character, &KeyName::character);
    return text + (name != std::end(keyNames) ? (name->*form).toString() : QString(QChar(key.character).toUpper()));
}

/// Keys of localized texts.
constexpr const char* gestureNames[] = {"",         "Double Click", "Middle Button", "Back Button", "Forward Button",
                                        "Wheel Up", "Wheel Down"};

QString keysOf(const Command& command) {
    QStringList keys;
    for (const CommandKey& key : command.keys)
        if (key.character && key.shown == CommandKey::Shown::yes)
            keys.append(readableKeyText(key));
    if (command.gesture != MouseGesture::none)
        keys.append(
            platform::localizedString(QString::fromUtf8(gestureNames[static_cast<std::size_t>(command.gesture)])));
    keys.removeDuplicates(); // one key may mean the command by two takers
    return keys.join(u'/');
}

} // namespace

QString portableKeyText(const CommandKey& key) {
    return keyText(key, &KeyName::portable, u"Meta");
}

QString readableKeyText(const CommandKey& key) {
    return keyText(key, &KeyName::readable, u"Super");
}

std::vector<HelpLine> helpLines(std::span<const Command> commands) {
    std::vector<HelpLine> lines;
    for (const Section section : sections) {
        for (const Command& command : commands) {
            if (command.section != section || command.help.empty())
                continue;
            const auto isIts = [&](const HelpLine& line) {
                return line.section == section && line.text == command.help;
            };
            const auto line = std::ranges::find_if(lines, isIts);
            if (line == lines.end())
                lines.push_back({section, {keysOf(command)}, command.help});
            else if (!keysOf(command).isEmpty() && !line->keys.contains(keysOf(command)))
                line->keys.append(keysOf(command));
        }
    }
    return lines;
}

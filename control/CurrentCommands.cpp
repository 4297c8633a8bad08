// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/CurrentCommands.h"

#include "control/KeyBindings.h"
#include "control/KeyText.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/Menu.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <algorithm>

CurrentCommands::CurrentCommands(const Environment& environment)
    : _environment(environment)
    , _commands(commands().begin(), commands().end()) {
    read();
    _changed = environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto& changed) {
        if (changed.key == kQVCommandKeys)
            read();
    });
}

void CurrentCommands::read() {
    KeyBindings bindings(commands());
    QStringList leftOut;
    bindings.read(_environment.settings.objectForKey(kQVCommandKeys), leftOut);
    if (!leftOut.isEmpty())
        logAlways("%@: WARNING: Left out of %@: %@", "CurrentCommands", kQVCommandKeys,
                  leftOut.join(QStringLiteral(", ")));
    std::ranges::copy(bindings.commands(), _commands.begin());
}

const Command* CurrentCommands::withName(std::string_view name) const {
    const auto found = std::ranges::find(_commands, name, &Command::name);
    return found == _commands.end() ? nullptr : &*found;
}

void CurrentCommands::showKey(platform::MenuItem& item, std::string_view command) const {
    item.shortcut.clear();
    item.keyHint.clear();
    const Command* shown = withName(command);
    if (shown && !shown->keys.front().character && !shown->menu.keyOf.empty())
        shown = withName(shown->menu.keyOf);
    if (!shown)
        return;
    const auto shortcut = std::ranges::find(shown->keys, KeyTaker::menu, &CommandKey::taker);
    if (shortcut != shown->keys.end())
        item.shortcut = portableKeyText(shortcut->chord());
    else if (shown->keys.front().character)
        item.keyHint = portableKeyText(shown->keys.front().chord());
}

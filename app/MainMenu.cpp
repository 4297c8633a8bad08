// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"

#include "control/CommandHelp.h"
#include "platform/base/Localization.h"

#include <algorithm>

MainMenu::MainMenu() {
    for (const Section section : sections)
        _menus[static_cast<std::size_t>(section)] =
            &_bar.addSubmenu(platform::localizedString(QString::fromUtf8(sectionTitle(section))));
    for (const Command& command : commands())
        if (!command.menu.title.empty())
            addItem(command);
}

void MainMenu::addItem(const Command& command) {
    platform::Menu& menu = this->menu(command.section);
    const QString title = platform::localizedString(QString::fromUtf8(command.menu.title));
    if (command.menu.opens == MenuPlace::Opens::menu)
        _recentMenu = &menu.addSubmenu(title);
    else
        addPlainItem(menu, title, command);
    if (command.menu.separator == Separator::after)
        menu.addSeparator();
}

void MainMenu::addPlainItem(platform::Menu& menu, const QString& title, const Command& command) {
    platform::MenuItem& item = menu.addItem(title, QString::fromUtf8(command.operation.name), command.argument);
    const Command& shown = command.menu.keyOf.empty() ? command : *commandWithName(command.menu.keyOf);
    const auto shortcut = std::ranges::find(shown.keys, KeyTaker::menu, &CommandKey::taker);
    if (shortcut != shown.keys.end())
        item.shortcut = portableKeyText(*shortcut);
    else if (shown.keys.front().character)
        item.keyHint = portableKeyText(shown.keys.front());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"

#include "platform/base/Localization.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

MainMenu::MainMenu(const Environment& environment, const CurrentCommands& commands)
    : _commands(commands) {
    for (const Section section : sections)
        _menus[static_cast<std::size_t>(section)] =
            &_bar.addSubmenu(platform::localizedString(QString::fromUtf8(sectionTitle(section))));
    for (const Command& command : _commands.all())
        if (!command.menu.title.empty())
            addItem(command);
    _keysChanged = environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto& changed) {
        if (changed.key == kQVCommandKeys)
            showKeys();
    });
}

void MainMenu::addItem(const Command& command) {
    platform::Menu& menu = this->menu(command.section);
    const QString title = platform::localizedString(QString::fromUtf8(command.menu.title));
    if (command.menu.opens == MenuPlace::Opens::menu)
        _submenus[command.name] = &menu.addSubmenu(title);
    else
        _commands.showKey(menu.addItem(title, QString::fromUtf8(command.operation.name), command.argument),
                          command.name);
    if (command.menu.separator == Separator::after)
        menu.addSeparator();
}

void MainMenu::showKeys() {
    for (platform::Menu* menu : _menus)
        for (int index = 0; index < menu->count(); ++index) {
            platform::MenuItem& item = menu->itemAt(index);
            // A position in a list is nobody's argument.
            const Command* command = commandOfMenuItem(item.action.toStdString(), item.tag);
            if (command && command->argument == item.tag && !command->menu.title.empty())
                _commands.showKey(item, command->name);
        }
}

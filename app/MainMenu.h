// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "control/Commands.h"
#include "control/CurrentCommands.h"
#include "platform/base/NotificationCenter.h"
#include "platform/window/Menu.h"

#include <array>
#include <map>
#include <string_view>

/// The menu bar as a model, made from the table of commands: a menu for each section, an item for each command that has
/// a place in it, with the key that the command has now. The items' actions and tags are those that QVMovieController
/// takes. Main thread.
class MainMenu {
public:
    /// The commands outlive the menu, and were made before.
    MainMenu(const Environment& environment, const CurrentCommands& commands);

    /// The menus of the bar, each a submenu.
    platform::Menu& bar() { return _bar; }
    /// Filled from the playlist, and from the movie's subtitle tracks, by the movie controller.
    platform::Menu& playlistMenu() { return menu(Section::playlist); }
    platform::Menu& subtitlesMenu() { return menu(Section::subtitles); }
    /// That of the movies seen last, which is filled as it opens.
    platform::Menu& recentMenu() { return submenu("open-recent"); }
    /// That of a command which opens one, to be filled as it opens.
    platform::Menu& submenu(std::string_view command) { return *_submenus.at(command); }

private:
    platform::Menu& menu(Section section) { return *_menus[static_cast<std::size_t>(section)]; }
    void addItem(const Command& command);
    void showKeys();

    const CurrentCommands& _commands;
    platform::Menu _bar;
    std::array<platform::Menu*, sections.size()> _menus{};
    std::map<std::string_view, platform::Menu*> _submenus;
    platform::Subscription _keysChanged;
};

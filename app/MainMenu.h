// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"
#include "platform/window/Menu.h"

#include <array>

/// The menu bar as a model, made from the table of commands: a menu for each section, an item for each command that has
/// a place in it. The items' actions and tags are those that QVMovieController takes. Main thread.
class MainMenu {
public:
    MainMenu();

    /// The menus of the bar, each a submenu.
    platform::Menu& bar() { return _bar; }
    /// Filled from the playlist, and from the movie's subtitle tracks, by the movie controller.
    platform::Menu& playlistMenu() { return menu(Section::playlist); }
    platform::Menu& subtitlesMenu() { return menu(Section::subtitles); }
    /// That of the movies seen last, which is filled as it opens.
    platform::Menu& recentMenu() { return *_recentMenu; }

private:
    platform::Menu& menu(Section section) { return *_menus[static_cast<std::size_t>(section)]; }
    void addItem(const Command& command);
    static void addPlainItem(platform::Menu& menu, const QString& title, const Command& command);

    platform::Menu _bar;
    std::array<platform::Menu*, sections.size()> _menus{};
    platform::Menu* _recentMenu = nullptr;
};

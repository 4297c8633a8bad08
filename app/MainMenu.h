// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Menu.h"

/// The menu bar as a model. An item's action is one of the movie controller's (QVMovieController::handlesMenuAction),
/// or one of these, which are the application's: doOpen, quit, showHelp, toggleController, cycleDisplays (tag:
/// direction), performAction (tag: action code). Main thread.
class MainMenu {
public:
    MainMenu();

    /// The menus of the bar, each a submenu.
    platform::Menu& bar() { return _bar; }
    /// Filled from the playlist, and from the movie's subtitle tracks, by the movie controller.
    platform::Menu& playlistMenu() { return *_playlistMenu; }
    platform::Menu& subtitlesMenu() { return *_subtitlesMenu; }

private:
    platform::Menu& addMenu(const char* title);
    void addFileMenu();
    void addMovieMenu();
    void addPlaybackMenu();
    void addVolumeMenu();
    void addSubtitlesMenu();
    void addWindowMenu();
    void addHelpMenu();

    platform::Menu _bar;
    platform::Menu* _playlistMenu = nullptr;
    platform::Menu* _subtitlesMenu = nullptr;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"

#include "context/CommandTarget.h"
#include "control/VolumeSteps.h"
#include "platform/base/Localization.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"

using platform::localizedString;
using platform::Menu;
using platform::MenuItem;

namespace {

MenuItem& add(Menu& menu, const char* title, const char* action, int tag = 0) {
    return menu.addItem(localizedString(QString::fromUtf8(title)), QString::fromUtf8(action), tag);
}

/// With a shortcut that the menu acts on.
void addWithShortcut(Menu& menu, const char* title, const char* action, int tag, const char* shortcut) {
    add(menu, title, action, tag).shortcut = QString::fromUtf8(shortcut);
}

/// With a key that the keyboard map acts on; the menu only shows it.
void addWithHint(Menu& menu, const char* title, const char* action, int tag, const char* keyHint) {
    add(menu, title, action, tag).keyHint = QString::fromUtf8(keyHint);
}

} // namespace

MainMenu::MainMenu() {
    addFileMenu();
    addMovieMenu();
    addPlaybackMenu();
    addVolumeMenu();
    _playlistMenu = &addMenu("Playlist");
    addSubtitlesMenu();
    addWindowMenu();
    addHelpMenu();
}

Menu& MainMenu::addMenu(const char* title) {
    return _bar.addSubmenu(localizedString(QString::fromUtf8(title)));
}

void MainMenu::addFileMenu() {
    Menu& menu = addMenu("File");
    addWithShortcut(menu, "Open...", "doOpen", 0, "Ctrl+O");
    menu.addSeparator();
    addWithShortcut(menu, "Quit", "quit", 0, "Ctrl+Q");
}

void MainMenu::addMovieMenu() {
    Menu& menu = addMenu("Movie");
    addWithHint(menu, "Half Size", "changeSize", movieSize::half, "0");
    addWithHint(menu, "Normal Size", "changeSize", movieSize::normal, "1");
    addWithHint(menu, "Double Size", "changeSize", movieSize::twice, "2");
    addWithHint(menu, "Full Size", "changeSize", movieSize::fitScreen, "3");
    addWithHint(menu, "Fit Width", "changeSize", movieSize::fitWidth, "4");
    addWithHint(menu, "Fit Height", "changeSize", movieSize::fitHeight, "5");
    menu.addSeparator();
    addWithHint(menu, "Bigger", "changeSize", movieSize::bigger, "+");
    addWithHint(menu, "Smaller", "changeSize", movieSize::smaller, "-");
    menu.addSeparator();
    addWithHint(menu, "Show Controller", "toggleController", 0, "C");
    addWithHint(menu, "Next Display", "cycleDisplays", 1, "D");
    addWithHint(menu, "Previous Display", "cycleDisplays", -1, "Shift+D");
}

void MainMenu::addPlaybackMenu() {
    Menu& menu = addMenu("Playback");
    addWithHint(menu, "Play", "startStop", 0, "Space");
    addWithHint(menu, "Fast Forward", "fastForwardRewind", 1, "Right");
    addWithHint(menu, "Rewind", "fastForwardRewind", -1, "Left");
    menu.addSeparator();
    addWithHint(menu, "Jump Forward", "jump", 1, "Ctrl+Right");
    addWithHint(menu, "Jump Backward", "jump", -1, "Ctrl+Left");
    menu.addSeparator();
    addWithHint(menu, "Beginning", "beginningEnd", -1, "Alt+Left");
    addWithHint(menu, "End", "beginningEnd", 1, "Alt+Right");
    menu.addSeparator();
    addWithShortcut(menu, "Next Movie", "playPrevNext", 1, "PgDown");
    addWithShortcut(menu, "Previous Movie", "playPrevNext", -1, "PgUp");
    menu.addSeparator();
    addWithHint(menu, "Looping Off", "changeLooping", looping::off, "L");
    add(menu, "Loop One", "changeLooping", looping::one);
    add(menu, "Loop All", "changeLooping", looping::all);
}

void MainMenu::addVolumeMenu() {
    Menu& menu = addMenu("Volume");
    addWithHint(menu, "Volume Up", "changeVolume", volumeControl::up, "Up");
    addWithHint(menu, "Volume Down", "changeVolume", volumeControl::down, "Down");
    menu.addSeparator();
    add(menu, "Normal Volume", "changeVolume", volumeControl::atLeastNormal);
    add(menu, "Silent", "changeVolume", volumeControl::silent);
    addWithHint(menu, "Mute", "changeVolume", volumeControl::mute, "M");
}

void MainMenu::addSubtitlesMenu() {
    _subtitlesMenu = &addMenu("Subtitles");
    // A position outside every list: no subtitles.
    addWithHint(*_subtitlesMenu, "None", "changeSubtitles", -1, "S");
    _subtitlesMenu->addSeparator();
}

void MainMenu::addWindowMenu() {
    Menu& menu = addMenu("Window");
    addWithHint(menu, "Next Screen", "performAction", action::nextScreen, "Tab");
    addWithHint(menu, "Previous Screen", "performAction", action::previousScreen, "Shift+Tab");
}

void MainMenu::addHelpMenu() {
    Menu& menu = addMenu("Help");
    addWithShortcut(menu, "Lumaro Help", "showHelp", 0, "F1");
}

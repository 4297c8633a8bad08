// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CurrentTexts.h"
#include "app/MainMenu.h"
#include "app/SubtitlesOverMovie.h"
#include "context/QVAppContext.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/desktop/Application.h"
#include "playback/QVMovieView.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QStringList>

#include <memory>

class LaunchSteps;
class QVFullScreenWindow;
class QVMovieController;

/// The application's delegate and the owner of its main objects: launch, the files handed over, activation, hiding the
/// pointer, termination. One instance; it is gAppController while it lives. Main thread.
class QVAppController final : public QVAppContext,
                              public platform::ApplicationDelegate,
                              public platform::MenuTarget,
                              public DropTarget {
public:
    /// The window and the view in it outlive the controller.
    QVAppController(QVFullScreenWindow& window, QVMovieView& view, MainMenu& menu, LaunchSteps& steps);
    QVAppController(const QVAppController&) = delete;
    QVAppController& operator=(const QVAppController&) = delete;
    ~QVAppController() override;

    platform::Window* window() override;
    MainWindow* mainWindow() override;
    QVMovieView* movieView() override { return &_view; }
    QVPlaylistController* playlist() override;
    QVSubtitlesController* subtitles() override;
    CommandTarget* controller() override;
    platform::Menu* playlistMenu() override { return &_menu.playlistMenu(); }
    platform::Menu* subtitlesMenu() override { return &_menu.subtitlesMenu(); }

    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    bool openFile(const QString& pathOrUrl) override;
    void applicationWillBecomeActive() override;
    void applicationDidBecomeActive() override;
    void applicationWillResignActive() override;
    void applicationDidChangeScreenParameters() override;
    TerminateReply applicationShouldTerminate() override;
    void applicationWillTerminate() override;
    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;

    /// Opens a batch of files, and closes it: its movies go to the playlist.
    void startAddingFiles();
    void finishAddingFiles();
    /// The launch's second half, once the window has faded in.
    void finishLaunching();
    bool isLaunching() const { return _is_launching; }
    void hideCursor();
    void showCursor();
    void scheduleCursorHide() override;
    void doOpen() override;
    void showHelp();

    std::uint32_t draggingEntered(const platform::DraggingInfo& info) override;
    std::uint32_t draggingUpdated(const platform::DraggingInfo& info) override;
    bool performDragOperation(const platform::DraggingInfo& info) override;

    bool validateMenuItem(platform::MenuItem& item) override;
    void performMenuItem(const platform::MenuItem& item) override;

private:
    QVMovieController* movieController();
    void autohideCursor();
    void cleanup();
    void preferencesChanged(const QVPreferencesChangedNotification& notification);
    void lowerWindow();

    QVFullScreenWindow& _window;
    QVMovieView& _view;
    MainMenu& _menu;
    LaunchSteps& _steps;
    std::unique_ptr<QVPlaylistController> _playlist;
    SubtitlesOverMovie _subtitleScene;
    std::unique_ptr<QVSubtitlesController> _subtitles;
    std::unique_ptr<QVMovieController> _controller;
    CurrentTexts _texts;
    bool _is_adding_files = false;
    bool _is_should_replace = true;
    QStringList _added_files;
    bool _pause_forced = false;
    bool _window_hidden = false;
    bool _is_launching = true;
    bool _cleanedUp = false;
    std::unique_ptr<platform::Timer> _autohide_cursor_timer;
    std::unique_ptr<platform::Timer> _launchTimer;
    std::unique_ptr<platform::Timer> _batchTimer;
    float _savedBrightness = 1.0F;
    platform::Subscription _preferencesChanged;
};

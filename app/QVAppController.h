// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ForcedBrightness.h"
#include "context/Environment.h"
#include "control/ApplicationServices.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/desktop/Application.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <memory>

namespace platform {
class Bundle;
class Desktop;
class Menu;
class MovieToolkit;
} // namespace platform

class Activation;
class AddedSubtitles;
class CurrentCommands;
class BackdropView;
class CommandTarget;
class FileIntake;
class LaunchSteps;
class MainMenu;
class OnScreenDisplay;
class OpenPanels;
class PointerAutohide;
class PlaylistSaving;
class QVFullScreenWindow;
class QVMovieView;
class QVPlaylistController;
class QVSubtitlesController;
class RecentMovies;
class RememberedMovies;
class SavedState;
class StorageTroubles;

/// The application's delegate: launch, changes of the screens, termination. What is handed over, activation and
/// the hiding of the pointer have objects of their own, to which it passes on what it is told. Main thread.
class QVAppController final : public platform::ApplicationDelegate, public ApplicationServices {
public:
    /// All outlive the controller.
    struct Collaborators {
        platform::Desktop& desktop;
        platform::MovieToolkit& toolkit;
        const platform::Bundle& bundle;
        LaunchSteps& steps;
        QVFullScreenWindow& window;
        QVMovieView& view;
        BackdropView& backdrop;
        QVPlaylistController& playlist;
        QVSubtitlesController& subtitles;
        CommandTarget& controller;
        OnScreenDisplay& display;
        MainMenu& menu;
        PointerAutohide& pointer;
        FileIntake& files;
        OpenPanels& panels;
        PlaylistSaving& saving;
        Activation& activation;
        SavedState& state;
        RememberedMovies& memory;
        StorageTroubles& storageTroubles;
        RecentMovies& recent;
        const CurrentCommands& commands;
        AddedSubtitles& addedSubtitles;
    };
    QVAppController(const Environment& environment, const Collaborators& collaborators);
    QVAppController(const QVAppController&) = delete;
    QVAppController& operator=(const QVAppController&) = delete;
    ~QVAppController() override;

    QVFullScreenWindow& window() const { return _with.window; }
    QVMovieView& movieView() const { return _with.view; }
    QVPlaylistController& playlist() const { return _with.playlist; }
    QVSubtitlesController& subtitles() const { return _with.subtitles; }
    CommandTarget& controller() const { return _with.controller; }
    platform::Menu& playlistMenu() const;
    platform::Menu& subtitlesMenu() const;

    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    bool openFile(const QString& pathOrUrl) override;
    void applicationWillBecomeActive() override;
    void applicationDidBecomeActive() override;
    void applicationWillResignActive() override;
    void applicationDidChangeScreenParameters() override;
    TerminateReply applicationShouldTerminate() override;
    void applicationLostDisplay() override;
    void applicationSavesSession() override;
    void applicationWillTerminate() override;
    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;

    /// Opens a batch of files, and closes it: its movies go to the playlist.
    void startAddingFiles();
    void finishAddingFiles();
    /// The launch's second half, once the window has faded in. Ends early where the program is told to end meanwhile.
    void finishLaunching();
    bool isLaunching() const;
    /// What was being watched is kept for the next launch; and is put back, without waiting for it.
    void saveState();
    void restoreState();
    void hideCursor();
    void showCursor();
    void scheduleCursorHide();
    void doOpen() override;
    void doOpenFolder() override;
    void addSubtitles() override;
    void doOpenURL(std::int32_t type) override;
    void openRecent(std::int32_t position) override;
    void clearRecent() override;
    bool hasRecent() const override;
    void savePlaylist() override;
    void showHelp() override;
    void showPlaylist() override;
    std::optional<double> askForTime(double now, double duration) override;
    void showInformation() override;
    void showPreferences() override;
    void donate() override;
    bool canDonate() const override;
    void cycleDisplays(std::int32_t direction) override;

private:
    void endIntake();
    void keepForNextLaunch();
    void cleanup();
    // The steps of finishLaunching, in their order.
    void sayStorageTroubles();
    void runFirstTimeConfig();
    void askDonation();
    void checkVersionAtLaunch();
    void offerHint();
    void runLaunchAction();
    void openFilesOfLaunch();
    void restoreDisplay();
    QString infoText(const char* key) const;
    void preferencesChanged(const QVPreferencesChangedNotification& notification);

    Environment _environment;
    Collaborators _with;
    std::unique_ptr<platform::Timer> _launchTimer;
    bool _is_display_restored = false;
    bool _is_terminating = false;
    ForcedBrightness _brightness;
    platform::Subscription _preferencesChanged;
};

/// The application controller, as the composition publishes it; null outside its life. Components are handed what they
/// ask instead.
extern QVAppController* gAppController;

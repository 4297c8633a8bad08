// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Activation.h"
#include "app/AddedSubtitles.h"
#include "app/CommandRelay.h"
#include "app/CurrentTexts.h"
#include "app/Drops.h"
#include "app/FileIntake.h"
#include "app/HeldSubtitles.h"
#include "app/MainMenu.h"
#include "app/MovieInformation.h"
#include "app/OpenPanels.h"
#include "app/PlaylistSaving.h"
#include "app/PointerAutohide.h"
#include "app/QVAppController.h"
#include "app/QVFullScreenWindow.h"
#include "app/RecentMovies.h"
#include "app/RememberedMovies.h"
#include "app/SavedState.h"
#include "app/StorageTroubles.h"
#include "app/SubtitlesOverMovie.h"
#include "context/Environment.h"
#include "control/AppleRemote.h"
#include "control/ComputerSleep.h"
#include "control/CurrentCommands.h"
#include "control/QVMovieController.h"
#include "control/RemoteControl.h"
#include "overlays/OverlaysOnDemand.h"
#include "overlays/StylePreview.h"
#include "playback/BackdropView.h"
#include "playback/BarPointer.h"
#include "playback/MovieServices.h"
#include "playback/QVMovieView.h"
#include "playback/StillSaving.h"
#include "playback/SubtitleDiscovery.h"
#include "playlist/QVPlaylistController.h"
#include "subtitles/QVSubtitlesController.h"
#include "subtitles/SecondSubtitles.h"
#include "subtitles/SubtitleRegistry.h"

/// The player's main objects, made and joined: what each needs is handed to it here. Each is made after those that it
/// asks, and goes before them; where two ask each other, the lower one asks through an interface that is joined here.
/// Main thread.
class MainObjects {
public:
    /// What the player stands on; all outlive it.
    struct Platform {
        platform::Desktop& desktop;
        platform::MovieToolkit& toolkit;
        const platform::Bundle& bundle;
        /// Of what is remembered of movies.
        platform::SettingsStorage& movies;
        platform::RecentlyUsed& recentlyUsed;
    };
    MainObjects(const Environment& environment, const Platform& platform, LaunchSteps& steps);
    MainObjects(const MainObjects&) = delete;
    MainObjects& operator=(const MainObjects&) = delete;
    ~MainObjects();

    QVFullScreenWindow& window() { return _window; }
    QVMovieView& view() { return _view; }
    BackdropView& backdrop() { return _backdrop; }
    MainMenu& menu() { return _menu; }
    QVPlaylistController& playlist() { return _playlist; }
    OnScreenDisplay& display() { return _display; }
    QVAppController& application() { return _application; }
    QVMovieController& controller() { return _controller; }
    const MovieInformation& information() const { return _information; }
    const CurrentCommands& commands() const { return _currentCommands; }

private:
    /// What the process-wide accessors answer while it lives.
    class Publication {
    public:
        Publication(QVAppController& application, FeedbackOnDemand& feedback, OSDOnDemand& display,
                    AppleRemote& remote);
        Publication(const Publication&) = delete;
        Publication& operator=(const Publication&) = delete;
        ~Publication();
    };

    CurrentCommands _currentCommands;
    CommandRelay _commands;
    PointerAutohide _pointer;
    FileIntake _files;
    OpenPanels _openPanels;
    QVFullScreenWindow _window;
    FeedbackOnDemand _feedback;
    SubtitleRegistry _subtitleReaders;
    SubtitleDiscovery _subtitleDiscovery;
    Drops _drops;
    BackdropView _backdrop;
    QVMovieView _view;
    BarPointer _bars;
    RememberedMovies _memory;
    StorageTroubles _storageTroubles;
    RecentMovies _recent;
    QVPlaylistController _playlist;
    PlaylistSaving _saving;
    SubtitlesOverMovie _subtitleScene;
    QVSubtitlesController _subtitles;
    SecondSubtitles _secondSubtitles;
    AddedSubtitles _addedSubtitles;
    HeldSubtitles _heldSubtitles;
    SavedState _state;
    StylePreview _stylePreview;
    StillSaving _stills;
    CurrentTexts _texts;
    OSDOnDemand _display;
    MovieInformation _information;
    MainMenu _menu;
    Activation _activation;
    QVAppController _application;
    QVMovieController _controller;
    AppleRemote _remote;
    RemoteControl _remoteControl;
    ComputerSleep _computerSleep;
    Publication _publication{_application, _feedback, _display, _remote};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/MainWindow.h"
#include "context/Notifications.h"
#include "control/ApplicationServices.h"
#include "control/CurrentCommands.h"
#include "control/QVMovieController.h"
#include "platform/base/Localization.h"
#include "playback/StillSaving.h"
#include "playlist/MovieMemory.h"
#include "playlist/QVPlaylistController.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitlesController.h"
#include "subtitles/SecondSubtitles.h"
#include "subtitles/SubtitleView.h"
#include "tests/support/FakeSubtitles.h"
#include "tests/support/PlaybackRig.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The movie controller over the real view and playlist, a scripted player and a run loop that the test moves.
class MovieControllerRig : public testing::Test, protected PlaybackRig {
protected:
    class RecordingMainWindow final : public MainWindow {
    public:
        QStringList calls;
        platform::Screen adopted;
        void show() override { calls << "show"; }
        void hide() override { calls << "hide"; }
        double fadingOutInterval() const override { return 0.5; }
        void adoptScreen(const platform::Screen& screen) override { adopted = screen; }
        void addTrackingRects() override { calls << "add"; }
        void removeTrackingRects() override { calls << "remove"; }
    };

    class RecordingServices final : public ApplicationServices {
    public:
        QStringList calls;
        void doOpen() override { calls << "open"; }
        void doOpenFolder() override { calls << "open folder"; }
        void doOpenURL(std::int32_t type) override { calls << QString("open URL %1").arg(type); }
        void addSubtitles() override { calls << "add subtitles"; }
        void openRecent(std::int32_t position) override { calls << QString("recent %1").arg(position); }
        void clearRecent() override { calls << "clear"; }
        bool hasRecent() const override { return calls.isEmpty(); }
        void savePlaylist() override { calls << "save playlist"; }
        void showHelp() override { calls << "help"; }
        void showInformation() override { calls << "information"; }
        void showPlaylist() override { calls << "playlist"; }
        std::optional<double> time; // that the user answers
        std::optional<double> askForTime(double now, double duration) override {
            calls << QString("time of %1/%2").arg(now).arg(duration);
            return time;
        }
        void showPreferences() override { calls << "preferences"; }
        bool hasDonationPage = false;
        void donate() override { calls << "donate"; }
        bool canDonate() const override { return hasDonationPage; }
        void cycleDisplays(std::int32_t direction) override { calls << QString("display %1").arg(direction); }
        void windowDidBecomeKey(platform::Window&) override { calls << "became key"; }
        void windowDidResignKey(platform::Window&) override { calls << "resigned key"; }
    };
    /// The movie's tracks, without anything that shows them.
    class NoViews final : public SubtitleScene {
        std::unique_ptr<SubtitleView> createTextView() override { return nullptr; }
        std::unique_ptr<ImageSubtitleView> createImageView() override { return nullptr; }
        std::shared_ptr<SubtitleOwner> ownerOf(const std::shared_ptr<QVMovie>& movie) override { return movie; }
        std::shared_ptr<SubtitleOwner> shownMovie() override { return nullptr; }
    };
    class RecordingSubtitles final : public QVSubtitlesController {
    public:
        using QVSubtitlesController::QVSubtitlesController;
        QStringList calls;
        void setCurrenWithIndex(std::int32_t index) override { calls << QString("track %1").arg(index); }
        void cycleSubtitles(int direction) override { calls << QString("cycle %1").arg(direction); }
        QString currentInfoAsString() const override { return "Subtitles: these"; }
        QString losses;
        QString lossesAsString() const override { return losses; }
    };

    MovieControllerRig()
        : PlaybackRig({{kQVControllerVisible, false},
                       {kQVDefaultMovieSize, movieSize::normal},
                       {kQVJumpInterval, 10},
                       {kQVPlaylistAutoPlay, false},
                       {kQVPlaylistDefaultArrangement, 0}}) {
        commands.target = &controller;
    }
    ~MovieControllerRig() override { commands.target = nullptr; }

    void add(const QList<QUrl>& urls) {
        playlist.addURLs(urls, Adding::append, Starting::no);
        settings.runLoop.advance(0.02);
    }
    void addMovies(int count) {
        QList<QUrl> urls;
        for (int number = 1; number <= count; ++number)
            urls << QUrl::fromLocalFile(QString("/movies/movie %1.mp4").arg(number));
        add(urls);
    }
    std::string posted() const { return confirmations.last.toStdString(); }
    static std::string text(const char* words, const QStringList& arguments = {}) {
        return platform::localizedFormat(words, arguments).toStdString();
    }
    bool press(char16_t character, std::uint32_t modifiers = 0, bool repeat = false) {
        platform::KeyEvent event;
        event.charactersIgnoringModifiers = QChar(character);
        event.modifierFlags = modifiers;
        event.isRepeat = repeat;
        return controller.processKeyboardEvent(event);
    }
    static platform::MenuItem item(const char* action, int tag) {
        platform::MenuItem made;
        made.action = action;
        made.tag = tag;
        made.state = true;
        return made;
    }
    void perform(const char* action, int tag) {
        platform::MenuItem chosen = item(action, tag);
        controller.performMenuItem(chosen);
    }
    static std::string titles(const platform::Menu& menu) {
        QStringList list;
        for (int index = 0; index < menu.count(); ++index)
            list << (menu.itemAt(index).separator ? "-" : menu.itemAt(index).title);
        return list.join('|').toStdString();
    }

    RecordingMainWindow mainWindow;
    RecordingServices services;
    RecordingPointer pointer;
    MovieMemory memory;
    QVPlaylistController playlist{settings.environment,
                                  {movies, view, desktop, commands, openPanel, confirmations, memory}};
    NoViews scene;
    RecordingSubtitles subtitles{settings.environment, scene};
    SecondSubtitles secondSubtitles{settings.environment, scene, subtitles};
    platform::Menu playlistMenu, subtitlesMenu;
    CurrentCommands currentCommands{settings.environment};
    QTemporaryDir pictures;
    StillSaving stills{settings.environment, view, confirmations, [this] { return pictures.path(); }};
    QVMovieController controller{settings.environment,
                                 {window, mainWindow, view, playlist, subtitles, confirmations, pointer, desktop,
                                  services, playlistMenu, subtitlesMenu, currentCommands, stills, toolkit,
                                  secondSubtitles}};
};

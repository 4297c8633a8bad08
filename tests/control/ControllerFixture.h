// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/context/MainWindow.h"
#include "app/settings/SettingsKeys.h"
#include "control/QVMovieController.h"
#include "overlays/QVFeedbackOverlay.h"
#include "platform/base/Localization.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "subtitles/QVSubtitlesController.h"
#include "tests/support/FakeApp.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/ScriptedToolkit.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <string>

/// The movie controller over the real view and playlist, a scripted player and a run loop that the test moves.
class ControllerFixture : public testing::Test {
protected:
    class RecordingMainWindow final : public MainWindow {
    public:
        QStringList calls;
        platform::Screen adopted;
        void show() override { calls << QStringLiteral("show"); }
        void hide() override { calls << QStringLiteral("hide"); }
        double fadingOutInterval() const override { return 0.5; }
        void adoptScreen(const platform::Screen& screen) override {
            calls << QStringLiteral("adopt");
            adopted = screen;
        }
        void addTrackingRects() override { calls << QStringLiteral("add"); }
        void removeTrackingRects() override { calls << QStringLiteral("remove"); }
    };

    class RecordingSubtitles final : public QVSubtitlesController {
    public:
        std::vector<int> cycles;
        std::vector<std::int32_t> positions;
        void cycleSubtitles(int direction) override { cycles.push_back(direction); }
        void setCurrenWithIndex(std::int32_t index) override { positions.push_back(index); }
        QString currentInfoAsString() const override { return QStringLiteral("track"); }
    };

    ControllerFixture() {
        settings.defaults().setBool(true, kQVDisplayFeedback);
        settings.defaults().setBool(false, kQVControllerVisible);
        settings.defaults().setInteger(movieSize::normal, kQVDefaultMovieSize);
        settings.defaults().setInteger(10, kQVJumpInterval);
        settings.defaults().setBool(false, kQVPlaylistAutoPlay);
        settings.defaults().setInteger(0, kQVPlaylistDefaultArrangement);
        settings.defaults().setInteger(looping::off, kQVPlaylistDefaultLooping);
        window.contentView().addSubview(view);
        app.windowObject = &window;
        app.mainWindowObject = &mainWindow;
        app.movieViewObject = &view;
        app.playlistObject = &playlist;
        app.subtitlesObject = &subtitles;
        app.playlistMenuObject = &playlistMenu;
        app.subtitlesMenuObject = &subtitlesMenu;
        controller = std::make_unique<QVMovieController>();
        app.controllerObject = controller.get();
        feedback().postFeedback(QString());
    }
    ~ControllerFixture() override { app.controllerObject = nullptr; }

    void addMovies(int count) {
        QList<QUrl> urls;
        for (int number = 1; number <= count; ++number)
            urls << QUrl::fromLocalFile(QStringLiteral("/movies/movie %1.mp4").arg(number));
        playlist.addURLs(urls, Adding::append, Starting::no);
    }

    static QVFeedbackOverlay& feedback() { return QVFeedbackOverlay::sharedFeedbackOverlay(); }
    static std::string posted() { return feedback().text().toStdString(); }
    static std::string text(const char* key, const QStringList& arguments = {}) {
        return platform::localizedFormat(QString::fromUtf8(key), arguments).toStdString();
    }
    ScriptedPlayer& player() { return toolkit.scriptedPlayer; }

    bool press(char16_t character, std::uint32_t modifiers = 0, bool repeat = false) {
        platform::KeyEvent event;
        event.charactersIgnoringModifiers = QChar(character);
        event.modifierFlags = modifiers;
        event.isRepeat = repeat;
        return controller->processKeyboardEvent(event);
    }
    bool release(char16_t character) {
        platform::KeyEvent event;
        event.type = platform::KeyEvent::Type::up;
        event.charactersIgnoringModifiers = QChar(character);
        return controller->processKeyboardEvent(event);
    }

    TestSettings settings;
    FakeDesktop desktop;
    FakeApp app;
    ScriptedToolkit toolkit;
    platform::Window window{QRectF(0, 0, 1440, 900)};
    RecordingMainWindow mainWindow;
    QVMovieView view{toolkit.scriptedPlayer};
    QVPlaylistController playlist;
    RecordingSubtitles subtitles;
    platform::Menu playlistMenu, subtitlesMenu;
    std::unique_ptr<QVMovieController> controller;
};

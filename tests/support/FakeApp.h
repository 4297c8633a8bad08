// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"
#include "context/QVAppContext.h"
#include "playlist/OpenPanel.h"

#include <utility>

/// The application controller and the movie controller in one, recording what they are asked. It is gAppController
/// while it lives. The main objects are those that the test puts in; null to begin with.
class FakeApp final : public QVAppContext, public CommandTarget, public OpenPanel {
public:
    FakeApp()
        : _before(std::exchange(gAppController, this)) {}
    FakeApp(const FakeApp&) = delete;
    FakeApp& operator=(const FakeApp&) = delete;
    ~FakeApp() override { gAppController = _before; }

    platform::Window* windowObject = nullptr;
    MainWindow* mainWindowObject = nullptr;
    QVMovieView* movieViewObject = nullptr;
    QVPlaylistController* playlistObject = nullptr;
    QVSubtitlesController* subtitlesObject = nullptr;
    /// Another movie controller, which is asked instead of being recorded here.
    CommandTarget* controllerObject = nullptr;
    platform::Menu* playlistMenuObject = nullptr;
    platform::Menu* subtitlesMenuObject = nullptr;

    int actions = 0;
    bool isForceMuted = false;
    int cursorHides = 0;
    int opens = 0;

    platform::Window* window() override { return windowObject; }
    MainWindow* mainWindow() override { return mainWindowObject; }
    QVMovieView* movieView() override { return movieViewObject; }
    QVPlaylistController* playlist() override { return playlistObject; }
    QVSubtitlesController* subtitles() override { return subtitlesObject; }
    CommandTarget* controller() override { return this; }
    platform::Menu* playlistMenu() override { return playlistMenuObject; }
    platform::Menu* subtitlesMenu() override { return subtitlesMenuObject; }
    void scheduleCursorHide() override { ++cursorHides; }
    void doOpen() override { ++opens; }
    void windowDidBecomeKey(platform::Window&) override {}
    void windowDidResignKey(platform::Window&) override {}

    void performAction(std::int32_t action, Feedback feedback) override {
        ++actions;
        if (controllerObject)
            controllerObject->performAction(action, feedback);
    }
    bool processKeyboardEvent(const platform::KeyEvent& event) override {
        return controllerObject && controllerObject->processKeyboardEvent(event);
    }
    bool forceMuted() const override { return controllerObject ? controllerObject->forceMuted() : isForceMuted; }
    void setForceMuted(bool muted) override {
        isForceMuted = muted;
        if (controllerObject)
            controllerObject->setForceMuted(muted);
    }

private:
    QVAppContext* _before;
};

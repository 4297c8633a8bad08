// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/FeedbackDisplay.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/window/Window.h"
#include "playback/DropTarget.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playback/SubtitleDiscovery.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeSubtitles.h"
#include "tests/support/Posts.h"
#include "tests/support/RecordingCommands.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/ScriptedToolkit.h"
#include "tests/support/TestEnvironment.h"

/// Takes nothing that is dragged in.
class NoDrops final : public DropTarget {
    std::uint32_t draggingEntered(const platform::DraggingInfo&) override { return platform::dragOperation::none; }
    std::uint32_t draggingUpdated(const platform::DraggingInfo&) override { return platform::dragOperation::none; }
    void draggingExited() override {}
    bool performDragOperation(const platform::DraggingInfo&) override { return false; }
};

/// Keeps the confirmation posted last.
class RecordedFeedback final : public FeedbackDisplay {
public:
    QString last;
    void postFeedback(const QString& message) override { last = message; }
    void withdrawFeedback(const QString& message) override {
        if (last == message)
            last.clear();
    }
    double readingTime() const override { return 1.5; }
};

/// A movie view in a window of 1440 by 900 points, on a scripted toolkit, with everything that it asks for at hand.
struct PlaybackRig {
    explicit PlaybackRig(const QVariantMap& stored = {})
        : settings(stored) {
        window.setHost(&host);
        window.contentView().addSubview(view);
    }

    ScriptedPlayer& player() { return toolkit.scriptedPlayer; }
    /// Opens the plain movie of an address.
    std::shared_ptr<QVMovie> open(const QString& address) {
        return QVMovie::movieWithOpened(settings.environment, movies, toolkit.answerOf(QUrl(address)));
    }
    /// Opens it and shows it.
    std::shared_ptr<QVMovie> show(const QString& address = QStringLiteral("file:///movies/a.mp4")) {
        auto movie = open(address);
        view.setMovie(movie);
        return movie;
    }
    template <class Notification>
    void post(const Notification& notification) {
        settings.notifications.post(notification);
    }
    void changePreference(const QString& settingsKey) { post(QVPreferencesChangedNotification{settingsKey, {}}); }

    TestEnvironment settings;
    FakeDesktop desktop;
    ScriptedToolkit toolkit;
    FakeRegistry readers;
    SubtitleDiscovery discovery{settings.runLoop};
    MovieServices movies{toolkit, desktop, readers, discovery};
    RecordingCommands commands;
    RecordingOpenPanel openPanel;
    RecordedFeedback confirmations;
    NoDrops drops;
    RecordingHost host;
    platform::Window window{platform::Rect(0, 0, 1440, 900)};
    QVMovieView view{settings.environment, {toolkit.player(), desktop, commands, confirmations, drops}};
};

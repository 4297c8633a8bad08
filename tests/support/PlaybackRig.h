// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/NotificationCenter.h"
#include "platform/window/Window.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "tests/support/FakeApp.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/ScriptedToolkit.h"
#include "tests/support/TestEnvironment.h"

#include <optional>

/// How often a notification was posted, and the last one.
template <class Notification>
class Posts {
public:
    int count = 0;
    std::optional<Notification> last;

private:
    platform::Subscription _subscription =
        platform::NotificationCenter::defaultCenter().observe<Notification>([this](const Notification& posted) {
            ++count;
            last = posted;
        });
};

/// A movie view in a window of 1440 by 900 points, on a scripted toolkit, with everything that it asks for at hand.
struct PlaybackRig {
    explicit PlaybackRig(const QVariantMap& stored = {})
        : settings(stored) {
        window.setHost(&host);
        window.contentView().addSubview(view);
        app.windowObject = &window;
        app.movieViewObject = &view;
    }

    ScriptedPlayer& player() { return toolkit.scriptedPlayer; }
    /// Opens the plain movie of an address and shows it.
    std::shared_ptr<QVMovie> show(const QString& address = QStringLiteral("file:///movies/a.mp4")) {
        auto movie = QVMovie::movieWithURL(QUrl(address));
        view.setMovie(movie);
        return movie;
    }

    TestEnvironment settings;
    FakeDesktop desktop;
    ScriptedToolkit toolkit;
    FakeApp app;
    RecordingHost host;
    platform::Window window{QRectF(0, 0, 1440, 900)};
    QVMovieView view{toolkit.player()};
};

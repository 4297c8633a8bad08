// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "playback/QVMovie.h"

#include <QString>

#include <functional>
#include <utility>

/// What lists of windows call the main one: the movie's name and the program's, the latter alone without a movie.
/// Main thread.
class WindowTitle {
public:
    /// `show` is called with each title.
    WindowTitle(const Environment& environment, QString program, std::function<void(const QString&)> show)
        : _program(std::move(program))
        , _show(std::move(show)) {
        _changed = environment.notifications.observe<QVPlaylistMovieChangedNotification>([this](const auto& changed) {
            _show(changed.movie ? changed.movie->displayName() + QStringLiteral(" — ") + _program : _program);
        });
    }

private:
    QString _program;
    std::function<void(const QString&)> _show;
    platform::Subscription _changed;
};

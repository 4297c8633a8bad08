// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

class HeldSubtitles;
class QVMovieView;
class QVPlaylistController;
class QVSubtitlesController;

namespace launchAction {
inline constexpr std::int32_t restoreState = 1;
inline constexpr std::int32_t openPanel = 2;
} // namespace launchAction

/// What was being watched: the list, the movie in it, the place in that, and its subtitles. It is kept in the settings,
/// at the end of a run and as a movie plays, where the next launch is to put it back. Main thread.
class SavedState {
public:
    /// All outlive it.
    struct Collaborators {
        QVPlaylistController& playlist;
        QVMovieView& view;
        QVSubtitlesController& subtitles;
        HeldSubtitles& heldSubtitles;
    };
    SavedState(const Environment& environment, const Collaborators& collaborators);

    /// What is saved stays as it is while there is no movie: nothing was put back (yet), and nothing came in its place.
    void saveState();
    /// Puts it back without waiting for it, and without an alert. `restored`, which may be empty, is told once whether
    /// a movie was.
    void restoreState(std::function<void(bool)> restored);

private:
    void movieMoved(const QVMovieInterestingTimeNotification& notification);
    void saveSoon(double seconds);
    /// Where a next launch would put it back.
    bool isWanted() const;

    Environment _environment;
    Collaborators _with;
    std::unique_ptr<platform::Timer> _timer;
    double _dueAt = 0;
    std::int32_t _savedTime = 0;
    platform::Subscription _onTime;
    platform::Subscription _onMovie;
    platform::Subscription _onList;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class QVMovie;
class QVMovieView;
class QVPlaylistController;
class QVStyledOverlay;
class QVSubtitles;

// The notifications by which the components meet. All are posted and delivered on the main thread. They stand here,
// below the components, so that what is drawn over the movie can follow them without knowing who posts them.

/// The movie played to its end.
struct QVMovieCompleteNotification {
    std::shared_ptr<QVMovie> movie;
};

/// The movie was opened, and cannot be played.
struct QVMovieFailedNotification {
    std::shared_ptr<QVMovie> movie;
};

/// A picture is due, the time jumped, or the movie's setTime() moved it.
struct QVMovieInterestingTimeNotification {
    std::shared_ptr<QVMovie> movie;
};

/// The picture's size or place changed.
struct QVMovieViewSizeChangedNotification {
    QVMovieView* view;
};

struct QVMovieVolumeChangedNotification {
    QVMovieView* view;
};

/// The player's time, playing or volume changed as a controller bar shows them.
struct QVPlayerStateChangedNotification {
    QVMovieView* view;
};

/// An add kept at least one movie, or entries were moved or removed by hand.
struct QVPlaylistChangedNotification {
    std::vector<std::shared_ptr<QVMovie>> movies;
};

/// The marks of QVVersionCheckNotification.
inline const QString kQVVersionCheckBegin = QStringLiteral("QVVersionCheckBeginNotification");
inline const QString kQVVersionCheckEnd = QStringLiteral("QVVersionCheckEndNotification");

/// A check for a new version starts, or has ended.
struct QVVersionCheckNotification {
    QString mark;
};

/// Posted by the playlist each time a position is set, with the movie that is now the current one, and the time at
/// which one that was not current begins, in its units.
struct QVPlaylistMovieChangedNotification {
    std::shared_ptr<QVMovie> movie;
    std::int32_t time = 0;
};

struct QVPlaylistLoopingChangedNotification {
    QVPlaylistController* playlist;
};

/// A page on which a style is changed was opened, or closed.
struct QVOverlayStyleEditedNotification {
    /// The style selector key.
    QString key;
    enum class Page { opened, closed };
    Page page;
};

/// An overlay that was hidden begins to show itself, or has faded out.
struct QVOverlayVisibilityChangedNotification {
    QVStyledOverlay* overlay;
};

/// The tracks inside the movie are others than before, or another one of its sound plays.
struct QVMovieTracksChangedNotification {
    std::shared_ptr<QVMovie> movie;
};

/// A worker has read the selected track to its end.
struct QVSubtitlesLoadedNotification {
    std::shared_ptr<QVSubtitles> current;
};

/// Another subtitle track was selected, or the display of subtitles was switched.
struct QVSubtitlesChangedNotification {
    std::shared_ptr<QVSubtitles> current;
};

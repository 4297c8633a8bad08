// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QVMovie;
class QVMovieView;
class QVSubtitlesController;

namespace platform {
struct PlaybackFacts;
} // namespace platform

/// What there is to know about the movie that is shown and how it plays, worded for the user. Main thread.
class MovieInformation {
public:
    struct Line {
        QString label;
        QString value;
        friend bool operator==(const Line&, const Line&) = default;
    };
    struct Group {
        QString title;
        std::vector<Line> lines;
        friend bool operator==(const Group&, const Group&) = default;
    };
    using Groups = std::vector<Group>;

    /// Both outlive it.
    MovieInformation(const QVMovieView& view, const QVSubtitlesController& subtitles)
        : _view(view)
        , _subtitles(subtitles) {}

    /// Calls `completion` soon, with nothing where no movie is shown. A line that does not apply is not there; which
    /// lines there are changes with the movie, its tracks and the way in which it is decoded.
    void ask(std::function<void(const Groups&)> completion) const;

    static Groups groupsOf(const QVMovie& movie, const QString& subtitles, const platform::PlaybackFacts& facts);
    /// As it is copied: a line each, an empty one between groups.
    static QString textOf(const Groups& groups);

private:
    const QVMovieView& _view;
    const QVSubtitlesController& _subtitles;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SubtitleTaker.h"
#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/ReadableFiles.h"

class FeedbackDisplay;
class QVMovieView;
class QVSubtitlesController;

namespace platform {
class Desktop;
} // namespace platform

/// Adds files of subtitles to a movie: those that the user chose, dropped or handed over. Main thread.
class AddedSubtitles final : public SubtitleTaker {
public:
    /// All outlive it. The controller was made before it, so that it knows a new movie's tracks already.
    struct Collaborators {
        platform::Desktop& desktop;
        QVMovieView& view;
        QVSubtitlesController& subtitles;
        FeedbackDisplay& feedback;
    };
    /// The types are extensions in lower case, without dots: those of movies, and those of subtitles.
    AddedSubtitles(const Environment& environment, const Collaborators& collaborators, QStringList movieTypes,
                   QStringList subtitleTypes);

    /// Asks with the desktop's panel.
    void ask();

    bool isCalledSubtitles(const QString& path) const override;
    bool hasMovie() const override;
    void add(const QStringList& paths) override;
    void holdFor(const QStringList& paths, const QString& movie) override;

private:
    void addReadable(const QStringList& paths, const QStringList& readable);
    void movieChanged(const QVPlaylistMovieChangedNotification& notification);

    Environment _environment;
    Collaborators _with;
    QStringList _movieTypes;
    QStringList _subtitleTypes;
    /// What came with a movie that is not shown yet.
    QStringList _held;
    QString _heldFor;
    platform::ReadableFiles _files;
    platform::Subscription _onMovie;
};

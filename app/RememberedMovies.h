// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/FeedbackDisplay.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/ReadableFiles.h"
#include "platform/base/RunLoop.h"
#include "playlist/MovieMemory.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace platform {
class RecentlyUsed;
class SettingsStorage;
} // namespace platform

class CurrentCommands;
class QVMovieView;
class QVSubtitles;

/// Where a movie that was left at this place goes on, in seconds, when it is opened the next time; nothing within its
/// first minute and its last two, and where its end is not known (a duration of 0).
std::optional<double> placeToKeep(double seconds, double duration);

/// That of the storage's file.
inline constexpr std::int32_t rememberedMoviesVersion = 1;

/// What is remembered of the last thousand movies, each by its address and size: where it was left, and with which
/// subtitles. A movie that is opened anew goes on there. QVRememberMovies switches all of it off. Main thread.
///
/// In the storage each movie is a dictionary of its own, under its address: other players may add theirs, and members
/// that this version does not know are kept.
class RememberedMovies final : public MovieMemory {
public:
    /// All outlive it, and none but the view and the storage is used before the first movie is opened.
    struct Collaborators {
        platform::SettingsStorage& storage;
        platform::RecentlyUsed& desktop;
        QVMovieView& view;
        FeedbackDisplay& feedback;
        const CurrentCommands& commands;
        std::function<std::shared_ptr<QVSubtitles>()> currentSubtitles;
        /// The track that the next movie is to come with: its file, and its place among the file's tracks.
        std::function<void(const QString& path, std::uint32_t index)> holdSubtitles;
    };
    RememberedMovies(const Environment& environment, Collaborators collaborators);

    void movieWillChange() override;
    std::int32_t placeOf(QVMovie& movie) override;
    /// Remembers the current movie, and waits until all is on the disk: the run may end.
    void keep();

    /// The addresses of the movies that were seen last, the latest first, at most so many.
    QList<QUrl> recent(qsizetype maximum);
    void forget(const QUrl& address);
    /// Everything, in the desktop's list too. The movie that is shown is not remembered any more.
    void forgetAll();

private:
    bool isOn() const;
    QVariantMap& records();
    void movieChanged(const QVPlaylistMovieChangedNotification& notification);
    void movieMoved(const QVMovieInterestingTimeNotification& notification);
    void restoreTracks(const std::shared_ptr<QVMovie>& movie, const QVariantMap& record);
    void rememberCurrent();
    void prune();
    void store(const QString& address, const QVariantMap& record);
    void write();
    void writeSoon(double seconds);
    void sayWhereItGoesOn(double seconds);

    Environment _environment;
    Collaborators _with;
    std::optional<QVariantMap> _records; // none before they are first asked for
    bool _hasChanged = false;            // since it was given to be written
    bool _hasEverChanged = false;
    bool _hasFailed = false;
    /// That of which nothing is to be kept.
    std::weak_ptr<QVMovie> _unwanted;
    /// Files of subtitles that the current movie is to get back once their drive answers.
    QStringList _awaited;
    platform::ReadableFiles _files;
    std::unique_ptr<platform::Timer> _timer;
    std::unique_ptr<platform::Timer> _desktopTimer;
    /// Ends what was put off when it goes.
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
    platform::Subscription _onMovie;
    platform::Subscription _onTime;
};

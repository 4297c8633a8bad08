// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "playback/MovieServices.h"
#include "playlist/Arrangement.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace platform {
class Desktop;
} // namespace platform

class CommandTarget;
class OpenPanel;
class QVMovie;
class QVMovieView;

/// The position that means none.
inline constexpr std::uint32_t NSNotFound = 0x7FFFFFFF;

/// Whether an add takes the list's place or is appended, and whether it may start to play.
enum class Adding : bool { append, replace };
enum class Starting : bool { no, yes };

/// The ordered list of movies, the position in it, and what happens when a movie and the list end. Main thread.
class QVPlaylistController {
public:
    /// All outlive the playlist.
    struct Collaborators {
        MovieServices movies;
        QVMovieView& view;
        platform::Desktop& desktop;
        CommandTarget& commands;
        OpenPanel& openPanel;
    };
    QVPlaylistController(const Environment& environment, const Collaborators& collaborators);
    QVPlaylistController(const QVPlaylistController&) = delete;
    QVPlaylistController& operator=(const QVPlaylistController&) = delete;
    ~QVPlaylistController();

    /// Opens each URL as a movie and adds those that can be played; the others are reported. True when at least one was
    /// added. The event loop may run meanwhile (alerts, network URLs): an add that is asked for then is carried out
    /// after this one, and answers false.
    bool addURLs(const QList<QUrl>& urls, Adding adding, Starting starting);

    std::uint32_t count() const { return static_cast<std::uint32_t>(_playlist.size()); }
    /// The entries' URLs as absolute strings: the form in which the list is saved.
    QStringList arrayWithURLsAsStrings() const;
    std::uint32_t index() const { return _index; }
    std::shared_ptr<QVMovie> movie() const { return movieAtIndex(_index); }
    std::shared_ptr<QVMovie> movieAtIndex(std::uint32_t index) const;
    /// The position of an entry; NSNotFound when it is none of the list.
    std::uint32_t indexOfMovie(const QVMovie& movie) const;
    bool isFinished() const { return _finished; }
    bool reportsError() const { return _reports_error; }
    void setReportsError(bool reports) { _reports_error = reports; }
    std::int32_t looping() const { return _looping; }
    bool isAtEnd() const;
    QString currentInfoAsString() const;
    QString loopingInfoAsString() const;

    void rearrange();
    void reset();
    /// Positions outside the list are ignored, here and in play().
    void setIndex(std::uint32_t index);
    void play();
    void play(std::uint32_t index);
    void playNext();
    void playPrevious();
    void playCurrent();
    bool willPlayNext() const;
    bool willPlayPrevious() const;

    void setLooping(std::int32_t looping);
    /// One mode on (+1: off, one, all, off) or back (-1).
    void toggleLooping(std::int32_t step);

    /// Run one pass of the run loop after a movie reported its end.
    void onMovieEnd();
    void onPlaylistEnd();

private:
    struct Request {
        QList<QUrl> urls;
        Adding adding;
        Starting starting;
        bool reportsError;
    };
    bool add(const Request& request);
    std::vector<std::shared_ptr<QVMovie>> openMovies(const Request& request);
    bool shouldKeep(const std::shared_ptr<QVMovie>& movie, const QUrl& url, bool reportsError) const;
    void takeIn(std::vector<std::shared_ptr<QVMovie>> movies, const Request& request);
    void offerToOpenOthers(bool failed);
    Arrangement::Place place() const { return {_index, count(), _looping}; }
    void movieDidComplete(const QVMovieCompleteNotification& notification);
    void preferencesChanged(const QVPreferencesChangedNotification& notification);

    Environment _environment;
    Collaborators _with;
    std::vector<std::shared_ptr<QVMovie>> _playlist;
    std::uint32_t _index = NSNotFound;
    bool _finished = false;
    bool _reports_error = true;
    std::int32_t _looping;
    bool _auto_play;
    bool _auto_next;
    bool _auto_quit;
    bool _is_adding = false;
    std::deque<Request> _waiting;
    /// Ends what was put off to the next pass when the playlist goes away.
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
    platform::Subscription _movieComplete;
    platform::Subscription _preferencesChanged;
};

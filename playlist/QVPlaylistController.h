// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "playback/MovieServices.h"
#include "playback/StandingMessage.h"
#include "playlist/Arrangement.h"
#include "playlist/MovieBatch.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace platform {
class Desktop;
class MovieOpening;
} // namespace platform

class CommandTarget;
class FeedbackDisplay;
class MovieMemory;
class OpenPanel;
class QVMovie;
class QVMovieView;

/// The position that means none.
inline constexpr std::uint32_t NSNotFound = 0x7FFFFFFF;

/// Whether an add takes the list's place or is appended, and whether it may start to play.
enum class Adding : bool { append, replace };
enum class Starting : bool { no, yes };

/// What a saved list is put back with: the position of the current movie in it, where that stood, whether it played,
/// and the looping mode. A time is in the movie's units; where that movie cannot be opened, another one begins at its
/// beginning.
struct SavedPlace {
    std::uint32_t index = 0;
    std::int32_t time = 0;
    bool isPlaying = false;
    std::int32_t looping = 0;
};

/// Movies that are added to the playlist as they are found. Letting go of it before the end gives up looking: what is
/// there stays, and nothing is said. Main thread.
class MoviesInParts {
public:
    virtual ~MoviesInParts() = default;
    virtual void add(const QList<MovieSource>& movies) = 0;
    /// No more come. `failures` are those that whoever found them knows to be no movies. Once.
    virtual void end(const QList<OpeningFailure>& failures) = 0;
};

/// The ordered list of movies, the position in it, and what happens when a movie and the list end. Entries far down a
/// long list are opened when they become the current one, or the one that follows it:
/// QVPlaylistMovieChangedNotification then comes when that is done, and one that cannot be opened is left out,
/// reported, and passed over. Main thread.
class QVPlaylistController final : private MovieBatch::Client {
public:
    /// All outlive the playlist.
    struct Collaborators {
        MovieServices movies;
        QVMovieView& view;
        platform::Desktop& desktop;
        CommandTarget& commands;
        OpenPanel& openPanel;
        FeedbackDisplay& feedback;
        MovieMemory& memory;
    };
    QVPlaylistController(const Environment& environment, const Collaborators& collaborators);
    QVPlaylistController(const QVPlaylistController&) = delete;
    QVPlaylistController& operator=(const QVPlaylistController&) = delete;
    ~QVPlaylistController() override;

    /// Told once, when every URL was opened or given up: whether at least one movie was added.
    using Added = std::function<void(bool)>;
    /// Opens the URLs as movies, side by side, and adds those that can be played as they come, in the order given; the
    /// others are reported in one alert at the end, together with what the caller knows to be none (`failures`). The
    /// first part takes the list's place where it is to, later ones are added to it. Adds that are under way go on
    /// beside each other, but a list that is replaced gives up those begun before.
    void addURLs(const QList<QUrl>& urls, Adding adding, Starting starting, Added added = nullptr,
                 QList<OpeningFailure> failures = {});

    /// The same for movies that are still being looked for.
    std::unique_ptr<MoviesInParts> addInParts(Adding adding, Starting starting, Added added = nullptr);

    /// The same for a list that was saved, which takes the list's place: the current movie is opened first and found by
    /// its address; where it cannot be opened the next one of the list that can is the current one, else the first. The
    /// order is kept, whatever the arrangement. Nothing is alerted of it, not even where the current movie fails to
    /// play.
    void restore(const QList<MovieSource>& movies, const SavedPlace& place, Added added);

    std::uint32_t count() const { return static_cast<std::uint32_t>(_playlist.size()); }
    /// The entries' URLs as absolute strings: the form in which the list is saved.
    QStringList arrayWithURLsAsStrings() const;
    /// The entries with those that are still being opened, in their places, what is said of each, and where the current
    /// one stands among them.
    struct Contents {
        struct Entry {
            QString address;
            QString title;
            std::int32_t seconds = -1;
        };
        std::vector<Entry> entries;
        std::uint32_t index = NSNotFound;
    };
    Contents contentsWithAwaited() const;
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

    /// Moves the entries at these positions, in the order of the list, to where the entry at `before` stands, or to the
    /// end where there is none. The current entry stays the current one. The order holds until the list is arranged
    /// next.
    void moveEntries(const std::vector<std::uint32_t>& positions, std::uint32_t before);
    /// Removes the entries at these positions, but not the current one. Whether any went.
    bool removeEntries(const std::vector<std::uint32_t>& positions);
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
    struct Addition;
    class Parts;
    Addition& beginAddition(Adding adding, Starting starting, Added added, MovieBatch::First first = {});
    Addition* additionNumbered(std::uint64_t number) const;
    void giveUp(const Addition& addition);
    void arrangeParts(const Addition& addition);
    void openCurrent();
    void currentOpened(std::int16_t error);
    void askForCurrent(const std::shared_ptr<QVMovie>& current);
    void showCurrent();
    void skipCurrent();
    void openAhead();
    void reportSkipped();
    void batchOpened(MovieBatch& batch, const std::vector<MovieBatch::Entry>& entries) override;
    void batchEnded(MovieBatch& batch) override;
    Addition& additionOf(const MovieBatch& batch) const;
    void takeIn(Addition& addition, const std::vector<MovieBatch::Entry>& entries);
    void overtake(const Addition& addition);
    void replaceBy(Addition& addition, const std::vector<MovieBatch::Entry>& entries);
    void putBack(const SavedPlace& place, const std::vector<MovieBatch::Entry>& entries);
    void selectAt(std::uint32_t index, std::int32_t time);
    void insert(Addition& addition, const std::vector<MovieBatch::Entry>& entries);
    std::uint32_t positionFor(const Addition& addition, std::size_t place) const;
    void keepFolders(const std::vector<MovieBatch::Entry>& entries);
    void askForDoubtful(Addition& addition);
    std::vector<bool> marked(const std::vector<std::uint32_t>& positions) const;
    void entriesChanged(std::vector<std::shared_ptr<QVMovie>> entries);
    void movieFailed(const QVMovieFailedNotification& notification);
    void report(std::function<void()> work);
    void finish(Addition& addition);
    void sayWhatIsAwaited();
    void offerToOpenOthers(const QList<OpeningFailure>& failures, bool failed, bool reportsError);
    void arrange(QList<MovieSource>& sources) const;
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
    /// Under way, in the order in which they were asked for.
    std::vector<std::shared_ptr<Addition>> _additions;
    /// What is to be said, one after the other.
    std::deque<std::function<void()>> _reports;
    bool _is_reporting = false;
    std::uint64_t _additionsMade = 0;
    /// The current movie while it is being opened, and one that may be played next.
    std::unique_ptr<platform::MovieOpening> _currentOpening;
    std::unique_ptr<platform::MovieOpening> _aheadOpening;
    bool _isCurrentAwaited = false;
    /// Where the current one begins, in its units.
    std::int32_t _startTime = 0;
    bool _playsWhenOpened = false;
    /// Where a movie that cannot be opened leads on to.
    enum class Direction : bool { back, forth } _direction = Direction::forth;
    std::weak_ptr<QVMovie> _shown;
    /// The one that a saved list was put back with.
    std::weak_ptr<QVMovie> _restored;
    QList<OpeningFailure> _skipped;
    StandingMessage _loadingMessage;
    /// Ends what was put off to the next pass when the playlist goes away.
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
    platform::Subscription _movieComplete;
    platform::Subscription _movieFailed;
    platform::Subscription _preferencesChanged;
};

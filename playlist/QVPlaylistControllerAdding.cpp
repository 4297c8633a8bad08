// SPDX-License-Identifier: GPL-3.0-or-later
// The playlist's adds: movies are opened side by side, taken in as they come, and what failed is reported.
#include "playlist/QVPlaylistController.h"

#include "context/FeedbackDisplay.h"
#include "platform/base/Localization.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/MovieOrdering.h"
#include "playback/QVMovie.h"
#include "playlist/MovieMemory.h"
#include "playlist/OpenPanel.h"
#include "playlist/OpeningReport.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <algorithm>
#include <map>
#include <optional>
#include <span>
#include <utility>

namespace {

constexpr const char* className = "QVPlaylistController";

} // namespace

struct QVPlaylistController::Addition {
    Adding adding = Adding::append;
    Starting starting = Starting::no;
    bool reportsError = true;
    Added added;
    QList<OpeningFailure> failures;
    std::uint64_t number = 0;
    /// Where the list that is put back stood.
    std::optional<SavedPlace> saved;
    /// Whether the first part took the list's place.
    bool hasReplaced = false;
    /// Its movies came one after the other.
    bool hasParts = false;
    /// Its movies by their places in the order given.
    std::map<std::size_t, std::weak_ptr<QVMovie>> movies;
    std::unique_ptr<MovieBatch> batch;

    bool hasAdded() const { return !movies.empty(); }
};

QVPlaylistController::~QVPlaylistController() = default;

/// Does nothing once the add was given up, or the playlist has gone.
class QVPlaylistController::Parts final : public MoviesInParts {
public:
    Parts(QVPlaylistController& playlist, std::uint64_t number)
        : _playlist(playlist)
        , _alive(playlist._alive)
        , _number(number) {}
    ~Parts() override {
        const Addition* addition = this->addition();
        if (!addition)
            return;
        if (addition->batch->count() > 0)
            end({});
        else
            _playlist.giveUp(*addition);
    }

    void add(const QList<MovieSource>& movies) override {
        Addition* addition = this->addition();
        if (!addition)
            return;
        QList<MovieSource> ordered = movies;
        if (addition->adding == Adding::replace)
            _playlist.arrange(ordered);
        addition->hasParts = addition->batch->count() > 0;
        addition->batch->add(ordered);
        _playlist.sayWhatIsAwaited();
    }
    void end(const QList<OpeningFailure>& failures) override {
        Addition* addition = this->addition();
        if (!addition)
            return;
        _alive.reset();
        addition->failures = failures;
        addition->batch->close();
    }

private:
    Addition* addition() const { return _alive.expired() ? nullptr : _playlist.additionNumbered(_number); }

    QVPlaylistController& _playlist;
    std::weak_ptr<bool> _alive;
    std::uint64_t _number;
};

std::unique_ptr<MoviesInParts> QVPlaylistController::addInParts(Adding adding, Starting starting, Added added) {
    const TraceScope scope("-[QVPlaylistController addURLs:replace:start:]");
    return std::make_unique<Parts>(*this, beginAddition(adding, starting, std::move(added)).number);
}

void QVPlaylistController::addURLs(const QList<QUrl>& urls, Adding adding, Starting starting, Added added,
                                   QList<OpeningFailure> failures) {
    const TraceScope scope("-[QVPlaylistController addURLs:replace:start:]");
    Addition& addition = beginAddition(adding, starting, std::move(added));
    addition.failures = std::move(failures);
    QList<MovieSource> ordered = sourcesOf(urls);
    if (addition.adding == Adding::replace)
        arrange(ordered); // so that what is to play first is opened first
    addition.batch->add(ordered);
    addition.batch->close();
    sayWhatIsAwaited();
}

void QVPlaylistController::restore(const QList<MovieSource>& movies, const SavedPlace& place, Added added) {
    const TraceScope scope("-[QVPlaylistController addURLs:replace:start:]");
    SavedPlace saved = place;
    if (place.index >= static_cast<std::uint64_t>(movies.size()))
        saved = {0, 0, place.isPlaying, place.looping}; // the time is of none of them
    Addition& addition = beginAddition(Adding::replace, Starting::no, std::move(added),
                                       {saved.index, MovieBatch::First::Wait::untilAnswered});
    addition.saved = saved;
    addition.batch->add(movies);
    addition.batch->close();
    sayWhatIsAwaited();
}

QVPlaylistController::Addition& QVPlaylistController::beginAddition(Adding adding, Starting starting, Added added,
                                                                    MovieBatch::First first) {
    auto addition = std::make_shared<Addition>();
    // A list that nothing stands in is replaced, too.
    addition->adding = _playlist.empty() && _additions.empty() ? Adding::replace : adding;
    addition->starting = starting;
    addition->reportsError = _reports_error;
    addition->added = std::move(added);
    addition->number = ++_additionsMade;
    const auto doubtful = _reports_error ? MovieBatch::Doubtful::keptBack : MovieBatch::Doubtful::told;
    MovieBatch::Client& client = *this;
    addition->batch = std::make_unique<MovieBatch>(_environment, _with.movies, doubtful, client, first);
    _additions.push_back(addition);
    return *addition;
}

QVPlaylistController::Addition* QVPlaylistController::additionNumbered(std::uint64_t number) const {
    const auto found = std::ranges::find(_additions, number, [](const auto& addition) { return addition->number; });
    return found == _additions.end() ? nullptr : found->get();
}

QVPlaylistController::Addition& QVPlaylistController::additionOf(const MovieBatch& batch) const {
    return **std::ranges::find(_additions, &batch, [](const auto& addition) { return addition->batch.get(); });
}

/// Nothing of it was added, and nothing is said.
void QVPlaylistController::giveUp(const Addition& addition) {
    const auto place = std::ranges::find(_additions, &addition, [](const auto& other) { return other.get(); });
    const std::shared_ptr<Addition> held = *place;
    _additions.erase(place);
    if (held->added)
        held->added(false);
}

void QVPlaylistController::batchOpened(MovieBatch& batch, const std::vector<MovieBatch::Entry>& entries) {
    takeIn(additionOf(batch), entries);
    sayWhatIsAwaited();
}

void QVPlaylistController::batchEnded(MovieBatch& batch) {
    const auto place =
        std::ranges::find(_additions, &batch, [](const auto& addition) { return addition->batch.get(); });
    const std::shared_ptr<Addition> addition = *place;
    _additions.erase(place);
    trace("%@: All movies are opened.", className);
    sayWhatIsAwaited();
    if (addition->hasAdded() && !addition->hasReplaced)
        rearrange();
    else if (addition->hasParts && addition->adding == Adding::replace)
        arrangeParts(*addition);
    report([this, addition] { finish(*addition); });
}

/// Each part was arranged by itself when it came. What is shuffled anew is what has not been played yet.
void QVPlaylistController::arrangeParts(const Addition& addition) {
    if (!addition.hasReplaced)
        return;
    const std::int32_t arrangement = _environment.settings.integerForKey(kQVPlaylistDefaultArrangement);
    if (arrangement == Arrangement::sorted) {
        rearrange();
    } else if (arrangement == Arrangement::shuffled && _index + 1 < count()) {
        std::span rest(_playlist.begin() + _index + 1, _playlist.end());
        Arrangement::shuffle(rest, Arrangement::drawFromSystem);
    } else {
        return;
    }
    _environment.notifications.post(QVPlaylistChangedNotification{_playlist});
}

void QVPlaylistController::takeIn(Addition& addition, const std::vector<MovieBatch::Entry>& entries) {
    const bool isFirst = !addition.hasAdded();
    keepFolders(entries);
    if (isFirst)
        overtake(addition);
    if (_playlist.empty() || (isFirst && addition.adding == Adding::replace))
        replaceBy(addition, entries);
    else
        insert(addition, entries);
    _environment.notifications.post(QVPlaylistChangedNotification{_playlist});
}

void QVPlaylistController::replaceBy(Addition& addition, const std::vector<MovieBatch::Entry>& entries) {
    addition.hasReplaced = true;
    _playlist.clear();
    for (const MovieBatch::Entry& entry : entries) {
        _playlist.push_back(entry.movie);
        addition.movies[entry.place] = entry.movie;
    }
    _index = NSNotFound;
    if (addition.saved) {
        putBack(*addition.saved, entries);
        return;
    }
    _finished = false;
    selectAt(0, _playlist.front()->isOpened() ? _with.memory.placeOf(*_playlist.front()) : 0);
    setLooping(_environment.settings.integerForKey(kQVPlaylistDefaultLooping));
    if (addition.starting == Starting::yes && _auto_play)
        play();
}

/// The first part holds the movie that the list is to stand at.
void QVPlaylistController::putBack(const SavedPlace& place, const std::vector<MovieBatch::Entry>& entries) {
    const auto found = std::ranges::lower_bound(entries, std::size_t{place.index}, {}, &MovieBatch::Entry::place);
    const bool isSame = found != entries.end() && found->place == place.index;
    _finished = false;
    setLooping(place.looping);
    selectAt(found == entries.end() ? 0 : static_cast<std::uint32_t>(found - entries.begin()), isSame ? place.time : 0);
    _restored = movie();
    if (place.isPlaying)
        play();
}

QVPlaylistController::Contents QVPlaylistController::contentsWithAwaited() const {
    // What is awaited stands before the entry of this position; what is to come at the end, at the list's count.
    std::multimap<std::uint32_t, Contents::Entry> awaited;
    for (const auto& addition : _additions) {
        std::optional<std::uint32_t> position;
        std::size_t last = 0;
        for (const std::size_t place : addition->batch->awaitedPlaces()) {
            const auto between = addition->movies.lower_bound(last);
            if (!position || (between != addition->movies.end() && between->first < place))
                position = positionFor(*addition, place);
            last = place;
            const MovieSource& source = addition->batch->sourceAt(place);
            awaited.emplace(*position,
                            Contents::Entry{source.url.toString(QUrl::FullyEncoded), source.title, source.seconds});
        }
    }
    Contents contents;
    contents.entries.reserve(count() + awaited.size());
    for (std::uint32_t position = 0; position <= count(); ++position) {
        for (auto [next, end] = awaited.equal_range(position); next != end; ++next)
            contents.entries.push_back(next->second);
        if (position == _index)
            contents.index = static_cast<std::uint32_t>(contents.entries.size());
        if (position == count())
            break;
        const QVMovie& movie = *_playlist[position];
        contents.entries.push_back({movie.address(), movie.saidTitle(), movie.saidSeconds()});
    }
    return contents;
}

/// What was asked for before does not come in the place of what has come since: a list that is replaced gives it up,
/// and it is added to one that is not.
void QVPlaylistController::overtake(const Addition& addition) {
    std::vector<std::shared_ptr<Addition>> givenUp;
    for (const auto& other : _additions) {
        if (other->number >= addition.number)
            break;
        if (addition.adding == Adding::replace)
            givenUp.push_back(other);
        else if (!other->hasAdded())
            other->adding = Adding::append;
    }
    _additions.erase(_additions.begin(), _additions.begin() + static_cast<std::ptrdiff_t>(givenUp.size()));
    for (const auto& other : givenUp) {
        other->batch.reset();
        if (other->added)
            other->added(other->hasAdded());
    }
}

void QVPlaylistController::insert(Addition& addition, const std::vector<MovieBatch::Entry>& entries) {
    std::optional<std::size_t> before; // the place of the one inserted last
    std::uint32_t position = 0;
    std::uint32_t next = 0;
    for (const MovieBatch::Entry& entry : entries) {
        // Looked for once for all that follow each other.
        const bool follows = before && addition.movies.upper_bound(*before) == addition.movies.lower_bound(entry.place);
        position = follows ? position + 1 : positionFor(addition, entry.place);
        // The user would never get to see what comes late, before the one that plays already.
        if (addition.starting == Starting::yes && _index < count())
            position = std::max(position, _index + 1);
        position = std::max(position, next);
        next = position + 1;
        _playlist.insert(_playlist.begin() + position, entry.movie);
        if (_index < count() && position <= _index)
            ++_index;
        addition.movies[entry.place] = entry.movie;
        before = entry.place;
    }
}

/// After the one before it of the same add, else before the one after it, else at the end.
std::uint32_t QVPlaylistController::positionFor(const Addition& addition, std::size_t place) const {
    const auto positionOf = [this](const std::weak_ptr<QVMovie>& entry) {
        const std::shared_ptr<QVMovie> listed = entry.lock();
        return listed ? indexOfMovie(*listed) : NSNotFound;
    };
    const auto after = addition.movies.lower_bound(place);
    for (auto before = after; before != addition.movies.begin();) {
        --before;
        if (const std::uint32_t position = positionOf(before->second); position != NSNotFound)
            return position + 1;
    }
    for (auto next = after; next != addition.movies.end(); ++next) {
        if (const std::uint32_t position = positionOf(next->second); position != NSNotFound)
            return position;
    }
    return count();
}

void QVPlaylistController::keepFolders(const std::vector<MovieBatch::Entry>& entries) {
    const auto last = std::find_if(entries.rbegin(), entries.rend(),
                                   [](const auto& entry) { return entry.movie->url().isLocalFile(); });
    if (last != entries.rend())
        _environment.settings.setObject(OpeningReport::place(last->movie->url()), kNSNavLastRootDirectory);
}

void QVPlaylistController::movieFailed(const QVMovieFailedNotification& notification) {
    if (!notification.movie || !_reports_error)
        return;
    const QUrl url = notification.movie->url();
    if (notification.movie == _restored.lock()) {
        // Nobody asked for it just now: a word, but nothing to answer.
        logAlways("ERROR: %@: QT failed to open movie.", className);
        _with.feedback.postFeedback(
            platform::localizedFormat(QStringLiteral("QTUnableToOpenFileError"), {notification.movie->displayName()}));
        return;
    }
    const std::int16_t error =
        url.isLocalFile() ? platform::movieError::couldNotOpen : platform::movieError::connectionFailed;
    report([this, failure = OpeningFailure{url, error}] { _with.desktop.runAlert(OpeningReport::failed({failure})); });
}

/// Not from inside the batch or the player that has something to say. One alert at a time; the event loop runs on
/// meanwhile.
void QVPlaylistController::report(std::function<void()> work) {
    _reports.push_back(std::move(work));
    _environment.loop.perform([this, alive = std::weak_ptr<bool>(_alive)] {
        if (alive.expired() || std::exchange(_is_reporting, true))
            return;
        while (!_reports.empty()) {
            const std::function<void()> next = std::move(_reports.front());
            _reports.pop_front();
            next();
        }
        _is_reporting = false;
    });
}

void QVPlaylistController::finish(Addition& addition) {
    const QList<OpeningFailure> failures = addition.failures + addition.batch->failures();
    const bool wasAsked = addition.batch->count() > 0 || !addition.failures.isEmpty();
    if (addition.reportsError) {
        const auto isFolder = [](const auto& failure) { return failure.error == OpeningReport::noMoviesInFolder; };
        const bool isSaidBelow = _playlist.empty() && std::ranges::all_of(failures, isFolder);
        if (!failures.isEmpty() && !isSaidBelow)
            _with.desktop.runAlert(OpeningReport::failed(failures));
        askForDoubtful(addition);
    }
    if (_playlist.empty() && _additions.empty())
        offerToOpenOthers(failures, wasAsked, addition.reportsError);
    if (addition.added)
        addition.added(addition.hasAdded());
}

void QVPlaylistController::askForDoubtful(Addition& addition) {
    const std::vector<MovieBatch::Entry>& entries = addition.batch->doubtful();
    if (entries.empty())
        return;
    QList<QUrl> urls;
    for (const MovieBatch::Entry& entry : entries)
        urls.append(entry.movie->url());
    if (_with.desktop.runAlert(OpeningReport::mayNotPlay(urls)) != 1) {
        logAlways("ERROR: %@: Cancelled effort to open movie.", className);
        return;
    }
    takeIn(addition, entries);
    if (!addition.hasReplaced)
        rearrange();
}

void QVPlaylistController::sayWhatIsAwaited() {
    if (const auto current = movie(); current && _isCurrentAwaited) {
        _loadingMessage.show(platform::localizedFormat(QStringLiteral("Loading: %@"), {current->displayName()}));
        return;
    }
    for (auto addition = _additions.rbegin(); addition != _additions.rend(); ++addition) {
        if (const QUrl url = (*addition)->batch->awaitedAddress(); !url.isEmpty()) {
            const QString name = fileNameOfURL(url);
            _loadingMessage.show(
                platform::localizedFormat(QStringLiteral("Loading: %@"), {name.size() > 1 ? name : url.host()}));
            return;
        }
    }
    _loadingMessage.end();
}

void QVPlaylistController::offerToOpenOthers(const QList<OpeningFailure>& failures, bool failed, bool reportsError) {
    if (failed)
        trace("%@: No playable movies foung in playlist.\n", className);
    if (!reportsError || (failed && _with.desktop.runAlert(OpeningReport::nothingToPlay(failures)) != 1))
        return;
    _environment.loop.perform([this, alive = std::weak_ptr<bool>(_alive)] {
        if (!alive.expired())
            _with.openPanel.doOpen();
    });
    trace("%@: Launching File Open panel.\n", className);
}

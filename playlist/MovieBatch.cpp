// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/MovieBatch.h"

#include "platform/base/RunLoop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"
#include "settings/Tracing.h"

#include <algorithm>
#include <utility>

namespace {

/// The log's lines are the playlist's.
constexpr const char* className = "QVPlaylistController";

/// A disk is no faster for more; addresses mostly wait.
constexpr std::size_t maximumFiles = 4;
constexpr std::size_t maximumAddresses = 16;
/// Files that open at once come together. Seconds.
constexpr double firstPartDelay = 0.01;
constexpr double partDelay = 0.1;
/// So many come together.
constexpr std::size_t maximumPart = 2000;
/// How long the others wait for an address that comes before them.
constexpr double addressTimeout = 0.3;
/// How long another one that is open waits for a file that comes before it: a disk may have to wake up for it.
constexpr double fileTimeout = 1;

} // namespace

MovieBatch::MovieBatch(const Environment& environment, const MovieServices& services, Doubtful doubtful, Client& client,
                       First first)
    : _environment(environment)
    , _services(services)
    , _doubtful(doubtful)
    , _client(client)
    , _first(first) {
    _files.limit = maximumFiles;
    _addresses.limit = maximumAddresses;
}

MovieBatch::~MovieBatch() = default;

void MovieBatch::add(const QList<MovieSource>& sources) {
    const std::size_t before = _items.size();
    for (const MovieSource& source : sources)
        _items.emplace_back().source = source;
    const std::size_t added = _items.size() - before;
    for (std::size_t number = 0; number < added; ++number) {
        const std::size_t place = before > 0 ? before + number : inTurn(number);
        if (isOpenedHere(place))
            (_items[place].source.url.isLocalFile() ? _files : _addresses).places.push_back(place);
        else
            _items[place].outcome = Outcome::open;
    }
    skipOpened();
    fill(_files);
    fill(_addresses);
    if (!_addresses.places.empty() && !_addressTimer && !_hasDelivered && _first.wait == First::Wait::aMoment) {
        _addressTimer = _environment.loop.schedule(addressTimeout, false, [this] { goOnWithoutFirst(); });
    }
    scheduleDelivery();
}

void MovieBatch::goOnWithoutFirst() {
    if (_hasEnded)
        return;
    _waitsForFirst = false;
    if (!_undelivered.empty())
        deliver();
    // Those behind the first part come as if the first one had answered.
    scheduleDelivery();
}

void MovieBatch::close() {
    _isClosed = true;
    if (isDone())
        _partTimer = _environment.loop.schedule(0, false, [this] { end(); });
}

void MovieBatch::fill(Lane& lane) {
    while (lane.running < lane.limit && lane.next < lane.places.size()) {
        const std::size_t place = lane.places[lane.next++];
        ++lane.running;
        const QUrl& url = _items[place].source.url;
        trace("%@: Adding to playlist movie file: %@", className, url.toString());
        _items[place].opening = QVMovie::movieWithURL(
            _environment, _services, url, [this, place, &lane](std::shared_ptr<QVMovie> movie, std::int16_t error) {
                opened(place, lane, std::move(movie), error);
            });
    }
}

void MovieBatch::opened(std::size_t place, Lane& lane, std::shared_ptr<QVMovie> movie, std::int16_t error) {
    using namespace platform;
    // Its completion is running.
    const std::unique_ptr<MovieOpening> opening = std::move(_items[place].opening);
    --lane.running;
    ++_answered;
    fill(lane);
    _items[place].error = error;
    const bool isDoubtful = movie && error == movieError::cannotPlay && _doubtful == Doubtful::keptBack;
    _items[place].outcome = movie && !isDoubtful ? Outcome::open : Outcome::failed;
    if (!movie)
        logAlways("ERROR: %@: QT failed to open movie.", className);
    else if (error != movieError::none)
        logAlways("ERROR: %@: QT sticky error: %d.", className, error);
    if (movie) {
        const MovieSource& source = _items[place].source;
        movie->setSaid(source.title, source.seconds);
    }
    if (movie)
        (isDoubtful ? _keptBack : _undelivered).push_back({place, std::move(movie)});
    const bool othersWait = !_undelivered.empty() && !_hasDelivered && !isFirstOpen();
    if (othersWait && !_fileTimer && _first.wait == First::Wait::aMoment)
        _fileTimer = _environment.loop.schedule(fileTimeout, false, [this] { goOnWithoutFirst(); });
    if (isDone())
        end();
    else
        scheduleDelivery();
}

void MovieBatch::scheduleDelivery() {
    const bool isNothingNew = _undelivered.empty() && _nextUnopened >= _items.size();
    if (isNothingNew || (!_hasDelivered && !isFirstOpen()) || (_partTimer && _partTimer->isValid()))
        return;
    _partTimer = _environment.loop.schedule(_hasDelivered ? partDelay : firstPartDelay, false, [this] {
        if (_hasEnded)
            return;
        deliver();
        if (isDone())
            end();
        else
            scheduleDelivery();
    });
}

bool MovieBatch::isDone() const {
    return _isClosed && _answered == std::min(_items.size(), maximumOpened) && _nextUnopened >= _items.size();
}

/// Making thousands at once would hold up the first picture.
void MovieBatch::takeUnopened() {
    for (std::size_t taken = 0; taken < maximumPart && _nextUnopened < _items.size(); ++taken) {
        const std::size_t place = _nextUnopened++;
        skipOpened();
        const MovieSource& source = _items[place].source;
        auto movie = QVMovie::unopened(_environment, _services, source.url);
        movie->setSaid(source.title, source.seconds);
        _undelivered.push_back({place, std::move(movie)});
    }
}

void MovieBatch::skipOpened() {
    while (_nextUnopened < _items.size() && isOpenedHere(_nextUnopened))
        ++_nextUnopened;
}

bool MovieBatch::isFirstOpen() {
    while (_firstAwaited < _items.size() && _items[inTurn(_firstAwaited)].outcome == Outcome::failed)
        ++_firstAwaited;
    return !_waitsForFirst || (_firstAwaited < _items.size() && _items[inTurn(_firstAwaited)].outcome == Outcome::open);
}

void MovieBatch::deliver() {
    if (_hasDelivered || _undelivered.empty())
        takeUnopened();
    if (_undelivered.empty())
        return;
    _hasDelivered = true;
    std::vector<Entry> entries = std::exchange(_undelivered, {});
    std::ranges::sort(entries, {}, &Entry::place);
    _client.batchOpened(*this, entries);
}

void MovieBatch::end() {
    _hasEnded = true;
    if (!_undelivered.empty())
        deliver();
    std::ranges::sort(_keptBack, {}, &Entry::place);
    // Not from inside its own timer, which may go with the batch.
    _addressTimer.reset();
    _fileTimer.reset();
    _client.batchEnded(*this);
}

QList<OpeningFailure> MovieBatch::failures() const {
    QList<OpeningFailure> failures;
    for (std::size_t place = 0; place < _items.size(); ++place) {
        if (_items[place].outcome == Outcome::failed &&
            std::ranges::find(_keptBack, place, &Entry::place) == _keptBack.end())
            failures.append({_items[place].source.url, _items[place].error});
    }
    return failures;
}

QUrl MovieBatch::awaitedAddress() const {
    for (const std::size_t place : _addresses.places) {
        if (_items[place].outcome == Outcome::awaited)
            return _items[place].source.url;
    }
    return {};
}

std::vector<std::size_t> MovieBatch::awaitedPlaces() const {
    std::vector<std::size_t> places;
    for (const Entry& entry : _undelivered)
        places.push_back(entry.place);
    for (std::size_t place = 0; place < _items.size(); ++place) {
        const bool isToldLater = place >= _nextUnopened && !isOpenedHere(place);
        if (_items[place].outcome == Outcome::awaited || isToldLater)
            places.push_back(place);
    }
    std::ranges::sort(places);
    return places;
}

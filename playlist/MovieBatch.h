// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "playback/MovieServices.h"
#include "playlist/MovieSource.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace platform {
class MovieOpening;
class Timer;
} // namespace platform

class QVMovie;

/// A movie that could not be opened, or that may not play as it should (movieError::cannotPlay).
struct OpeningFailure {
    QUrl url;
    std::int16_t error = 0;
    /// Where the failure is that of several things within `url`: how many, and the first of them.
    qsizetype count = 0;
    QStringList names = {};
};

/// Movies that are opened together: side by side, and without waiting for those that hang. What is open is told in
/// parts, the first of them as soon as the first movie stands. Of many only the first are opened here; the others are
/// told as they are, to be opened when they are needed. Destroying the batch gives up what is under way. Main thread.
class MovieBatch {
public:
    /// An open movie and its place in the order that was given.
    struct Entry {
        std::size_t place = 0;
        std::shared_ptr<QVMovie> movie;
    };
    class Client {
    public:
        virtual ~Client() = default;
        /// These are open now, in their order. The first part holds the first movie of all that can be opened, unless
        /// a network address, or a drive that hangs, holds that up and it need not be waited for.
        virtual void batchOpened(MovieBatch& batch, const std::vector<Entry>& entries) = 0;
        /// Nothing is under way any more; the batch may be destroyed here.
        virtual void batchEnded(MovieBatch& batch) = 0;
    };
    /// Whether movies that may not play as they should are kept back for a question, or told like the others.
    enum class Doubtful : bool { told, keptBack };

    /// Which movie is the first: opened before the others, those after it following, then those before it. That of the
    /// beginning is not waited for where it is one of a network.
    struct First {
        std::size_t place = 0;
        enum class Wait : bool { aMoment, untilAnswered } wait = Wait::aMoment;
    };

    /// So many are opened at once. More nobody looks at before they play, and probing each takes a disk its time.
    static constexpr std::size_t maximumOpened = 100;

    /// The client outlives the batch, and hears nothing before the call that adds or closes has returned.
    MovieBatch(const Environment& environment, const MovieServices& services, Doubtful doubtful, Client& client,
               First first);
    MovieBatch(const MovieBatch&) = delete;
    MovieBatch& operator=(const MovieBatch&) = delete;
    ~MovieBatch();
    /// Their places follow those of the movies before. A batch with a first one of its own takes all at once.
    void add(const QList<MovieSource>& sources);
    /// No more are added: the batch ends with those that are there.
    void close();

    /// How many were added.
    std::size_t count() const { return _items.size(); }
    /// Those that could not be opened, in the order given.
    QList<OpeningFailure> failures() const;
    /// Those that were kept back.
    const std::vector<Entry>& doubtful() const { return _keptBack; }
    /// The network address that has been waited for longest; an empty one when there is none.
    QUrl awaitedAddress() const;
    /// Those that are not told yet, and not given up.
    std::vector<std::size_t> awaitedPlaces() const;
    const MovieSource& sourceAt(std::size_t place) const { return _items[place].source; }

private:
    enum class Outcome : std::uint8_t { awaited, open, failed };
    struct Item {
        MovieSource source;
        Outcome outcome = Outcome::awaited;
        std::int16_t error = 0;
        std::unique_ptr<platform::MovieOpening> opening;
    };
    /// Those that take turns: a file system and a network wait for different things.
    struct Lane {
        std::vector<std::size_t> places;
        std::size_t next = 0;
        std::size_t running = 0;
        std::size_t limit = 0;
    };
    void fill(Lane& lane);
    void opened(std::size_t place, Lane& lane, std::shared_ptr<QVMovie> movie, std::int16_t error);
    bool isFirstOpen();
    bool isDone() const;
    void takeUnopened();
    void skipOpened();
    /// Places in the order in which they are opened.
    std::size_t inTurn(std::size_t number) const { return (_first.place + number) % _items.size(); }
    bool isOpenedHere(std::size_t place) const {
        return (place + _items.size() - _first.place) % _items.size() < maximumOpened;
    }
    void scheduleDelivery();
    void deliver();
    /// The first movie is not waited for any more.
    void goOnWithoutFirst();
    void end();

    Environment _environment;
    MovieServices _services;
    Doubtful _doubtful;
    Client& _client;
    std::deque<Item> _items;
    Lane _files;
    Lane _addresses;
    std::size_t _answered = 0;
    std::size_t _nextUnopened = 0; // none before it is to be told yet
    First _first;
    std::size_t _firstAwaited = 0; // none before it is open; counted from the first one
    std::vector<Entry> _undelivered;
    std::vector<Entry> _keptBack;
    bool _hasDelivered = false;
    bool _waitsForFirst = true;
    bool _isClosed = false;
    bool _hasEnded = false;
    std::unique_ptr<platform::Timer> _partTimer;
    std::unique_ptr<platform::Timer> _addressTimer;
    std::unique_ptr<platform::Timer> _fileTimer;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "playback/MovieServices.h"

#include <QList>
#include <QUrl>

#include <cstddef>
#include <cstdint>
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
};

/// Movies that are opened together: side by side, and without waiting for those that hang. What is open is told in
/// parts, the first of them as soon as the first movie stands. Destroying the batch gives up what is under way. Main
/// thread.
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
        /// a network address holds that up that need not be waited for.
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

    /// The client outlives the batch, and hears nothing before begin() has returned.
    MovieBatch(const Environment& environment, const MovieServices& services, QList<QUrl> urls, Doubtful doubtful,
               Client& client, First first);
    MovieBatch(const MovieBatch&) = delete;
    MovieBatch& operator=(const MovieBatch&) = delete;
    ~MovieBatch();
    void begin();

    const QList<QUrl>& urls() const { return _urls; }
    /// Those that could not be opened, in the order given.
    QList<OpeningFailure> failures() const;
    /// Those that were kept back.
    const std::vector<Entry>& doubtful() const { return _keptBack; }
    /// The network address that has been waited for longest; an empty one when there is none.
    QUrl awaitedAddress() const;
    /// Those that are neither open nor given up.
    std::vector<std::size_t> awaitedPlaces() const;

private:
    enum class Outcome : std::uint8_t { awaited, open, failed };
    struct Item {
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
    /// Places in the order in which they are opened.
    std::size_t inTurn(std::size_t number) const { return (_first.place + number) % _items.size(); }
    void deliver();
    void end();

    Environment _environment;
    MovieServices _services;
    QList<QUrl> _urls;
    Doubtful _doubtful;
    Client& _client;
    std::vector<Item> _items;
    Lane _files;
    Lane _addresses;
    std::size_t _answered = 0;
    First _first;
    std::size_t _firstAwaited = 0; // none before it is open; counted from the first one
    std::vector<Entry> _undelivered;
    std::vector<Entry> _keptBack;
    bool _hasDelivered = false;
    bool _waitsForFirst = true;
    std::unique_ptr<platform::Timer> _partTimer;
    std::unique_ptr<platform::Timer> _addressTimer;
};

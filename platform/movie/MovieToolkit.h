// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/Movie.h"

#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace platform {

class MoviePlayer;

/// What opening a movie gave.
struct OpenedMovie {
    /// Nothing when it cannot be played.
    std::optional<MovieInfo> info;
    /// Why not, or what else there is to say (movieError::cannotPlay).
    std::int16_t error = movieError::none;
};

/// A movie being opened. Destroying it gives that up: its completion is not called any more.
class MovieOpening {
public:
    MovieOpening() = default;
    MovieOpening(const MovieOpening&) = delete;
    MovieOpening& operator=(const MovieOpening&) = delete;
    virtual ~MovieOpening() = default;
};

/// Opens movies and owns the player. Only the composition names the real class. Main thread.
class MovieToolkit {
public:
    MovieToolkit() = default;
    MovieToolkit(const MovieToolkit&) = delete;
    MovieToolkit& operator=(const MovieToolkit&) = delete;
    virtual ~MovieToolkit() = default;

    /// Starts and ends the toolkit; the player exists in between.
    virtual void enter() = 0;
    virtual void exit() = 0;

    /// Opens a movie: a file, or a URL of a scheme that can be read. Nothing when it cannot be played; stickyError()
    /// says why. A movie may open with an error left behind (movieError::cannotPlay). Local files are opened in about a
    /// millisecond; for a network URL the event loop runs meanwhile, and it gives up after 10 seconds.
    virtual std::optional<MovieInfo> open(const QUrl& url) = 0;
    /// Opens a movie without waiting: `completion` is called once, from the run loop, unless the answer of this call
    /// was destroyed or the toolkit ended before. Leaves stickyError() alone. The toolkit has been entered.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening> openAsync(const QUrl& url,
                                                                  std::function<void(OpenedMovie)> completion) = 0;
    /// The last error, until it is cleared.
    virtual std::int16_t stickyError() const = 0;
    virtual void clearStickyError() = 0;

    virtual MoviePlayer& player() = 0;
};

} // namespace platform

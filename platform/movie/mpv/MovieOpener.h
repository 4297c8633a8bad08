// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace platform {

template <class Value>
class Delivery;

/// Opens movies on threads, one each. Main thread, with the run loop installed.
class MovieOpener {
public:
    /// Opens a movie; gives up soon once `cancelled` is set.
    using Probe = std::function<OpenedMovie(const std::atomic<bool>& cancelled)>;

    MovieOpener();
    MovieOpener(const MovieOpener&) = delete;
    MovieOpener& operator=(const MovieOpener&) = delete;
    ~MovieOpener();

    /// As MovieToolkit::openAsync says.
    [[nodiscard]] std::unique_ptr<MovieOpening> open(Probe probe, std::function<void(OpenedMovie)> completion);
    /// Gives up what is under way; no completion is called any more. Waits a little for the threads to end: one that
    /// hangs in the system is left behind (platform::background).
    void cancelAll();

private:
    struct Job;
    class Opening;
    /// A thread that runs, and an answer that may still be handed over.
    struct UnderWay {
        std::weak_ptr<Job> job;
        std::weak_ptr<Delivery<OpenedMovie>> answer;
    };
    std::vector<UnderWay> _underWay;
};

} // namespace platform

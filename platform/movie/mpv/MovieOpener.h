// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace platform {

/// Opens movies on threads, one each. Main thread, with the run loop installed.
class MovieOpener {
public:
    /// Opens a movie; gives up soon once `cancelled` is set.
    using Probe = std::function<OpenedMovie(const std::atomic<bool>& cancelled)>;

    MovieOpener();
    ~MovieOpener();

    /// As MovieToolkit::openAsync says.
    [[nodiscard]] std::unique_ptr<MovieOpening> open(Probe probe, std::function<void(OpenedMovie)> completion);
    /// Gives up what is under way, and waits until the threads have ended; no completion is called any more.
    void cancelAll();

private:
    struct Job;
    class Opening;
    std::vector<std::shared_ptr<Job>> _jobs;
};

} // namespace platform

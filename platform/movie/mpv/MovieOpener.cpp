// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieOpener.h"

#include "platform/base/Background.h"
#include "platform/base/Delivery.h"

#include <utility>

namespace platform {

namespace {
/// Those that can be interrupted end within milliseconds. Seconds.
constexpr double endTimeout = 0.25;
} // namespace

/// Held by the thread that opens the movie.
struct MovieOpener::Job {
    std::atomic<bool> cancelled{false};
    const std::shared_ptr<Delivery<OpenedMovie>> answer = std::make_shared<Delivery<OpenedMovie>>();
};

class MovieOpener::Opening final : public MovieOpening {
public:
    /// The answer waits for its receiver here, where the thread has long ended.
    Opening(std::weak_ptr<Job> job, std::shared_ptr<Delivery<OpenedMovie>> answer)
        : _job(std::move(job))
        , _answer(std::move(answer)) {}
    ~Opening() override {
        _answer->abandon();
        if (const auto job = _job.lock())
            job->cancelled = true;
    }

private:
    std::weak_ptr<Job> _job;
    std::shared_ptr<Delivery<OpenedMovie>> _answer;
};

MovieOpener::MovieOpener() = default;

MovieOpener::~MovieOpener() {
    cancelAll();
}

std::unique_ptr<MovieOpening> MovieOpener::open(Probe probe, std::function<void(OpenedMovie)> completion) {
    std::erase_if(_underWay, [](const UnderWay& one) { return one.answer.expired(); });
    const auto job = std::make_shared<Job>();
    job->answer->receive(std::move(completion));
    _underWay.push_back({job, job->answer});
    auto opening = std::make_unique<Opening>(job, job->answer);
    background::run([job, probe = std::move(probe)] { job->answer->deliver(probe(job->cancelled)); });
    return opening;
}

void MovieOpener::cancelAll() {
    if (_underWay.empty())
        return;
    for (const UnderWay& one : std::exchange(_underWay, {})) {
        if (const auto answer = one.answer.lock())
            answer->abandon();
        if (const auto job = one.job.lock())
            job->cancelled = true;
    }
    background::waitUntilIdle(endTimeout);
}

} // namespace platform

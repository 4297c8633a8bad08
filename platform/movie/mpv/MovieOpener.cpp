// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieOpener.h"

#include "platform/movie/mpv/Delivery.h"

#include <thread>
#include <utility>

namespace platform {

struct MovieOpener::Job {
    std::atomic<bool> cancelled{false};
    std::atomic<bool> ended{false};
    const std::shared_ptr<Delivery<OpenedMovie>> answer = std::make_shared<Delivery<OpenedMovie>>();
    std::thread thread;

    void cancel() {
        cancelled = true;
        answer->abandon();
    }
    ~Job() {
        if (thread.joinable())
            thread.join();
    }
};

class MovieOpener::Opening final : public MovieOpening {
public:
    explicit Opening(std::weak_ptr<Job> job)
        : _job(std::move(job)) {}
    ~Opening() override {
        // The thread is not waited for: looking up a name cannot be interrupted.
        if (const auto job = _job.lock())
            job->cancel();
    }

private:
    std::weak_ptr<Job> _job;
};

MovieOpener::MovieOpener() = default;

MovieOpener::~MovieOpener() {
    cancelAll();
}

std::unique_ptr<MovieOpening> MovieOpener::open(Probe probe, std::function<void(OpenedMovie)> completion) {
    std::erase_if(_jobs, [](const auto& job) { return job->ended.load(); });
    const auto job = std::make_shared<Job>();
    job->answer->receive(std::move(completion));
    // The thread ends before its job does, which waits for it.
    job->thread = std::thread([job = job.get(), probe = std::move(probe)] {
        job->answer->deliver(probe(job->cancelled));
        job->ended = true;
    });
    _jobs.push_back(job);
    return std::make_unique<Opening>(job);
}

void MovieOpener::cancelAll() {
    for (const auto& job : _jobs)
        job->cancel();
    _jobs.clear();
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrameDecoder.h"

#include <atomic>
#include <thread>
#include <vector>

namespace platform {

struct FirstFrameDecoder::Job {
    std::atomic<bool> cancelled{false};
    std::atomic<bool> ended{false};
    std::thread thread;

    ~Job() {
        if (thread.joinable())
            thread.join();
    }
};

FirstFrameDecoder::FirstFrameDecoder() = default;

FirstFrameDecoder::~FirstFrameDecoder() {
    finish();
}

PreparedFrame FirstFrameDecoder::decode(const QUrl& url) {
    cancel();
    std::erase_if(_jobs, [](const auto& job) { return job->ended.load(); });
    PreparedFrame prepared{url, std::make_shared<Delivery<std::shared_ptr<const FirstFrame>>>()};
    auto job = std::make_unique<Job>();
    // The thread ends before its job does, which waits for it.
    job->thread = std::thread([job = job.get(), prepared] {
        prepared.frame->deliver(FirstFrame::decode(prepared.url, job->cancelled));
        job->ended = true;
    });
    _jobs.push_back(std::move(job));
    return prepared;
}

void FirstFrameDecoder::cancel() {
    for (const auto& job : _jobs)
        job->cancelled = true;
}

void FirstFrameDecoder::finish() {
    cancel();
    _jobs.clear();
}

} // namespace platform

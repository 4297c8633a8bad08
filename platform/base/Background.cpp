// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Background.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace platform::background {

namespace {

struct Running {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;
};

/// Never destroyed: a thread that was left behind may still end.
Running& running() {
    static Running& threads = *new Running;
    return threads;
}

} // namespace

void run(std::function<void()> work) {
    {
        const std::scoped_lock lock(running().mutex);
        ++running().count;
    }
    std::thread([work = std::move(work)]() mutable {
        work();
        work = nullptr; // what it holds goes before the thread counts as ended
        const std::scoped_lock lock(running().mutex);
        --running().count;
        running().changed.notify_all();
    }).detach();
}

bool waitUntilIdle(double seconds) {
    std::unique_lock lock(running().mutex);
    return running().changed.wait_for(lock, std::chrono::duration<double>(seconds),
                                      [] { return running().count == 0; });
}

} // namespace platform::background

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

/// A run loop whose time stands still until the test moves it. The thread that moves it is its main thread.
class ManualRunLoop final : public platform::RunLoop {
public:
    ~ManualRunLoop() override;

    double now() const override { return _now; }
    QDateTime date() const override;
    void perform(std::function<void()> work, double delay) override;
    void post(std::function<void()> work) override;
    [[nodiscard]] std::unique_ptr<platform::Timer> schedule(double interval, bool repeats,
                                                            std::function<void()> work) override;

    /// Lets that many seconds pass: what becomes due runs in the order of its time, and of its scheduling where the
    /// times are equal, with now() standing at its time. May be called from inside a callback.
    void advance(double seconds);
    /// Runs what is due now.
    void runPending() { advance(0); }
    /// Waits in real time until another thread has posted something, and runs what is due then; false when nothing came
    /// for that many seconds. Time itself stands still meanwhile.
    bool runPosted(double timeout = 30);
    /// What is posted waits for runPosted() from here on, however quick the other thread is.
    void holdPosted() { _holdsPosted = true; }
    /// How many timers, performs and posted works still wait.
    std::size_t pendingCount();

private:
    struct Work;
    class ManualTimer;
    std::shared_ptr<Work> add(Work work);

    void takePosted();

    bool _holdsPosted = false;
    std::mutex _postedMutex;
    std::condition_variable _postedSomething;
    std::vector<std::function<void()>> _posted;
    std::vector<std::shared_ptr<Work>> _waiting;
    std::atomic<double> _now = 0;
    std::uint64_t _scheduled = 0;
};

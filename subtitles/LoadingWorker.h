// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

namespace platform {
class RunLoop;
} // namespace platform

/// The thread that loads a track, and word of its progress on the main thread. Main thread, except where said.
class LoadingWorker {
public:
    /// The loop outlives the worker.
    explicit LoadingWorker(platform::RunLoop& loop);
    LoadingWorker(const LoadingWorker&) = delete;
    LoadingWorker& operator=(const LoadingWorker&) = delete;
    /// Stops.
    ~LoadingWorker();

    /// Who is told soon after report(), and after the work has ended; null for nobody.
    void setObserver(std::function<void()> observer);
    /// Begins `work` on the thread. Not while it is running.
    void start(std::function<void()> work);
    bool isRunning() const { return _running; }
    /// Returns when the work has ended.
    void wait();
    /// Asks the work to end, and waits.
    void stop();

    /// Whether the work is asked to end. Any thread; the work looks at it often.
    const std::atomic<bool>& isAborted() const { return _abort; }
    /// The same for work that waits for something else: it is woken. Of the work that runs, or began last.
    std::stop_token stopToken() const { return _stop.get_token(); }
    /// There is news. By the work; what it reports until the main thread gets to it is told once.
    void report();

private:
    /// What a word on its way needs when it arrives, if the worker is still there then.
    struct Word {
        std::function<void()> observer; // main thread
        std::atomic<bool> isOnItsWay = false;
    };

    platform::RunLoop& _loop;
    std::shared_ptr<Word> _word = std::make_shared<Word>();
    std::atomic<bool> _abort = false;
    std::stop_source _stop;
    std::atomic<bool> _running = false;
    std::thread _thread;
};

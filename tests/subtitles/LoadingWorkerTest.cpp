// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/LoadingWorker.h"
#include "tests/support/ManualRunLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

/// Work that goes on until it is asked to end.
std::function<void()> endless(const LoadingWorker& worker, std::atomic<int>& rounds) {
    return [&] {
        ++rounds;
        while (!worker.isAborted())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
}

} // namespace

TEST(LoadingWorker, work_that_is_asked_to_end_is_waited_for_and_may_begin_anew) {
    ManualRunLoop loop;
    std::atomic<int> rounds = 0;
    LoadingWorker worker(loop);
    EXPECT_FALSE(worker.isRunning());
    for (int round = 1; round <= 3; ++round) {
        worker.start(endless(worker, rounds));
        EXPECT_TRUE(worker.isRunning());
        worker.stop();
        EXPECT_FALSE(worker.isRunning());
        EXPECT_FALSE(worker.isAborted()) << "what begins next is not asked to end";
        EXPECT_EQ(rounds, round);
    }
    worker.start(endless(worker, rounds));
    // The end of the test ends it.
}

TEST(LoadingWorker, news_are_told_on_the_loop_and_once_for_all_that_came_before) {
    ManualRunLoop loop;
    int told = 0;
    {
        LoadingWorker worker(loop);
        worker.setObserver([&] { ++told; });
        worker.start([&] {
            for (int i = 0; i < 100; ++i)
                worker.report();
        });
        worker.wait();
        EXPECT_FALSE(worker.isRunning());
        EXPECT_EQ(told, 0) << "not by the work itself";
        loop.runPending();
        EXPECT_EQ(told, 1);
        told = 0;
        worker.start([] {});
        worker.wait();
        loop.runPending();
        EXPECT_EQ(told, 1) << "the end alone";
        worker.start([&] { worker.report(); });
        worker.wait();
        told = 0;
    }
    loop.runPending();
    EXPECT_EQ(told, 0) << "nobody is left to tell";
}

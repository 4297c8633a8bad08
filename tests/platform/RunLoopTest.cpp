// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/QtRunLoop.h"
#include "tests/support/ManualRunLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <array>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 4;
constexpr int worksOfAThread = 250;

/// Posts from several threads at once; `runUntil` runs the loop on this thread until the condition holds.
void expectPostedWorksToRunHereInOrder(platform::RunLoop& loop,
                                       const std::function<void(const std::function<bool()>&)>& runUntil) {
    const std::thread::id main = std::this_thread::get_id();
    std::array<std::vector<int>, threadCount> ran;
    int total = 0;
    int elsewhere = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int work = 0; work < worksOfAThread; ++work) {
                loop.post([&, thread, work] {
                    ran.at(static_cast<std::size_t>(thread)).push_back(work);
                    elsewhere += std::this_thread::get_id() == main ? 0 : 1;
                    ++total;
                });
            }
        });
    }
    runUntil([&] { return total == threadCount * worksOfAThread; });
    for (std::thread& thread : threads)
        thread.join();

    std::vector<int> inOrder;
    for (int work = 0; work < worksOfAThread; ++work)
        inOrder.push_back(work);
    for (const std::vector<int>& works : ran)
        EXPECT_EQ(works, inOrder);
    EXPECT_EQ(elsewhere, 0);

    bool posted = false;
    bool again = false;
    loop.post([&] {
        posted = true;
        loop.post([&] { again = true; });
        EXPECT_FALSE(again) << "never from inside the call";
    });
    EXPECT_FALSE(posted) << "never from inside the call";
    runUntil([&] { return again; });
    EXPECT_TRUE(again);

    // What holds nothing any more must not be run.
    const auto kept = std::make_shared<int>(0);
    loop.post([kept] { ++*kept; });
    EXPECT_EQ(kept.use_count(), 2);
}

} // namespace

TEST(RunLoop, what_other_threads_post_runs_on_the_main_one_in_their_order) {
    ManualRunLoop loop;
    expectPostedWorksToRunHereInOrder(loop, [&](const auto& done) {
        while (!done() && loop.runPosted()) {
        }
    });
    loop.runPending();
    EXPECT_FALSE(loop.runPosted(0.001)) << "nothing is left";
}

TEST(RunLoop, the_real_one_runs_what_is_posted_even_before_there_is_an_application) {
    auto loop = std::make_unique<platform::QtRunLoop>();
    bool early = false;
    std::thread([&] { loop->post([&] { early = true; }); }).join();

    int argumentCount = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(argumentCount, arguments);
    const auto runUntil = [](const std::function<bool()>& done) {
        const QDeadlineTimer deadline(30000);
        while (!done() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    };
    runUntil([&] { return early; });
    EXPECT_TRUE(early);
    expectPostedWorksToRunHereInOrder(*loop, runUntil);

    // Timers.
    QStringList fired;
    const auto note = [&fired](const char* timer) { return [&fired, timer] { fired << timer; }; };
    const double began = loop->now();
    const auto once = loop->schedule(0.03, false, note("once"));
    const auto repeating = loop->schedule(0.002, true, note("again"));
    const auto hastened = loop->schedule(60, false, note("hastened"));
    const auto ended = loop->schedule(0, false, note("ended"));
    loop->perform(note("performed"), 0.04);
    hastened->rearm(0.01);
    ended->invalidate();
    ended->rearm(0);
    runUntil([&] { return fired.contains("performed") && fired.count("again") >= 3; });
    EXPECT_GE(loop->now() - began, 0.04);
    EXPECT_TRUE(repeating->isValid());
    repeating->invalidate();
    EXPECT_FALSE(once->isValid() || hastened->isValid() || repeating->isValid());
    const qsizetype repeats = fired.removeAll("again");
    EXPECT_GE(repeats, 3);
    EXPECT_EQ(fired, (QStringList{"hastened", "once", "performed"}));
    runUntil([&, until = loop->now() + 0.05] { return loop->now() > until; });
    EXPECT_EQ(fired.size(), 3);

    bool late = false;
    loop->post([&] { late = true; });
    loop.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(late) << "what is left when the loop goes never runs";
}

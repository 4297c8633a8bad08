// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieOpener.h"

#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "tests/support/ManualRunLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <vector>

using namespace platform;

namespace {

struct InstalledLoop {
    InstalledLoop() { RunLoop::setMain(&loop); }
    ~InstalledLoop() { RunLoop::setMain(nullptr); }
    ManualRunLoop* operator->() { return &loop; }
    ManualRunLoop loop;
};

OpenedMovie failing(std::int16_t error) {
    return {std::nullopt, error};
}

/// A probe that gives up when it is told to, and not before.
OpenedMovie waitForCancelling(const std::atomic<bool>& cancelled) {
    while (!cancelled)
        std::this_thread::yield();
    return failing(movieError::timedOut);
}

} // namespace

TEST(Delivery, comes_with_whichever_of_value_and_receiver_is_later) {
    // Before the receiver, a run loop need not even exist.
    const auto early = std::make_shared<Delivery<int>>();
    std::thread([&] { early->deliver(1); }).join();
    InstalledLoop loop;
    std::vector<int> received;
    const auto receiver = [&received](int value) { received.push_back(value); };
    early->receive(receiver);
    EXPECT_EQ(received, (std::vector{1})) << "at once";

    const auto late = std::make_shared<Delivery<int>>();
    late->receive(receiver);
    std::thread([&] { late->deliver(2); }).join();
    EXPECT_EQ(received, (std::vector{1})) << "not on the thread";
    EXPECT_TRUE(loop->runPosted(5));
    EXPECT_EQ(received, (std::vector{1, 2}));

    const auto abandoned = std::make_shared<Delivery<int>>();
    abandoned->receive(receiver);
    abandoned->deliver(3);
    abandoned->abandon();
    auto gone = std::make_shared<Delivery<int>>();
    gone->receive(receiver);
    gone->deliver(4);
    gone.reset();
    loop->runPending();
    EXPECT_EQ(received, (std::vector{1, 2}));
}

TEST(MovieOpener, calls_each_completion_once_from_the_run_loop) {
    InstalledLoop loop;
    MovieOpener opener;
    std::vector<std::int16_t> errors;
    std::vector<std::unique_ptr<MovieOpening>> openings;
    for (const std::int16_t error : {movieError::fileNotFound, movieError::couldNotOpen}) {
        openings.push_back(opener.open([error](const auto&) { return failing(error); },
                                       [&](const OpenedMovie& opened) { errors.push_back(opened.error); }));
        EXPECT_EQ(errors.size(), openings.size() - 1) << "not from inside the call";
        EXPECT_TRUE(loop->runPosted(5));
        EXPECT_EQ(errors.back(), error);
    }
    openings.clear();
    loop->runPending();
    EXPECT_EQ(errors.size(), 2U);
}

TEST(MovieOpener, one_that_is_given_up_is_interrupted_and_answers_nothing) {
    InstalledLoop loop;
    int answers = 0;
    std::atomic<bool> wasCancelled = false;
    std::optional<MovieOpener> opener(std::in_place);
    const auto probe = [&](const std::atomic<bool>& cancelled) {
        const OpenedMovie answer = waitForCancelling(cancelled);
        wasCancelled = true;
        return answer;
    };
    auto opening = opener->open(probe, [&](const OpenedMovie&) { ++answers; });
    opening.reset();
    EXPECT_TRUE(background::waitUntilIdle(5));
    EXPECT_TRUE(wasCancelled);

    // One that is under way at the end is waited for.
    wasCancelled = false;
    opening = opener->open(probe, [&](const OpenedMovie&) { ++answers; });
    opener.reset();
    EXPECT_TRUE(wasCancelled);
    loop->runPending();
    EXPECT_EQ(answers, 0);
}

TEST(MovieOpener, one_that_cannot_be_interrupted_is_left_behind_and_leaves_the_run_loop_alone) {
    const auto released = std::make_shared<std::promise<void>>();
    {
        InstalledLoop loop;
        MovieOpener opener;
        const auto opening = opener.open(
            [wait = released->get_future().share()](const auto&) {
                wait.wait();
                return failing(movieError::none);
            },
            [](const OpenedMovie&) { ADD_FAILURE() << "given up"; });
        const auto before = std::chrono::steady_clock::now();
        opener.cancelAll();
        EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(1));
        EXPECT_FALSE(background::waitUntilIdle(0));
    }
    released->set_value();
    EXPECT_TRUE(background::waitUntilIdle(5));
}

TEST(MovieOpener, a_completion_may_give_its_own_opening_up_and_open_the_next) {
    InstalledLoop loop;
    MovieOpener opener;
    std::unique_ptr<MovieOpening> opening;
    int answers = 0;
    const MovieOpener::Probe probe = [](const auto&) { return failing(movieError::couldNotOpen); };
    opening = opener.open(probe, [&](const OpenedMovie&) {
        ++answers;
        opening = opener.open(probe, [&](const OpenedMovie&) { ++answers; });
    });
    // The second may come while the first is being run.
    while (answers < 2 && loop->runPosted(5)) {
    }
    EXPECT_EQ(answers, 2);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/NotificationCenter.h"
#include "tests/support/ManualRunLoop.h"

#include <QStringList>

#include <gtest/gtest.h>

TEST(ManualRunLoop, work_runs_in_the_order_of_its_time) {
    ManualRunLoop loop;
    QStringList order;
    const auto note = [&](const QString& name) {
        return [&, name] { order.append(QString("%1@%2").arg(name).arg(loop.now())); };
    };
    loop.perform(note("late"), 0.5);
    const auto timer = loop.schedule(0.2, true, note("timer"));
    loop.perform(note("soon"), 0);
    loop.perform([&] { loop.perform(note("nested"), 0); }, 0.3);
    EXPECT_TRUE(order.isEmpty());
    loop.runPending();
    EXPECT_EQ(order, QStringList{"soon@0"});
    for (int step = 0; step < 5; ++step)
        loop.advance(0.1);
    EXPECT_EQ(order.mid(1), (QStringList{"timer@0.2", "nested@0.3", "timer@0.4", "late@0.5"}));
}

TEST(ManualRunLoop, a_timer_may_end_rearm_or_destroy_itself_in_its_callback) {
    ManualRunLoop loop;
    int fired = 0;
    std::unique_ptr<platform::Timer> timer;
    timer = loop.schedule(1, true, [&] {
        if (++fired == 1)
            timer->rearm(5);
        else
            timer.reset();
    });
    loop.advance(5.9);
    EXPECT_EQ(fired, 1);
    loop.advance(10);
    EXPECT_EQ(fired, 2);
    EXPECT_EQ(loop.pendingCount(), 0U);

    timer = loop.schedule(1, false, [&] { ++fired; });
    timer->fire();
    EXPECT_EQ(fired, 3);
    EXPECT_FALSE(timer->isValid());
    loop.advance(2);
    EXPECT_EQ(fired, 3);
}

TEST(NotificationCenter, observers_may_come_and_go_during_delivery) {
    struct Event {
        int number;
    };
    platform::NotificationCenter center;
    QStringList order;
    platform::Subscription second;
    platform::Subscription third;
    const auto first = center.observe<Event>([&](const Event& event) {
        order.append(QString("first %1").arg(event.number));
        second.reset();
        if (!third)
            third = center.observe<Event>([&](const Event&) { order.append("third"); });
    });
    second = center.observe<Event>([&](const Event&) { order.append("second"); });
    center.post(Event{1});
    EXPECT_EQ(order, QStringList{"first 1"});
    center.post(Event{2});
    EXPECT_EQ(order.mid(1), (QStringList{"first 2", "third"}));
}

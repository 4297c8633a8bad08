// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/NotificationCenter.h"

#include <QStringList>

#include <gtest/gtest.h>

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
        if (event.number == 1)
            third = center.observe<Event>([&](const Event&) { order.append("third"); });
    });
    second = center.observe<Event>([&](const Event&) { order.append("second"); });
    center.post(Event{1});
    EXPECT_EQ(order, QStringList{"first 1"});
    center.post(Event{2});
    EXPECT_EQ(order.mid(1), (QStringList{"first 2", "third"}));
}

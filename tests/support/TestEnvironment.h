// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "tests/support/TestSettings.h"

/// What components are handed in tests: a loop whose time the test moves, notifications of its own, and settings in
/// memory. While it lives its parts are also those that the process-wide accessors answer.
class TestEnvironment final : public TestSettings {
public:
    /// `stored` is what an earlier run left on the disk.
    explicit TestEnvironment(const QVariantMap& stored = {})
        : TestSettings(stored) {
        platform::NotificationCenter::setDefault(&notifications);
    }
    ~TestEnvironment() { platform::NotificationCenter::setDefault(nullptr); }

    platform::NotificationCenter notifications;
    const Environment environment{runLoop, notifications, defaults()};
};

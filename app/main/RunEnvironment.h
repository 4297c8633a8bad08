// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/main/RunSettings.h"
#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/QtRunLoop.h"

/// The environment of a run: the real run loop, the notifications, and the user's settings with this run's own on top.
/// The process's while it lives; made once there is an application object. Main thread.
class RunEnvironment {
public:
    RunEnvironment();
    RunEnvironment(const RunEnvironment&) = delete;
    RunEnvironment& operator=(const RunEnvironment&) = delete;

    RunSettings& settings() { return _settings; }
    const Environment& environment() const { return _environment; }

private:
    /// What the process-wide accessors answer; settings that are prepared use them already.
    class Publication {
    public:
        Publication(platform::RunLoop& loop, platform::NotificationCenter& notifications);
        Publication(const Publication&) = delete;
        Publication& operator=(const Publication&) = delete;
        ~Publication();
    };

    platform::QtRunLoop _loop;
    platform::NotificationCenter _notifications;
    Publication _publication{_loop, _notifications};
    RunSettings _settings;
    Environment _environment;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
class NotificationCenter;
class RunLoop;
class UserDefaults;
} // namespace platform

/// What nearly every component works in: time, the notifications by which the components meet, and the user's
/// settings. The composition makes one; it is handed to constructors, first of their parameters, and copied freely:
/// what it refers to outlives every component. Main thread.
struct Environment {
    platform::RunLoop& loop;
    platform::NotificationCenter& notifications;
    platform::UserDefaults& settings;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {

/// Told whether the user watches. Main thread.
class UserActivity {
public:
    UserActivity() = default;
    UserActivity(const UserActivity&) = delete;
    UserActivity& operator=(const UserActivity&) = delete;
    virtual ~UserActivity() = default;

    /// Keeps screen saver and sleep away while `active` is set. Saying it again costs nothing.
    virtual void setUserActive(bool active) = 0;
};

} // namespace platform

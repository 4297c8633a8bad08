// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the preferences ask of the version check. Main thread.
class VersionChecking {
public:
    virtual ~VersionChecking() = default;

    /// Whether there is anywhere to look for new versions.
    virtual bool hasMirrors() const = 0;
    virtual bool isChecking() const = 0;
    /// The user asks for a check; its outcome is shown in an alert. Nothing while one runs.
    virtual void checkNow() = 0;
};

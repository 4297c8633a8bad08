// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"

#include <QObject>

class VersionChecking;
struct QVVersionCheckNotification;

namespace Ui {
class Preferences;
} // namespace Ui

/// The preferences' controls of the version check: when it was last made and with what result, that one is running, and
/// the button for one now. Without mirrors they make place for a sentence that says who keeps the player up to date.
/// Main thread.
class VersionCheckGroup final : public QObject {
public:
    /// All outlive it.
    VersionCheckGroup(const Environment& environment, const Ui::Preferences& controls, VersionChecking& versions);

    /// Shows what is stored, and what is going on.
    void sync();
    void setEnabled(bool enabled);

private:
    void versionCheckInProgress(const QVVersionCheckNotification& notification);
    void showProgress();
    void updateLastCheckedStatus();

    Environment _environment;
    const Ui::Preferences& _controls;
    VersionChecking& _versions;
    platform::Subscription _preferencesChanged;
    platform::Subscription _versionCheck;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/VersionData.h"
#include "context/Environment.h"
#include "platform/desktop/Desktop.h"
#include "prefs/VersionChecking.h"

#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>

namespace platform {
class Bundle;
class Downloads;
struct DownloadAnswer;
} // namespace platform

class CommandTarget;

/// Downloads what is known of the latest release and the latest beta from the first mirror that answers, compares it
/// with the running build, and tells the user of a newer one. It goes on by itself while the player lives on; its
/// beginning and its end are posted (QVVersionCheckNotification). Nothing while a check runs begins another one.
/// Destroying it ends a running check, which is then not recorded. Main thread.
class VersionCheck final : public VersionChecking {
public:
    /// All outlive it.
    struct Collaborators {
        platform::Downloads& downloads;
        platform::Desktop& desktop;
        CommandTarget& controller;
        const platform::Bundle& bundle;
    };
    VersionCheck(const Environment& environment, const Collaborators& collaborators);
    VersionCheck(const VersionCheck&) = delete;
    VersionCheck& operator=(const VersionCheck&) = delete;
    ~VersionCheck() override;

    /// Whether the check at launch is wanted and due.
    bool shouldCheckLatestVersion() const;
    /// Who asked: the launch, which hears only of a newer version that was not skipped, or the user, who hears of every
    /// outcome but that of a check without mirrors.
    enum class Sender { none, user };
    void checkLatestVersion(Sender sender);

    bool hasMirrors() const override;
    bool isChecking() const override { return _running != nullptr; }
    void checkNow() override { checkLatestVersion(Sender::user); }

private:
    struct Running;

    // The steps of an attempt.
    void tryRoot(const QString& root);
    void answered(const platform::DownloadAnswer& answer);
    void redirected(const QString& root, const platform::DownloadAnswer& answer);
    void attemptFailed();
    void found(const QVariantMap& entry);
    // What it means.
    void upToDate();
    void outdated(const QString& kind, const versionData::Record& record);
    void openDownloadPage(const QString& page);
    void succeeded(const QString& status);
    void finish();

    void showAlert(const platform::Desktop::Alert& alert, std::function<void(int)> answered);
    QString bundleIdentifier() const;

    Environment _environment;
    Collaborators _with;
    std::unique_ptr<Running> _running;
};

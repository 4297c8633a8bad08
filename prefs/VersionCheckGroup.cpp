// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/VersionCheckGroup.h"

#include "context/Notifications.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "prefs/VersionChecking.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <QLocale>

#include <ui_Preferences.h>

namespace {

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

} // namespace

VersionCheckGroup::VersionCheckGroup(const Environment& environment, const Ui::Preferences& controls,
                                     VersionChecking& versions)
    : _environment(environment)
    , _controls(controls)
    , _versions(versions) {
    _preferencesChanged =
        environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto& notification) {
            if (notification.key == kQVNewVersionLastTimeChecked)
                updateLastCheckedStatus();
        });
    _versionCheck = environment.notifications.observe<QVVersionCheckNotification>(
        [this](const auto& notification) { versionCheckInProgress(notification); });
    connect(controls._versionCheckNow, &QPushButton::clicked, this, [this] { _versions.checkNow(); });
}

void VersionCheckGroup::sync() {
    const bool hasMirrors = _versions.hasMirrors();
    for (QWidget* control : std::initializer_list<QWidget*>{
             _controls._versionCheck, _controls._versionCheckBeta, _controls._versionCheckPeriodLabel,
             _controls._versionCheckPeriod, _controls._versionCheckLastTimeLabel, _controls._versionCheckLastTime,
             _controls._versionCheckStatusLabel, _controls._versionCheckStatus, _controls._versionCheckNow})
        control->setVisible(hasMirrors);
    _controls._versionCheckByPackages->setVisible(!hasMirrors);
    setEnabled(_environment.settings.boolForKey(kQVNewVersionShouldCheck));
    updateLastCheckedStatus();
    if (_versions.isChecking())
        showProgress();
    _controls._versionCheckNow->setEnabled(!_versions.isChecking());
}

void VersionCheckGroup::setEnabled(bool enabled) {
    _controls._versionCheckBeta->setEnabled(enabled);
    _controls._versionCheckPeriod->setEnabled(enabled);
}

void VersionCheckGroup::versionCheckInProgress(const QVVersionCheckNotification& notification) {
    const bool isRunning = notification.mark == kQVVersionCheckBegin;
    _controls._versionCheckNow->setEnabled(!isRunning);
    if (isRunning)
        showProgress();
    else
        updateLastCheckedStatus();
}

void VersionCheckGroup::showProgress() {
    _controls._versionCheckLastTime->setText(localized("Checking now..."));
    _controls._versionCheckNow->repaint();
    _controls._versionCheckLastTime->repaint();
}

void VersionCheckGroup::updateLastCheckedStatus() {
    const QDateTime date = _environment.settings.dateForKey(kQVNewVersionLastTimeChecked);
    _controls._versionCheckLastTime->setText(
        date.isValid() ? QLocale::system().toString(date.toLocalTime(), QLocale::ShortFormat) : localized("Never"));
    _controls._versionCheckStatus->setText(date.isValid() ? _environment.settings.stringForKey(kQVNewVersionStatus)
                                                          : localized("Unknown"));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchQuestions.h"

#include "app/WebAddress.h"
#include "platform/base/Bundle.h"
#include "platform/base/Localization.h"
#include "platform/base/PropertyValue.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

namespace {

constexpr const char* className = "QVAppController";
constexpr qint64 kQVSecondsInDay = 86400;
constexpr qint64 secondsBetweenPrompts = 7 * kQVSecondsInDay;
/// The builds that first asked, and showed the help as it is now.
constexpr std::int32_t buildThatAsks = 14;
constexpr std::int32_t buildWithHelp = 21;

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

} // namespace

void LaunchQuestions::runFirstTimeConfig() {
    platform::UserDefaults& settings = _environment.settings;
    const std::int32_t current =
        platform::propertyValue::toInteger(_bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleVersion")));
    const std::int32_t last = settings.integerForKey(kQVLastVersionSeen);
    if (current <= last)
        return;
    if (last < buildThatAsks && !settings.stringArrayForKey(kVersionMirrorsKey).isEmpty()) {
        const int answer = _desktop.runAlert({localized("ConfigureCheckForNewVersionMessage"),
                                              localized("ConfigureCheckForNewVersionDetails"), localized("OK"),
                                              QString(), localized("Cancel"), platform::Desktop::AlertIcon::question});
        if (_desktop.isTerminating())
            return;
        settings.setBool(answer == 1, kQVNewVersionShouldCheck);
    }
    if (last < buildWithHelp)
        _showHelp();
    settings.setInteger(current, kQVLastVersionSeen);
}

void LaunchQuestions::askDonation() {
    platform::UserDefaults& settings = _environment.settings;
    if (!settings.boolForKey(kQVAskDonation) || !canDonate())
        return;
    const QDateTime now = _environment.loop.date();
    const QDateTime stored = settings.dateForKey(kQVAskDonationAfter);
    const QDateTime after = stored.isValid() ? stored : now;
    // A date that lies further ahead than any prompt would put it comes from a clock that was wrong.
    if (after > now && after <= now.addSecs(secondsBetweenPrompts))
        return;
    trace("%@: Asking for donation ...", className);
    const int answer =
        _desktop.runAlert({localized("AskDonationMessage"), localized("AskDonationDetails"), localized("Donate..."),
                           QString(), localized("Later"), platform::Desktop::AlertIcon::question});
    if (_desktop.isTerminating())
        return;
    if (answer == 1) {
        donate();
        return;
    }
    trace("%@: ... Choose not donate :-( ...", className);
    settings.setObject(now.addSecs(secondsBetweenPrompts), kQVAskDonationAfter);
}

void LaunchQuestions::donate() {
    trace("%@: ... Donating :-)) ...", className);
    const QString address = _environment.settings.stringForKey(kQVDonationPageURL);
    if (!canDonate())
        logAlways("ERROR: Refusing to open donation page: %@", address);
    else if (_desktop.openURL(QUrl(address)))
        _environment.settings.setBool(false, kQVAskDonation);
}

bool LaunchQuestions::canDonate() const {
    return isWebAddress(QUrl(_environment.settings.stringForKey(kQVDonationPageURL)));
}

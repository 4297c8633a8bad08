// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/ColorSchemePortal.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace platform {

namespace {

const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");

} // namespace

ColorSchemePortal::ColorSchemePortal(Told told)
    : _told(std::move(told)) {
    _bus.use([this](QDBusConnection bus) {
        if (bus.isConnected())
            ask(std::move(bus));
    });
}

void ColorSchemePortal::ask(QDBusConnection bus) {
    // From whoever sends it: a sender's name would be looked up first, and waited for.
    bus.connect(QString(), portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), portalPath,
                                                       settingsInterface, QStringLiteral("Read"));
    call << appearance << colorScheme;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError())
            tell(reply.value().variant());
    });
}

void ColorSchemePortal::settingChanged(const QDBusMessage& signal) {
    const QVariantList said = signal.arguments();
    if (said.size() == 3 && said[0] == appearance && said[1] == colorScheme)
        tell(said[2]);
}

void ColorSchemePortal::tell(const QVariant& value) {
    // "Read" wraps what it answers once more.
    QVariant scheme = value;
    while (scheme.metaType() == QMetaType::fromType<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    bool isNumber = false;
    const uint number = scheme.toUInt(&isNumber);
    if (isNumber) // numbers to come are no preference, as the portal asks
        _told(number == 1 ? Scheme::dark : number == 2 ? Scheme::light : Scheme::noPreference);
}

} // namespace platform

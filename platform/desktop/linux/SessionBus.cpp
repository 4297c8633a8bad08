// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace platform {

namespace {

const QString saverService = QStringLiteral("org.freedesktop.ScreenSaver");
const QString saverPath = QStringLiteral("/org/freedesktop/ScreenSaver");
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString reason = QStringLiteral("Playing a movie");

constexpr double settleDelay = 1.0;

// The portal's flags for what to keep away: suspending and going idle.
constexpr quint32 portalSuspendAndIdle = 4 | 8;

} // namespace

SessionBus::SessionBus() = default;

SessionBus::~SessionBus() {
    if (_held)
        release();
}

void SessionBus::setInhibited(bool inhibited) {
    if (inhibited == _wanted)
        return;
    _wanted = inhibited;
    // After a moment: connecting takes a while that the first picture should not wait for, and a pause may be short.
    _delay = RunLoop::main().schedule(settleDelay, false, [this] { settle(); });
}

void SessionBus::settle() {
    if (_wanted && !_held && !_asking)
        inhibit();
    else if (!_wanted && _held)
        release();
}

void SessionBus::inhibit() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    _asking = true;
    QDBusMessage call =
        QDBusMessage::createMethodCall(saverService, saverPath, saverService, QStringLiteral("Inhibit"));
    call << QStringLiteral("Lumaro") << reason;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<quint32> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            inhibitThroughPortal();
            return;
        }
        _asking = false;
        _held = true;
        _cookie = reply.value();
        if (!_wanted)
            release();
    });
}

void SessionBus::inhibitThroughPortal() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalService, QStringLiteral("/org/freedesktop/portal/desktop"),
                                       QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
    call << QString() << portalSuspendAndIdle << QVariantMap{{QStringLiteral("reason"), reason}};
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        _asking = false;
        if (reply.isError())
            return;
        _held = true;
        _portalRequest = reply.value().path();
        if (!_wanted)
            release();
    });
}

void SessionBus::release() {
    QDBusMessage call;
    if (_portalRequest.isEmpty()) {
        call = QDBusMessage::createMethodCall(saverService, saverPath, saverService, QStringLiteral("UnInhibit"));
        call << _cookie;
    } else {
        call = QDBusMessage::createMethodCall(
            portalService, _portalRequest, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
    }
    QDBusConnection::sessionBus().send(call);
    _held = false;
    _portalRequest.clear();
}

void SessionBus::setBacklight(const QString& light, unsigned level) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1/session/auto"),
        QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("SetBrightness"));
    call << QStringLiteral("backlight") << light << static_cast<quint32>(level);
    QDBusConnection::systemBus().send(call);
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SystemPower.h"

#include "platform/base/Log.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace platform {

namespace {

const QString loginService = QStringLiteral("org.freedesktop.login1");
const QString loginPath = QStringLiteral("/org/freedesktop/login1");
const QString loginManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString prepareSignal = QStringLiteral("PrepareForSleep");

QDBusMessage loginCall(const char* method, const QVariantList& arguments) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(loginService, loginPath, loginManager, QString::fromLatin1(method));
    call.setArguments(arguments);
    call.setInteractiveAuthorizationAllowed(true); // the user may be asked for a password
    return call;
}

QDBusMessage sessionCall(const char* service, const char* path, const char* interface, const char* method,
                         const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(QString::fromLatin1(service), QString::fromLatin1(path),
                                                       QString::fromLatin1(interface), QString::fromLatin1(method));
    call.setArguments(arguments);
    return call;
}

template <class Answered>
void send(QObject* owner, QDBusConnection bus, const QDBusMessage& call, Answered answered) {
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, answered = std::move(answered)] {
        watcher->deleteLater();
        answered(*watcher);
    });
}

/// Nobody there took the request.
bool isUnknown(const QDBusError& error) {
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownObject:
    case QDBusError::UnknownInterface:
        return true;
    default:
        return false;
    }
}

const char* nameOf(PowerCommand command) {
    switch (command) {
    case PowerCommand::sleep:
        return "sleep";
    case PowerCommand::restart:
        return "restart";
    case PowerCommand::shutDown:
        return "shut down";
    case PowerCommand::logOut:
        break;
    }
    return "log out";
}

} // namespace

SystemPower::SystemPower() = default;
SystemPower::~SystemPower() = default;

bool SystemPower::sleep() {
    return ask(PowerCommand::sleep, "Suspend");
}

bool SystemPower::restart() {
    return ask(PowerCommand::restart, "Reboot");
}

bool SystemPower::shutDown() {
    return ask(PowerCommand::shutDown, "PowerOff");
}

bool SystemPower::ask(PowerCommand command, const char* method) {
    const bool isSent = !_system.hasFailed();
    constexpr bool interactive = true;
    ask(command, {{&_system, loginCall(method, {interactive})}});
    return isSent;
}

/// The first call that somebody takes is the request.
void SystemPower::ask(PowerCommand command, std::vector<Call> calls) {
    const Call call = calls.front();
    calls.erase(calls.begin());
    call.bus->use([this, command, message = call.message, others = std::move(calls)](const QDBusConnection& bus) {
        if (!bus.isConnected()) {
            fail(command, bus.lastError().message());
            return;
        }
        send(this, bus, message, [this, command, others](const QDBusPendingCall& answer) {
            if (!answer.isError())
                return;
            if (isUnknown(answer.error()) && !others.empty())
                ask(command, others);
            else
                fail(command, answer.error().message());
        });
    });
}

void SystemPower::fail(PowerCommand command, const QString& reason) {
    Log::write(QStringLiteral("ERROR: SystemPower: Can't %1: %2").arg(QString::fromLatin1(nameOf(command)), reason));
    if (_listener)
        _listener->powerCommandFailed(command, reason);
}

bool SystemPower::logOut() {
    // Who manages the session is known by the names on its bus. Without one there is still the login manager.
    _session.use([this](const QDBusConnection& bus) {
        if (!bus.isConnected()) {
            ask(PowerCommand::logOut, logOutCalls({}));
            return;
        }
        const QDBusMessage names =
            sessionCall("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames", {});
        send(this, bus, names, [this](const QDBusPendingReply<QStringList>& answer) {
            ask(PowerCommand::logOut, logOutCalls(answer.isError() ? QStringList() : answer.value()));
        });
    });
    return !_session.hasFailed() || !_system.hasFailed();
}

std::vector<SystemPower::Call> SystemPower::logOutCalls(const QStringList& sessionServices) {
    std::vector<Call> calls;
    if (sessionServices.contains(QStringLiteral("org.gnome.SessionManager"))) {
        constexpr quint32 withoutAsking = 1;
        calls.push_back({&_session, sessionCall("org.gnome.SessionManager", "/org/gnome/SessionManager",
                                                "org.gnome.SessionManager", "Logout", {withoutAsking})});
    } else if (sessionServices.contains(QStringLiteral("org.kde.ksmserver"))) {
        calls.push_back({&_session, sessionCall("org.kde.Shutdown", "/Shutdown", "org.kde.Shutdown", "logout", {})});
        // Without asking, whatever kind, at once as the user has set it.
        calls.push_back({&_session, sessionCall("org.kde.ksmserver", "/KSMServer", "org.kde.KSMServerInterface",
                                                "logout", {0, 0, 0})});
    } else if (sessionServices.contains(QStringLiteral("org.xfce.SessionManager"))) {
        constexpr bool dialog = false;
        constexpr bool savingTheSession = true;
        calls.push_back({&_session, sessionCall("org.xfce.SessionManager", "/org/xfce/SessionManager",
                                                "org.xfce.Session.Manager", "Logout", {dialog, savingTheSession})});
    }
    const QString session = qEnvironmentVariable("XDG_SESSION_ID", QStringLiteral("auto"));
    calls.push_back({&_system, loginCall("TerminateSession", {session})});
    return calls;
}

void SystemPower::setPowerListener(PowerListener* listener) {
    const bool isFollowed = std::exchange(_listener, listener) != nullptr;
    if (!listener)
        _delay = {};
    if (isFollowed == (listener != nullptr))
        return;
    _system.use([this](QDBusConnection bus) {
        if (!bus.isConnected())
            return;
        if (!_listener) {
            bus.disconnect(loginService, loginPath, loginManager, prepareSignal, this, SLOT(prepareForSleep(bool)));
            return;
        }
        bus.connect(loginService, loginPath, loginManager, prepareSignal, this, SLOT(prepareForSleep(bool)));
        delaySleep();
    });
}

void SystemPower::prepareForSleep(bool begins) {
    if (!_listener)
        return;
    if (begins) {
        _listener->computerWillSleep();
        _delay = {};
    } else {
        _listener->computerDidWake();
        delaySleep();
    }
}

void SystemPower::delaySleep() {
    _system.use([this](const QDBusConnection& bus) {
        const QDBusMessage inhibit =
            loginCall("Inhibit", {QStringLiteral("sleep"), QStringLiteral("Lumaro"),
                                  QStringLiteral("Pausing the movie"), QStringLiteral("delay")});
        send(this, bus, inhibit, [this](const QDBusPendingReply<QDBusUnixFileDescriptor>& answer) {
            if (!answer.isError() && _listener)
                _delay = answer.value();
        });
    });
}

} // namespace platform

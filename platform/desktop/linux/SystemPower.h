// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Power.h"
#include "platform/desktop/linux/BusConnection.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>

#include <functional>
#include <vector>

namespace platform {

/// Power through the login manager (org.freedesktop.login1) on the system's bus, and logging out through the session
/// manager that runs on the session's. Main thread.
class SystemPower final : public QObject, public Power {
    Q_OBJECT
public:
    SystemPower();
    ~SystemPower() override;

    bool sleep() override;
    bool restart() override;
    bool shutDown() override;
    bool logOut() override;
    /// While somebody listens, sleep is delayed until computerWillSleep() has returned.
    void setPowerListener(PowerListener* listener) override;

private Q_SLOTS:
    void prepareForSleep(bool begins);

private:
    struct Call {
        BusConnection* bus;
        QDBusMessage message;
    };

    bool ask(PowerCommand command, const char* method);
    void ask(PowerCommand command, std::vector<Call> calls);
    std::vector<Call> logOutCalls(const QStringList& sessionServices);
    void fail(PowerCommand command, const QString& reason);
    void delaySleep();

    PowerListener* _listener = nullptr;
    BusConnection _system{QDBusConnection::SystemBus};
    BusConnection _session{QDBusConnection::SessionBus};
    /// Keeps the computer from sleeping for as long as it is open, but for a few seconds at most.
    QDBusUnixFileDescriptor _delay;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QProcess>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/prctl.h>

/// A message bus of the test's own, as both the session's and the system's, and the application that connections live
/// in. One at a time.
class PrivateBus {
public:
    PrivateBus() {
        const QTemporaryDir folder;
        const QString configuration = writeFile(
            folder.filePath("bus.conf"), "<busconfig><type>custom</type><listen>unix:tmpdir=/tmp</listen>"
                                         "<auth>EXTERNAL</auth><policy context=\"default\"><allow own=\"*\"/>"
                                         "<allow eavesdrop=\"true\"/>"
                                         "<allow send_destination=\"*\" eavesdrop=\"true\"/></policy></busconfig>");
        _daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        _daemon.start("dbus-daemon", {"--config-file=" + configuration, "--nofork", "--print-address"});
        while (!_daemon.canReadLine() && _daemon.waitForReadyRead()) {
        }
        const QByteArray address = _daemon.readLine().trimmed();
        _isRunning = !address.isEmpty();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    }
    ~PrivateBus() {
        for (const char* name : {"services", "qt_default_session_bus", "qt_default_system_bus"})
            QDBusConnection::disconnectFromBus(name);
        _daemon.kill();
        _daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    bool isRunning() const { return _isRunning; }
    /// For the services that the test plays.
    static QDBusConnection connection() {
        return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "services");
    }
    static bool waitFor(const std::function<bool()>& done) {
        const QDeadlineTimer deadline(10000);
        while (!done() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return done();
    }

private:
    int _argumentCount = 1;
    char _name[5] = "test";
    char* _arguments[2] = {_name, nullptr};
    QCoreApplication _application{_argumentCount, _arguments};
    QProcess _daemon;
    bool _isRunning = false;
};

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
/// in. One at a time; the daemon stays for the process, in which the library reads the addresses once.
class PrivateBus {
public:
    PrivateBus() {
        static const QByteArray address = startDaemon();
        _isRunning = !address.isEmpty();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    }
    ~PrivateBus() {
        for (const char* name : {"services", "qt_default_session_bus", "qt_default_system_bus"})
            QDBusConnection::disconnectFromBus(name);
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
    /// The kernel ends it with the test.
    static QByteArray startDaemon() {
        static auto* const daemon = new QProcess;
        const QTemporaryDir folder;
        const QString configuration = writeFile(
            folder.filePath("bus.conf"), "<busconfig><type>custom</type><listen>unix:tmpdir=/tmp</listen>"
                                         "<auth>EXTERNAL</auth><policy context=\"default\"><allow own=\"*\"/>"
                                         "<allow eavesdrop=\"true\"/>"
                                         "<allow send_destination=\"*\" eavesdrop=\"true\"/></policy></busconfig>");
        daemon->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon->start("dbus-daemon", {"--config-file=" + configuration, "--nofork", "--print-address"});
        while (!daemon->canReadLine() && daemon->waitForReadyRead()) {
        }
        return daemon->readLine().trimmed();
    }

    int _argumentCount = 1;
    char _name[5] = "test";
    char* _arguments[2] = {_name, nullptr};
    QCoreApplication _application{_argumentCount, _arguments};
    bool _isRunning = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/CapturedLog.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/PrivateBus.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QHash>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <functional>
#include <memory>
#include <optional>
#include <unistd.h>

/// Plays every service at once, and keeps what was asked of it as a text.
class FakeServices final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        QStringList arguments;
        for (const QVariant& argument : call.arguments())
            arguments.append(argument.toString());
        calls.append(call.path() + ' ' + call.interface() + '.' + call.member() + '(' + arguments.join('|') + ')');
        if (repliesLate)
            unanswered = call;
        else
            answer(call, bus);
        return true;
    }
    void answer(const QDBusMessage& call, const QDBusConnection& bus) {
        if (refusals.contains(call.member()))
            bus.send(call.createErrorReply(refusals[call.member()], "not now"));
        else if (call.interface() == "org.freedesktop.ScreenSaver" && call.member() == "Inhibit")
            bus.send(call.createReply(7U));
        else if (call.interface() == "org.freedesktop.login1.Manager" && call.member() == "Inhibit")
            bus.send(call.createReply(QVariant::fromValue(inhibition())));
        else if (call.member() == "Inhibit")
            bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath("/request/1"))));
        else
            bus.send(call.createReply());
    }
    /// Whether sleep is delayed: somebody holds what was answered.
    bool isDelayed() const {
        char byte = 0;
        return _pipe >= 0 && ::read(_pipe, &byte, 1) < 0; // its end is read when nobody does
    }
    ~FakeServices() override {
        if (_pipe >= 0)
            ::close(_pipe);
    }

    QStringList calls;
    QHash<QString, QDBusError::ErrorType> refusals; // by method
    bool repliesLate = false;
    std::optional<QDBusMessage> unanswered;

private:
    QDBusUnixFileDescriptor inhibition() {
        int ends[2];
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC | O_NONBLOCK), 0);
        if (_pipe >= 0)
            ::close(_pipe);
        _pipe = ends[0];
        QDBusUnixFileDescriptor held;
        held.giveFileDescriptor(ends[1]);
        return held;
    }
    int _pipe = -1;
};

/// Services of the test's own on a bus of its own.
class PrivateBusTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        daemon = std::make_unique<PrivateBus>();
        ASSERT_TRUE(daemon->isRunning()) << "dbus-daemon doesn't run";
    }
    static void TearDownTestSuite() { daemon.reset(); }

    PrivateBusTest() {
        platform::RunLoop::setMain(&runLoop);
        EXPECT_TRUE(servicesBus.isConnected()) << servicesBus.lastError().message().toStdString();
        EXPECT_TRUE(servicesBus.registerVirtualObject("/", &services, QDBusConnection::SubPath));
    }
    ~PrivateBusTest() override {
        servicesBus.unregisterObject("/", QDBusConnection::UnregisterTree);
        for (const QString& service : offered)
            servicesBus.unregisterService(service);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        platform::RunLoop::setMain(nullptr);
    }
    void offer(const QString& service) {
        ASSERT_TRUE(servicesBus.registerService(service));
        offered.append(service);
    }
    bool waitFor(const std::function<bool()>& done) {
        return PrivateBus::waitFor([&] {
            runLoop.runPending();
            return done();
        });
    }
    bool waitForCalls(qsizetype count) {
        return waitFor([&] { return services.calls.size() >= count; });
    }

    static inline std::unique_ptr<PrivateBus> daemon;
    ManualRunLoop runLoop;
    CapturedLog log;
    FakeServices services;
    QStringList offered;
    QDBusConnection servicesBus = PrivateBus::connection();
};

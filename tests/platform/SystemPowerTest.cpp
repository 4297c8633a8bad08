// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SystemPower.h"
#include "platform/base/Background.h"
#include "tests/support/FakeServices.h"

using platform::SystemPower;

namespace {

const QString loginManager("org.freedesktop.login1");
const QString manager("/org/freedesktop/login1 org.freedesktop.login1.Manager.");

class Told final : public platform::PowerListener {
public:
    QStringList events;
    std::function<void()> whileSlowToSleep;
    void computerWillSleep() override {
        if (whileSlowToSleep)
            whileSlowToSleep();
        events << "sleeps";
    }
    void computerDidWake() override { events << "woke"; }
    void powerCommandFailed(platform::PowerCommand command, const QString& reason) override {
        events << QString("%1: %2").arg(static_cast<int>(command)).arg(reason);
    }
};

class SystemPowerTest : public PrivateBusTest {
protected:
    SystemPowerTest() { qputenv("XDG_SESSION_ID", "c7"); }
    ~SystemPowerTest() override {
        wasConnected = true;
        power.reset();
        qunsetenv("XDG_SESSION_ID");
        platform::background::waitUntilIdle(10);
    }
    void prepareForSleep(bool begins) {
        QDBusMessage signal =
            QDBusMessage::createSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
        signal << begins;
        servicesBus.send(signal);
    }

    static inline bool wasConnected = false;
    Told told;
    std::unique_ptr<SystemPower> power = std::make_unique<SystemPower>();
};

} // namespace

TEST_F(SystemPowerTest, three_commands_are_asked_of_the_login_manager_with_the_users_password_if_need_be) {
    offer(loginManager);
    EXPECT_TRUE(power->sleep());
    EXPECT_TRUE(power->restart());
    EXPECT_TRUE(power->shutDown());
    EXPECT_TRUE(services.calls.isEmpty()) << "nobody waited for the bus";
    ASSERT_TRUE(waitForCalls(3));
    EXPECT_EQ(services.calls,
              (QStringList{manager + "Suspend(true)", manager + "Reboot(true)", manager + "PowerOff(true)"}));
}

TEST_F(SystemPowerTest, logging_out_asks_the_session_manager_that_runs) {
    const QString gnome = "/org/gnome/SessionManager org.gnome.SessionManager.Logout(1)";
    const QString xfce = "/org/xfce/SessionManager org.xfce.Session.Manager.Logout(false|true)";
    const QString plasma = "/Shutdown org.kde.Shutdown.logout()";
    const QString olderPlasma = "/KSMServer org.kde.KSMServerInterface.logout(0|0|0)";
    const struct {
        QStringList services, asked;
        bool isUnknown = false;
    } cases[] = {
        {{"org.gnome.SessionManager"}, {gnome}},
        {{"org.xfce.SessionManager"}, {xfce}},
        {{"org.kde.ksmserver", "org.kde.Shutdown"}, {plasma}},
        {{"org.kde.ksmserver"}, {olderPlasma}},
        {{}, {manager + "TerminateSession(c7)"}},
        {{"org.gnome.SessionManager"}, {gnome, manager + "TerminateSession(c7)"}, true},
    };
    for (const auto& c : cases) {
        services.calls.clear();
        services.refusals.clear();
        if (c.isUnknown)
            services.refusals["Logout"] = QDBusError::UnknownMethod;
        offer(loginManager);
        for (const QString& service : c.services)
            offer(service);
        EXPECT_TRUE(power->logOut());
        ASSERT_TRUE(waitForCalls(c.asked.size())) << c.asked.join(u' ').toStdString();
        EXPECT_EQ(services.calls, c.asked);
        for (const QString& service : std::exchange(offered, {}))
            servicesBus.unregisterService(service);
    }
    // Who refuses has been asked: nobody is thrown out another way.
    offer(loginManager);
    offer("org.gnome.SessionManager");
    services.calls.clear();
    services.refusals["Logout"] = QDBusError::AccessDenied;
    power->setPowerListener(&told);
    power->logOut();
    ASSERT_TRUE(waitFor([&] { return told.events.size() == 1; }));
    EXPECT_EQ(told.events, QStringList{"3: not now"});
    EXPECT_EQ(services.calls.filter("TerminateSession").size(), 0);
}

TEST_F(SystemPowerTest, a_refusal_is_logged_and_told) {
    offer(loginManager);
    power->setPowerListener(&told);
    services.refusals["Suspend"] = QDBusError::AccessDenied;
    EXPECT_TRUE(power->sleep()) << "it was sent";
    ASSERT_TRUE(waitFor([&] { return !told.events.isEmpty(); }));
    EXPECT_EQ(told.events, QStringList{"0: not now"});
    EXPECT_TRUE(log.contains("ERROR: SystemPower: Can't sleep: not now"));
}

TEST_F(SystemPowerTest, without_a_bus_nothing_is_sent_and_the_reason_told) {
    if (wasConnected)
        GTEST_SKIP() << "the library keeps the bus of an earlier test; ctest gives each a process of its own";
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
    power->setPowerListener(&told);
    power->sleep(); // what becomes of it is known later
    ASSERT_TRUE(waitFor([&] { return told.events.size() == 1; }));
    EXPECT_FALSE(power->sleep());
    EXPECT_EQ(told.events.size(), 2);
    EXPECT_EQ(log.count("ERROR: SystemPower: Can't sleep"), 2);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
}

TEST_F(SystemPowerTest, sleep_waits_until_the_listener_is_done_and_is_followed_again_after_it) {
    offer(loginManager);
    power->setPowerListener(&told);
    const QString inhibit = manager + "Inhibit(sleep|Lumaro|Pausing the movie|delay)";
    ASSERT_TRUE(waitForCalls(1));
    EXPECT_EQ(services.calls, QStringList{inhibit});
    bool wasDelayed = false;
    told.whileSlowToSleep = [&] { wasDelayed = wasDelayed || services.isDelayed(); };
    // The answer must have come before the computer sleeps.
    ASSERT_TRUE(waitFor([&] {
        prepareForSleep(true);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return wasDelayed;
    }));
    EXPECT_TRUE(waitFor([&] { return !services.isDelayed(); }));
    told.events.clear();
    prepareForSleep(false);
    ASSERT_TRUE(waitForCalls(2)) << "the next sleep is delayed, too";
    EXPECT_TRUE(told.events.contains("woke"));
    ASSERT_TRUE(waitFor([&] { return services.isDelayed(); }));

    power->setPowerListener(nullptr);
    EXPECT_TRUE(waitFor([&] { return !services.isDelayed(); }));
    told.events.clear();
    prepareForSleep(true);
    power->sleep();
    ASSERT_TRUE(waitForCalls(3));
    EXPECT_TRUE(told.events.isEmpty());
}

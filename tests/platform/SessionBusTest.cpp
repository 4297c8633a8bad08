// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SessionBus.h"
#include "tests/support/FakeServices.h"

#include <memory>

using platform::SessionBus;

namespace {

const QString saver("org.freedesktop.ScreenSaver");
const QString portal("org.freedesktop.portal.Desktop");
const QString loginManager("org.freedesktop.login1");

class SessionBusTest : public PrivateBusTest {
protected:
    ~SessionBusTest() override { bus.reset(); }
    /// Whatever was asked before has come by now: messages of one sender stay in order.
    void expectNoFurtherCall() {
        const QStringList before = services.calls;
        bus->setBacklight("fence", 0);
        ASSERT_TRUE(waitForCalls(before.size() + 1));
        EXPECT_EQ(services.calls.mid(0, before.size()), before);
        EXPECT_TRUE(services.calls.takeLast().contains("SetBrightness"));
    }

    std::unique_ptr<SessionBus> bus = std::make_unique<SessionBus>();
    const QString inhibit = "/org/freedesktop/ScreenSaver org.freedesktop.ScreenSaver.Inhibit(Lumaro|Playing a movie)";
    const QString release = "/org/freedesktop/ScreenSaver org.freedesktop.ScreenSaver.UnInhibit(7)";
};

} // namespace

TEST_F(SessionBusTest, the_screen_saver_is_kept_away_while_asked_and_a_short_pause_asks_nothing) {
    offer(saver);
    offer(loginManager);
    bus->setInhibited(true);
    runLoop.advance(0.9);
    expectNoFurtherCall();
    runLoop.advance(0.2);
    ASSERT_TRUE(waitForCalls(1));
    EXPECT_EQ(services.calls, QStringList{inhibit});

    bus->setInhibited(false);
    runLoop.advance(0.5);
    bus->setInhibited(true);
    runLoop.advance(2);
    expectNoFurtherCall();
    EXPECT_EQ(services.calls, QStringList{inhibit});

    bus->setInhibited(false);
    runLoop.advance(1.1);
    ASSERT_TRUE(waitForCalls(2));
    EXPECT_EQ(services.calls.last(), release);

    bus->setInhibited(true);
    runLoop.advance(1.1);
    ASSERT_TRUE(waitForCalls(3));
    expectNoFurtherCall(); // its answer comes after the one that is waited for
    bus.reset();
    ASSERT_TRUE(waitForCalls(4)) << "who goes lets the screen saver come again";
    EXPECT_EQ(services.calls.last(), release);
}

TEST_F(SessionBusTest, an_answer_that_comes_when_nobody_wants_it_any_more_is_given_back) {
    offer(saver);
    services.repliesLate = true;
    bus->setInhibited(true);
    runLoop.advance(1.1);
    ASSERT_TRUE(waitForCalls(1));
    bus->setInhibited(false);
    runLoop.advance(1.1);
    services.repliesLate = false;
    services.answer(*services.unanswered, servicesBus);
    ASSERT_TRUE(waitForCalls(2));
    EXPECT_EQ(services.calls, (QStringList{inhibit, release}));
}

TEST_F(SessionBusTest, a_session_without_a_screen_saver_is_asked_through_the_portal) {
    offer(portal);
    bus->setInhibited(true);
    runLoop.advance(1.1);
    ASSERT_TRUE(waitForCalls(1));
    EXPECT_EQ(services.calls.last(), "/org/freedesktop/portal/desktop org.freedesktop.portal.Inhibit.Inhibit(|12|)");
    bus->setInhibited(false);
    // Its answer is on its way.
    ASSERT_TRUE(waitFor([&] {
        runLoop.advance(1.1);
        return services.calls.size() > 1;
    }));
    EXPECT_EQ(services.calls.last(), "/request/1 org.freedesktop.portal.Request.Close()");
    bus->setInhibited(true);
    runLoop.advance(1.1);
    EXPECT_TRUE(waitForCalls(3)) << "it may ask again";
}

TEST_F(SessionBusTest, a_session_without_either_is_left_alone) {
    offer(loginManager);
    bus->setInhibited(true);
    runLoop.advance(1.1);
    expectNoFurtherCall();
    bus->setInhibited(false);
    runLoop.advance(1.1);
    expectNoFurtherCall();
    EXPECT_TRUE(services.calls.isEmpty());
}

TEST_F(SessionBusTest, the_login_manager_sets_the_light) {
    offer(loginManager);
    bus->setBacklight("intel_backlight", 300);
    ASSERT_TRUE(waitForCalls(1));
    EXPECT_EQ(services.calls,
              (QStringList{"/org/freedesktop/login1/session/auto "
                           "org.freedesktop.login1.Session.SetBrightness(backlight|intel_backlight|300)"}));
}

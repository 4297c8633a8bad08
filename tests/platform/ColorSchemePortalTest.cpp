// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/ColorSchemePortal.h"
#include "platform/base/Background.h"
#include "tests/support/FakePortal.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

using platform::ColorSchemePortal;
using Scheme = ColorSchemePortal::Scheme;

TEST(ColorSchemePortal, tells_what_the_desktop_wishes_and_each_change_of_it) {
    const PrivateBus bus;
    ManualRunLoop runLoop;
    platform::RunLoop::setMain(&runLoop);
    const auto waitFor = [&](const std::function<bool()>& done) {
        return PrivateBus::waitFor([&] {
            runLoop.runPending();
            return done();
        });
    };
    ASSERT_TRUE(bus.isRunning()) << "dbus-daemon doesn't run";
    FakePortal portal{PrivateBus::connection()};
    ASSERT_TRUE(portal.offer());
    const struct {
        QVariant setting;
        Scheme told;
    } cases[] = {{1U, Scheme::dark}, {2U, Scheme::light}, {0U, Scheme::noPreference}, {77U, Scheme::noPreference}};
    QList<Scheme> told;
    const auto note = [&](Scheme scheme) { told << scheme; };
    for (const auto& c : cases) {
        portal.colorScheme = c.setting;
        told.clear();
        const ColorSchemePortal scheme(note);
        EXPECT_TRUE(waitFor([&] { return told == QList{c.told}; })) << c.setting.toUInt();
    }
    EXPECT_EQ(portal.calls.last(), "Read(org.freedesktop.appearance|color-scheme)");

    // A portal without the setting says nothing, nor do other settings; what comes later does.
    portal.colorScheme = QVariant();
    portal.calls.clear();
    told.clear();
    const ColorSchemePortal scheme(note);
    ASSERT_TRUE(waitFor([&] { return !portal.calls.isEmpty(); }));
    portal.changeSetting("org.freedesktop.appearance", "accent-color", 2U);
    portal.changeSetting("org.gnome.desktop.interface", "color-scheme", 2U);
    portal.changeSetting("org.freedesktop.appearance", "color-scheme", "dark");
    portal.changeSetting("org.freedesktop.appearance", "color-scheme", 1U);
    EXPECT_TRUE(waitFor([&] { return !told.isEmpty(); }));
    EXPECT_EQ(told, QList{Scheme::dark});
    portal.withdraw();
    platform::background::waitUntilIdle(10);
    platform::RunLoop::setMain(nullptr);
}

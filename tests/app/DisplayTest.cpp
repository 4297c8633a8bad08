// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CurrentTexts.h"
#include "app/ScreenBrightness.h"
#include "overlays/QVOSDOverlay.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"
#include "tests/support/CapturedLog.h"

#include <gtest/gtest.h>

#include <limits>

TEST(ScreenBrightness, only_what_a_screen_can_show_is_set) {
    FakeDesktop desktop;
    const platform::Screen screen{platform::Rect(0, 0, 100, 100), true, 1, "Main"};
    const CapturedLog log;
    for (const float refused : {-0.01F, 1.01F, std::numeric_limits<float>::quiet_NaN()}) {
        desktop.brightnessLevels[1] = 0.5F;
        setBrightnessOf(desktop, screen, refused);
        EXPECT_EQ(brightnessOf(desktop, screen), 0.5F) << refused;
    }
    ASSERT_EQ(log.lines().size(), 3);
    EXPECT_TRUE(log.lines()[1].startsWith("Screen: ERROR: Attempt to set invalid brightness: 1.01"));
    for (const float taken : {0.0F, 0.3F, 1.0F}) {
        setBrightnessOf(desktop, screen, taken);
        EXPECT_EQ(brightnessOf(desktop, screen), taken);
        setBrightnessOf(desktop, {screen.frame, false, 1, "None"}, 0.5F);
        EXPECT_EQ(brightnessOf(desktop, screen), taken) << "not of a screen";
    }
    EXPECT_EQ(brightnessOf(desktop, {screen.frame, false, 1, "None"}), std::numeric_limits<float>::infinity());
    EXPECT_EQ(log.lines().size(), 3);
}

TEST(CurrentTexts, the_display_says_what_the_movie_the_list_and_the_settings_are) {
    AppRig rig({{kQVOnLaunchDefaultAction, 0}});
    rig.launch();
    const auto said = [&](int type) {
        rig.objects->display().setDisplayType(0);
        rig.objects->display().setDisplayType(type);
        return QVOSDOverlay::sharedOSDOverlay().text().toStdString();
    };
    EXPECT_EQ(said(1), "Time: 0:00:00/0:00:00");
    rig.app.openFile(rig.file("a.mp4"));
    rig.settings.runLoop.runPending();
    rig.view.setTime(3000);
    rig.view.setVolume(0.5F);
    EXPECT_EQ(said(1), "Time: 0:00:05/0:01:00");
    EXPECT_EQ(said(2), "Movie: a.mp4 (1/1)");
    EXPECT_EQ(said(3), "Subtitles: None");
    EXPECT_EQ(said(4), "Loop: Off");
    EXPECT_EQ(said(5), "Volume: 50%");
}

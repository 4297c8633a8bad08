// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ScreenWalk.h"
#include "control/SpeedSteps.h"
#include "control/VolumeSteps.h"

#include "platform/base/Localization.h"

#include <gtest/gtest.h>

TEST(VolumeSteps, Steps_are_fine_near_silence_and_coarse_above_twice_the_normal_volume) {
    using namespace volumeControl;
    // In single precision 2.1 and 0.11 lie just below the limits of those names, and 1.99 just above.
    const struct {
        std::int32_t control;
        float before, after;
    } cases[] = {
        {up, 0.0F, 0.01F},         {up, 1.98F, 1.98F + 0.1F},    {up, 2.0F, 2.25F},   {up, 1.99F, 1.99F + 0.25F},
        {down, 2.1F, 2.1F - 0.1F}, {down, 0.11F, 0.11F - 0.01F}, {down, 2.25F, 2.0F}, {down, 0.005F, 0.0F},
        {down, 0.0F, 0.0F},        {atLeastNormal, 1.5F, 1.5F},
    };
    for (const auto& c : cases)
        EXPECT_FLOAT_EQ(steppedVolume(c.control, c.before), c.after) << c.control << " from " << c.before;
    // Ten fine steps from silence end at a volume from which coarse ones go on.
    float volume = 0;
    for (int step = 0; step < 11; ++step)
        volume = steppedVolume(up, volume);
    EXPECT_NEAR(volume, 0.2F, 1e-6);
}

TEST(ScreenWalk, The_walk_takes_the_first_real_screen_around_the_list) {
    const std::optional<std::size_t> nowhere;
    const struct {
        const char* kinds; // a letter a screen: S a real one, o another device
        std::size_t start;
        std::optional<std::size_t> next, previous;
    } cases[] = {
        {"", 0, nowhere, nowhere},
        {"S", 0, nowhere, nowhere},
        {"SSS", 2, 0, 1},
        {"SoS", 1, 2, 0},
        {"So", 0, 0, 0}, // comes back and takes the screen it started from
        {"oo", 0, nowhere, nowhere},
        {"oSo", 0, 1, 1},
    };
    for (const auto& c : cases) {
        std::vector<platform::Screen> screens;
        for (const char* kind = c.kinds; *kind; ++kind)
            screens.push_back({platform::Rect(), *kind == 'S', 0, QString()});
        EXPECT_EQ(nextScreen(screens, c.start, 1), c.next) << c.kinds << c.start;
        EXPECT_EQ(nextScreen(screens, c.start, -1), c.previous) << c.kinds << c.start;
    }
}

TEST(SpeedSteps, Steps_go_to_the_next_round_speed_within_the_limits) {
    using namespace speedStep;
    const struct {
        std::int32_t argument, before, after;
    } cases[] = {
        {faster, 100, 105}, {faster, 102, 105}, {faster, 195, 200}, {faster, 200, 210}, {faster, 395, 400},
        {faster, 400, 400}, {slower, 100, 95},  {slower, 102, 100}, {slower, 210, 200}, {slower, 200, 195},
        {slower, 30, 25},   {slower, 25, 25},   {twice, 125, 250},  {twice, 250, 400},  {half, 125, 62},
        {half, 40, 25},     {100, 62, 100},     {125, 400, 125},    {7, 100, 25},
    };
    for (const auto& c : cases)
        EXPECT_EQ(steppedSpeed(c.argument, c.before), c.after) << c.argument << " from " << c.before;
    for (const auto& [language, text] : {std::pair{"en", "1.25x"}, std::pair{"de", "1,25\u00d7"}}) {
        platform::setLocalizationLanguages({language});
        EXPECT_EQ(speedText(125).toStdString(), text);
    }
    platform::setLocalizationLanguages({});
}

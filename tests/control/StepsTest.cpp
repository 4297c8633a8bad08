// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ScreenWalk.h"
#include "control/VolumeSteps.h"

#include <gtest/gtest.h>

TEST(VolumeSteps, Steps_are_fine_near_silence_and_coarse_above_twice_the_normal_volume) {
    using namespace volumeControl;
    const struct {
        std::int32_t control;
        float before, after;
    } cases[] = {
        {up, 0.0F, 0.01F},         {up, 0.1F, 0.2F},   {up, 1.98F, 1.98F + 0.1F},   {up, 2.0F, 2.25F},
        {down, 2.1F, 2.1F - 0.1F}, {down, 2.0F, 1.9F}, {down, 0.1F, 0.1F - 0.01F},  {down, 0.105F, 0.105F - 0.01F},
        {down, 0.005F, 0.0F},      {down, 0.0F, 0.0F}, {atLeastNormal, 0.5F, 1.0F}, {atLeastNormal, 1.5F, 1.5F},
        {silent, 1.5F, 0.0F},      {mute, 0.7F, 0.7F},
    };
    for (const auto& c : cases)
        EXPECT_FLOAT_EQ(steppedVolume(c.control, c.before), c.after) << c.control << " from " << c.before;
}

TEST(VolumeSteps, Limits_are_those_of_the_single_precision_volume) {
    // In single precision 2.1 and 0.11 lie just below the limits of those names, and 1.99 just above.
    EXPECT_EQ(steppedVolume(volumeControl::up, 1.99F), 1.99F + 0.25F);
    EXPECT_EQ(steppedVolume(volumeControl::down, 2.1F), 2.1F - 0.1F);
    EXPECT_EQ(steppedVolume(volumeControl::down, 0.11F), 0.11F - 0.01F);
    // Ten fine steps from silence end at a volume from which coarse ones go on.
    float volume = 0;
    for (int step = 0; step < 10; ++step)
        volume = steppedVolume(volumeControl::up, volume);
    EXPECT_NEAR(volume, 0.1F, 1e-6);
    EXPECT_NEAR(steppedVolume(volumeControl::up, volume), 0.2F, 1e-6);
}

namespace {

/// A letter a screen: S a real one, o another device.
std::vector<platform::Screen> screens(const char* kinds) {
    std::vector<platform::Screen> list;
    for (const char* kind = kinds; *kind; ++kind)
        list.push_back({QRectF(1000.0 * static_cast<double>(list.size()), 0, 1000, 800), *kind == 'S',
                        static_cast<std::uint32_t>(list.size()), QString()});
    return list;
}

} // namespace

TEST(ScreenWalk, The_walk_takes_the_first_real_screen_around_the_list) {
    const std::optional<std::size_t> nowhere;
    const struct {
        const char* kinds;
        std::size_t start;
        std::optional<std::size_t> next, previous;
    } cases[] = {
        {"", 0, nowhere, nowhere},
        {"S", 0, nowhere, nowhere},
        {"SS", 0, 1, 1},
        {"SSS", 2, 0, 1},
        {"SoS", 0, 2, 2},
        {"SoS", 1, 2, 0},
        {"So", 0, 0, 0}, // comes back and takes the screen it started from
        {"oo", 0, nowhere, nowhere},
        {"oSo", 0, 1, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(nextScreen(screens(c.kinds), c.start, 1), c.next) << c.kinds << c.start;
        EXPECT_EQ(nextScreen(screens(c.kinds), c.start, -1), c.previous) << c.kinds << c.start;
    }
}

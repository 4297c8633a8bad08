// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/ClockText.h"

#include <gtest/gtest.h>

TEST(ClockText, times_are_written_with_fractions_and_read_in_the_forms_that_people_write) {
    EXPECT_EQ(preciseClockText(5025.6, 1), "1:23:45.6");
    EXPECT_EQ(preciseClockText(59.9996, 3), "0:00:59.999") << "cut off";
    EXPECT_EQ(preciseClockText(0.3, 3), "0:00:00.300") << "binary fractions";
    const struct {
        const char* text;
        double seconds; // -1: no time
    } cases[] = {
        {"90", 90},   {"1:30", 90}, {"1:23:45.6", 5025.6}, {" 0:00:02.5 ", 2.5}, {"1:23:45,6", 5025.6}, {"90:00", 5400},
        {"2.", 2},    {"", -1},     {"1:60", -1},          {"1:60:00", -1},      {"1:2:3:4", -1},       {"-5", -1},
        {"1:-5", -1}, {"abc", -1},  {"1.5:30", -1},        {":30", -1},          {"1e3", -1},           {"1.2.3", -1},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(secondsOfClockText(c.text).value_or(-1), c.seconds) << c.text;
}

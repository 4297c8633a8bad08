// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SeekPlanner.h"

#include <gtest/gtest.h>

using platform::SeekPlanner;
using Kind = SeekPlanner::Kind;
using Precision = SeekPlanner::Precision;
using Seek = SeekPlanner::Seek;
using Answer = std::optional<Seek>;

TEST(SeekPlanner, the_keyframe_comes_first_where_it_can_differ_from_the_place) {
    struct Case {
        double seconds;
        Precision precision;
        bool hasPictures;
        Kind first;
        bool refined;
    };
    for (const Case& c :
         {Case{5, Precision::exact, true, Kind::keyframe, true}, Case{5, Precision::exact, false, Kind::exact, false},
          Case{0, Precision::exact, true, Kind::exact, false},
          Case{5, Precision::keyframeOnly, true, Kind::keyframe, false}}) {
        SeekPlanner planner;
        EXPECT_EQ(planner.request(c.seconds, c.precision, c.hasPictures), Answer(Seek{c.seconds, c.first}));
        EXPECT_TRUE(planner.isBusy());
        EXPECT_EQ(planner.done(), c.refined ? Answer(Seek{c.seconds, Kind::exact}) : std::nullopt);
        EXPECT_EQ(planner.isBusy(), c.refined);
        EXPECT_EQ(planner.done(), std::nullopt);
        EXPECT_FALSE(planner.isBusy());
    }
}

TEST(SeekPlanner, places_asked_for_meanwhile_replace_each_other_and_the_exact_place_before) {
    SeekPlanner planner;
    planner.request(5, Precision::exact, true);
    EXPECT_EQ(planner.request(6, Precision::exact, true), std::nullopt);
    EXPECT_EQ(planner.request(7, Precision::exact, true), std::nullopt);
    EXPECT_EQ(planner.done(), Answer(Seek{7, Kind::keyframe})) << "neither the exact 5 nor 6 is worth a seek";
    EXPECT_EQ(planner.done(), Answer(Seek{7, Kind::exact}));
    EXPECT_EQ(planner.request(8, Precision::keyframeOnly, true), std::nullopt);
    EXPECT_EQ(planner.done(), Answer(Seek{8, Kind::keyframe}));
    EXPECT_EQ(planner.done(), std::nullopt);
}

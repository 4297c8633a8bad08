// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SeekPlanner.h"

#include <gtest/gtest.h>

using platform::SeekPlanner;
using Kind = SeekPlanner::Kind;
using Precision = SeekPlanner::Precision;
using Seek = SeekPlanner::Seek;

TEST(SeekPlanner, sends_what_each_precision_asks_for) {
    const struct {
        Precision precision;
        double seconds;
        std::optional<Seek> first, second;
    } cases[] = {
        {Precision::keyframeThenExact, 2, Seek{2, Kind::keyframe}, Seek{2, Kind::exact}},
        {Precision::keyframeThenExact, 0.001, Seek{0.001, Kind::keyframe}, Seek{0.001, Kind::exact}},
        {Precision::keyframeThenExact, 0, Seek{0, Kind::exact}, {}}, // the beginning is a keyframe
        {Precision::exact, 2, Seek{2, Kind::exact}, {}},
        {Precision::keyframeOnly, 2, Seek{2, Kind::keyframe}, {}},
        {Precision::keyframeOnly, 0, Seek{0, Kind::keyframe}, {}},
    };
    for (const auto& c : cases) {
        SeekPlanner planner;
        EXPECT_FALSE(planner.isBusy());
        EXPECT_EQ(planner.request(c.seconds, c.precision), c.first);
        EXPECT_TRUE(planner.isBusy());
        EXPECT_EQ(planner.done(), c.second);
        EXPECT_EQ(planner.isBusy(), c.second.has_value());
        EXPECT_EQ(planner.done(), std::nullopt);
        EXPECT_FALSE(planner.isBusy());
        EXPECT_EQ(planner, SeekPlanner()) << "nothing is left over";
    }
}

TEST(SeekPlanner, only_the_place_asked_for_last_follows_the_seek_under_way) {
    SeekPlanner planner;
    planner.request(1, Precision::keyframeThenExact);
    EXPECT_EQ(planner.request(2, Precision::keyframeThenExact), std::nullopt);
    EXPECT_EQ(planner.request(3, Precision::keyframeThenExact), std::nullopt);
    EXPECT_EQ(planner.done(), (Seek{3, Kind::keyframe})) << "neither the first's exact place nor the second";
    EXPECT_TRUE(planner.isBusy());
    // One that comes between the keyframe and its exact place takes the place of that.
    EXPECT_EQ(planner.request(4, Precision::exact), std::nullopt);
    EXPECT_EQ(planner.done(), (Seek{4, Kind::exact}));
    EXPECT_EQ(planner.done(), std::nullopt);

    // One during the exact seek follows it.
    planner.request(5, Precision::keyframeThenExact);
    EXPECT_EQ(planner.done(), (Seek{5, Kind::exact}));
    EXPECT_EQ(planner.request(6, Precision::keyframeOnly), std::nullopt);
    EXPECT_EQ(planner.done(), (Seek{6, Kind::keyframe}));
    EXPECT_EQ(planner.done(), std::nullopt);
}

TEST(SeekPlanner, while_held_it_keeps_the_place_asked_for_last) {
    SeekPlanner planner;
    planner.hold();
    EXPECT_TRUE(planner.isBusy());
    EXPECT_EQ(planner.request(1, Precision::exact), std::nullopt);
    EXPECT_EQ(planner.request(2, Precision::keyframeThenExact), std::nullopt);
    EXPECT_EQ(planner.done(), (Seek{2, Kind::keyframe}));
    EXPECT_EQ(planner.done(), (Seek{2, Kind::exact}));
    EXPECT_EQ(planner.done(), std::nullopt);

    planner.hold();
    EXPECT_EQ(planner.done(), std::nullopt);
    EXPECT_FALSE(planner.isBusy());
}

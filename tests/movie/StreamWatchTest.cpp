// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/StreamWatch.h"

#include <gtest/gtest.h>

using platform::StreamWatch;
using Connection = StreamWatch::Connection;

TEST(StreamWatch, a_broken_connection_holds_again_with_what_comes_and_is_lost_after_a_while) {
    StreamWatch watch;
    EXPECT_FALSE(watch.arrived(10));
    EXPECT_TRUE(watch.broke(100));
    EXPECT_FALSE(watch.broke(101)) << "it is known";
    EXPECT_FALSE(watch.arrived(10)) << "as much as before";
    EXPECT_FALSE(watch.arrived(std::nullopt));
    EXPECT_FALSE(watch.arrived(25)) << "another place, where it had arrived before";
    EXPECT_EQ(watch.connection(), Connection::broken);
    EXPECT_TRUE(watch.arrived(25.5));
    EXPECT_EQ(watch.connection(), Connection::steady);
    EXPECT_EQ(watch.arrivedUntil(), 25.5);

    EXPECT_TRUE(watch.broke(200));
    EXPECT_FALSE(watch.giveUp(200 + StreamWatch::timeout - 1));
    EXPECT_TRUE(watch.giveUp(200 + StreamWatch::timeout));
    EXPECT_EQ(watch.connection(), Connection::lost);
    EXPECT_FALSE(watch.giveUp(300)) << "it is said once";
    EXPECT_FALSE(watch.broke(300));
    watch.tryAgain(400);
    EXPECT_EQ(watch.connection(), Connection::broken);
    EXPECT_FALSE(watch.giveUp(401));
}

TEST(StreamWatch, a_live_movie_is_behind_by_what_passed_while_it_did_not_play) {
    StreamWatch watch;
    EXPECT_FALSE(watch.behindLive(0, 100));
    watch.liveAt(0, 100);
    EXPECT_EQ(watch.behindLive(20, 120), 0);
    EXPECT_EQ(watch.behindLive(20, 150), 30) << "paused for half a minute";
    EXPECT_EQ(watch.behindLive(21, 120), 0) << "no picture is ahead";
    watch.liveAt(0, 160);
    EXPECT_EQ(watch.behindLive(0, 160), 0) << "loaded anew";
}

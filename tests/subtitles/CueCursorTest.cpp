// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueCursor.h"
#include "subtitles/CueOrder.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

// A cue from 10 to 20, one from 20 to 30, a gap, one from 50 to 60.
constexpr std::int32_t starts[] = {10, 20, 50};
constexpr std::int32_t ends[] = {20, 30, 60};

std::int32_t startOf(std::size_t index) {
    return starts[index];
}

} // namespace

TEST(CueCursor, a_search_ends_on_the_same_cue_wherever_it_begins) {
    const struct {
        std::int32_t time;
        std::size_t index;
    } cases[] = {{-5, 0}, {0, 0},  {10, 0}, {19, 0}, {21, 1}, {29, 1},
                 {30, 1}, {31, 2}, {49, 2}, {50, 2}, {60, 2}, {99, 2}};
    for (std::size_t from = 0; from < 3; ++from) {
        for (const auto& [time, index] : cases) {
            CueCursor cursor;
            cursor.place(ends, from);
            cursor.search(ends, time, startOf);
            EXPECT_EQ(cursor.index(), index) << time << " from " << from;
        }
    }
}

TEST(CueCursor, a_search_is_left_out_only_where_it_would_not_move) {
    for (std::size_t from = 0; from < 3; ++from) {
        for (std::int32_t time = -1; time <= 70; ++time) {
            CueCursor cursor;
            cursor.place(ends, from);
            if (!cursor.staysFor(time, starts[from], ends[from]))
                continue;
            cursor.search(ends, time, startOf);
            EXPECT_EQ(cursor.index(), from) << time;
        }
    }
    CueCursor playing;
    playing.place(ends, 1);
    EXPECT_TRUE(playing.staysFor(25, 20, 30));
    EXPECT_TRUE(playing.staysFor(30, 20, 30));
    EXPECT_FALSE(playing.staysFor(31, 20, 30));
    playing.place(ends, 2);
    EXPECT_TRUE(playing.staysFor(40, 50, 60)) << "in a gap the cursor stays on the later cue";
    EXPECT_FALSE(playing.staysFor(30, 50, 60)) << "the last moment of the cue before the gap";
}

TEST(CueOrder, cues_in_no_order_are_found_at_any_time) {
    // In the file's order: a long cue, two within it, one that ends before it starts, one before all.
    const CueSpan cues[] = {{100, 200}, {120, 130}, {120, 125}, {150, 140}, {10, 20}};
    const struct {
        std::int32_t time;
        std::size_t index;
    } cases[] = {{0, 4},   {10, 4},  {20, 4},  {21, 0},  {100, 0}, {119, 0}, {120, 2},
                 {125, 2}, {126, 1}, {130, 1}, {131, 0}, {150, 0}, {200, 0}, {201, 3}};
    const CueOrder order(cues);
    for (const auto& [time, index] : cases)
        EXPECT_EQ(order.indexFor(time), index) << time;
}

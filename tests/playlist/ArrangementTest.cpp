// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/Arrangement.h"

#include <gtest/gtest.h>

using namespace Arrangement;

TEST(Arrangement, a_shuffle_exchanges_each_element_with_one_of_the_whole_list) {
    const std::vector<long> numbers{2, 0, 7, 2147483647};
    std::size_t drawn = 0;
    const Draw draw = [&] { return numbers[drawn++]; };
    std::vector<char> letters{'a', 'b', 'c', 'd'};
    shuffle(letters, draw);
    // 0 with 2: cbad, 1 with 0: bcad, 2 with 3: bcda, 3 with 3.
    EXPECT_EQ(letters, (std::vector<char>{'b', 'c', 'd', 'a'}));
    EXPECT_EQ(drawn, 4U);

    for (std::size_t size = 0; size < 2; ++size) {
        drawn = 0;
        std::vector<int> few(size, 5);
        shuffle(few, draw);
        EXPECT_EQ(few, std::vector<int>(size, 5));
        EXPECT_EQ(drawn, size);
    }
}

TEST(Arrangement, what_comes_next_depends_on_place_and_looping) {
    constexpr std::uint32_t none = 0x7FFFFFFF;
    const struct {
        Place place;
        bool atEnd, next, previous;
        std::uint32_t previousIndex;
    } cases[] = {
        {{0, 3, looping::off}, false, true, false, 0},       {{1, 3, looping::off}, false, true, true, 0},
        {{2, 3, looping::one}, true, false, true, 1},        {{2, 3, looping::all}, true, true, true, 1},
        {{0, 3, looping::all}, false, true, true, 2},        {{0, 1, looping::all}, true, true, true, 0},
        {{none, 0, looping::off}, true, false, false, none},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.place.index << " of " << c.place.count << ", " << c.place.looping);
        EXPECT_EQ(isAtEnd(c.place), c.atEnd);
        EXPECT_EQ(willPlayNext(c.place), c.next);
        EXPECT_EQ(willPlayPrevious(c.place), c.previous);
        EXPECT_EQ(previousIndex(c.place), c.previousIndex);
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/Arrangement.h"

#include <gtest/gtest.h>

#include <cstdlib>

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

TEST(Arrangement, each_process_shuffles_in_an_order_of_its_own) {
    // What every process would draw that never seeded the generator.
    random_data unseeded{};
    char memory[128];
    initstate_r(1, memory, sizeof memory, &unseeded);
    std::int32_t expected = 0;
    int same = 0;
    constexpr int draws = 20;
    for (int i = 0; i < draws; ++i) {
        random_r(&unseeded, &expected);
        same += drawFromSystem() == expected;
    }
    EXPECT_LT(same, draws);
}

TEST(Arrangement, what_comes_next_depends_on_place_and_looping) {
    constexpr std::uint32_t none = 0x7FFFFFFF;
    const struct {
        Place place;
        bool atEnd, next, previous;
        std::uint32_t previousIndex;
    } cases[] = {
        {{0, 3, looping::off}, false, true, false, 0},       {{1, 3, looping::off}, false, true, true, 0},
        {{2, 3, looping::off}, true, false, true, 1},        {{2, 3, looping::one}, true, false, true, 1},
        {{2, 3, looping::all}, true, true, true, 1},         {{0, 3, looping::all}, false, true, true, 2},
        {{0, 1, looping::all}, true, true, true, 0},         {{0, 1, looping::off}, true, false, false, 0},
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

TEST(Arrangement, at_the_end_of_a_movie_looping_one_comes_before_the_next_and_that_before_the_lists_end) {
    using enum EndOfMovie;
    const struct {
        Place place;
        EndOfMovie byHand, byItself;
    } cases[] = {
        {{0, 2, looping::off}, stay, playNext},       {{1, 2, looping::off}, endList, playNext},
        {{0, 2, looping::one}, playAgain, playAgain}, {{1, 2, looping::one}, playAgain, playAgain},
        {{0, 2, looping::all}, stay, playNext},       {{1, 2, looping::all}, endList, playNext},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.place.index << ", " << c.place.looping);
        EXPECT_EQ(atEndOfMovie(c.place, false), c.byHand);
        EXPECT_EQ(atEndOfMovie(c.place, true), c.byItself);
    }
}

TEST(Arrangement, at_the_end_of_the_list_only_one_that_is_not_looped_quits) {
    const struct {
        std::int32_t mode;
        EndOfList otherwise, withAutoQuit;
    } cases[] = {
        {looping::off, EndOfList::stay, EndOfList::quit},
        {looping::one, EndOfList::stay, EndOfList::stay},
        {looping::all, EndOfList::startAgain, EndOfList::startAgain},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(atEndOfList(c.mode, false), c.otherwise) << c.mode;
        EXPECT_EQ(atEndOfList(c.mode, true), c.withAutoQuit) << c.mode;
    }
}

TEST(Arrangement, the_looping_modes_go_round_both_ways) {
    for (std::int32_t mode = looping::off; mode <= looping::all; ++mode) {
        EXPECT_EQ(steppedLooping(mode, 1), (mode + 1) % 3);
        EXPECT_EQ(steppedLooping(mode, -1), (mode + 2) % 3);
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/Movie.h"

#include "tests/support/ScriptedToolkit.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using platform::Movie;
using platform::MovieInfo;

namespace {

MovieInfo plain() {
    return ScriptedToolkit::plainMovie(QUrl("file:///a.mp4"));
}

struct Loaded {
    explicit Loaded(MovieInfo info = plain())
        : movie(std::make_unique<Movie>(std::move(info), player)) {
        player.load(movie.get());
    }
    /// Counts the passing of times, arming again as an observer of every frame does.
    void watch() {
        movie->callWhenTimePasses(movie->nextInterestingTime(movie->time(), movie->rate()), [this] {
            passed.push_back(movie->time());
            watch();
        });
    }
    ScriptedPlayer player;
    std::unique_ptr<Movie> movie;
    std::vector<std::int32_t> passed;
};

} // namespace

TEST(Movie, the_next_frame_is_the_next_multiple_of_a_frames_length) {
    constexpr std::int32_t forward = 0x10000;
    const struct {
        double frame;
        std::int32_t duration;
        bool video;
        std::int32_t from, rate, next;
    } cases[] = {
        {24, 36000, true, 0, forward, 24},     {24, 36000, true, 24, forward, 48},
        {24, 36000, true, 35976, forward, -1}, {24, 36000, true, 48, -forward, 24},
        {24, 36000, true, 0, -forward, -1},    {24, 36000, false, 0, forward, -1},
        {0, 36000, true, 0, forward, -1},      {1001.0 / 3, 90000, true, 334, forward, 667},
        {0.25, 100, true, 7, forward, 8}, // more than one frame a unit
        {24, 0, true, 480, forward, 504},      {3003, 2147483647, true, 2147480000, forward, 2147481336},
    };
    ScriptedPlayer player;
    for (const auto& c : cases) {
        MovieInfo info = plain();
        info.frameDuration = c.frame;
        info.duration = c.duration;
        info.hasVideo = c.video;
        EXPECT_EQ(Movie(info, player).nextInterestingTime(c.from, c.rate), c.next) << c.frame << " after " << c.from;
    }
}

TEST(Movie, without_frames_every_quarter_of_a_second_passes) {
    MovieInfo info = plain();
    info.hasVideo = false;
    Loaded sound(info);
    sound.watch();
    sound.player.play();
    sound.player.advance(1.02);
    EXPECT_EQ(sound.passed, (std::vector<std::int32_t>{150, 300, 450, 600}));
}

TEST(Movie, a_resting_movie_keeps_the_time_it_is_moved_to_within_its_length) {
    const struct {
        std::int32_t duration, asked, kept;
    } cases[] = {{36000, 500, 500}, {36000, 36000, 36000}, {36000, 36001, 36000},
                 {36000, -5, 0},    {0, 90000, 90000},     {0, -5, 0}};
    for (const auto& c : cases) {
        MovieInfo info = plain();
        info.duration = c.duration;
        ScriptedPlayer player;
        Movie movie(info, player);
        EXPECT_EQ(movie.time(), 0);
        movie.setTimeValue(c.asked);
        EXPECT_EQ(movie.time(), c.kept);
        EXPECT_EQ(movie.rate(), 0);
        player.load(&movie);
        EXPECT_EQ(player.time(), c.kept) << "there it is loaded";
        player.load(nullptr);
    }
}

TEST(Movie, one_that_gives_way_to_another_keeps_the_time_at_which_it_was_left) {
    Loaded left;
    left.player.play();
    left.player.advance(2);
    EXPECT_EQ(left.movie->time(), 1200);
    Movie other(plain(), left.player);
    left.player.load(&other);
    left.player.play();
    left.player.advance(1);
    EXPECT_EQ(left.movie->time(), 1200);
    EXPECT_EQ(left.movie->rate(), 0);
    left.movie->setTimeValue(2400);
    EXPECT_EQ(other.time(), 600) << "the one that rests is moved alone";
    left.player.load(left.movie.get());
    EXPECT_EQ(left.player.time(), 2400);
    EXPECT_EQ(other.time(), 600);
    left.player.load(nullptr);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvPlayer.h"

#include "platform/window/VideoLayer.h"
#include "tests/toolkit/ToolkitRig.h"

#include <QImage>
#include <QPoint>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>
#include <thread>

using JumpReport = platform::MoviePlayer::JumpReport;

namespace {

constexpr int picture = 512; // the numbered movie's time units for each of its 300 pictures
constexpr int movieEnd = 300 * picture;

QUrl greenMovie() {
    harness::MediaFixture::Numbered movie;
    movie.color = {0, 200, 0};
    movie.frames = 60;
    return urlOf(media().makeNumbered("green.mp4", movie));
}

bool isIncreasing(const std::vector<std::int32_t>& times) {
    return std::ranges::adjacent_find(times, std::greater_equal<>()) == times.end();
}

} // namespace

TEST(MpvPlayer, plays_pictures_in_order_and_rests_on_the_one_of_its_time) {
    ToolkitRig rig;
    const auto movie = rig.show(numberedMovie());
    rig.player().play();
    ASSERT_TRUE(rig.waitFor([&] { return rig.player().time() >= 30 * picture; }));
    rig.player().pause();
    rig.settle();
    EXPECT_TRUE(isIncreasing(rig.times));
    EXPECT_GE(rig.times.size(), 15U);
    EXPECT_TRUE(std::ranges::all_of(rig.times, [](std::int32_t time) { return time % picture == 0; }));
    EXPECT_EQ(rig.screen.number(), rig.player().time() / picture);
    EXPECT_EQ(rig.ends + rig.jumps, 0);
}

TEST(MpvPlayer, a_still_is_the_picture_that_is_seen_and_leaves_it_as_it_is) {
    ToolkitRig rig;
    platform::VideoLayer& layer = *rig.player().videoLayer();
    EXPECT_TRUE(layer.still(QSize(192, 108)).isNull());
    const auto movie = rig.show(numberedMovie());
    movie->setTimeValue(137 * picture);
    ASSERT_TRUE(rig.shows(137));
    rig.settle();
    RenderedPicture copy(QSize(192, 108));
    const QImage still = layer.still(copy.size());
    ASSERT_EQ(still.size(), copy.size());
    for (int y = 0; y < still.height(); ++y)
        std::copy_n(still.constScanLine(y), copy.stride(), copy.pixels() + static_cast<std::size_t>(y) * copy.stride());
    EXPECT_EQ(copy.number(), 137);
    EXPECT_EQ(layer.still(QSize(100, 1000)).size(), QSize(100, 56)) << "within the bounds, in its shape";
    EXPECT_EQ(layer.still(QSize(4000, 4000)).size(), rig.screen.size()) << "never enlarged";
    movie->setTimeValue(138 * picture);
    EXPECT_TRUE(rig.shows(138));
}

TEST(MpvPlayer, tells_how_the_movie_plays_and_counts_each_frame_once) {
    ToolkitRig rig;
    platform::PlaybackFacts facts{.container = "none yet"};
    const auto ask = [&] {
        bool isTold = false;
        rig.player().facts([&](const platform::PlaybackFacts& told) {
            facts = told;
            isTold = true;
        });
        return rig.waitFor([&] { return isTold; });
    };
    EXPECT_TRUE(ask());
    EXPECT_EQ(facts, platform::PlaybackFacts()) << "without a movie";
    const auto movie = rig.show(numberedMovie());
    for (int number = 1; number < 5; ++number) {
        rig.player().step(1);
        ASSERT_TRUE(rig.shows(number));
    }
    rig.settle();
    ASSERT_TRUE(ask());
    EXPECT_TRUE(facts.container.contains("mp4")) << facts.container.toStdString();
    EXPECT_EQ(facts.videoCodec, "h264");
    EXPECT_EQ(facts.hardwareDecoder, QString());
    EXPECT_EQ(facts.storedSize, rig.screen.size());
    EXPECT_EQ(facts.frameRate, 30);
    EXPECT_EQ(facts.framesShown, 5);
    EXPECT_EQ(facts.framesLate, 0) << "one that rests has no time";
    EXPECT_GT(facts.bufferSeconds, 0);
}

TEST(MpvPlayer, a_seek_answers_its_target_at_once_and_shows_its_picture) {
    ToolkitRig rig;
    const auto movie = rig.show(numberedMovie());
    for (const int number : {137, 30, 29, 299, 0, 1, 150}) {
        movie->setTimeValue(number * picture);
        EXPECT_EQ(rig.player().time(), number * picture);
        EXPECT_TRUE(rig.shows(number)) << number << " not " << rig.screen.number().value_or(-1);
        rig.settle();
        EXPECT_EQ(rig.player().time(), number * picture);
        EXPECT_EQ(rig.screen.number(), number);
    }
    EXPECT_EQ(rig.jumps, 0) << "these are the movie's own";
    rig.player().seek(movieEnd + 5, JumpReport::silent);
    EXPECT_EQ(rig.player().time(), movieEnd);
    EXPECT_TRUE(rig.shows(299));
    rig.settle();
    EXPECT_EQ(rig.ends, 0) << "nothing ends while paused";
}

TEST(MpvPlayer, seeks_that_follow_fast_end_at_the_last_one_also_while_playing) {
    for (const bool playing : {false, true}) {
        ToolkitRig rig;
        const auto movie = rig.show(numberedMovie());
        if (playing)
            rig.player().play();
        for (int number = 20; number <= 200; number += 9) {
            rig.player().seek(number * picture, JumpReport::silent);
            EXPECT_EQ(rig.player().time(), number * picture);
            QCoreApplication::processEvents();
            EXPECT_EQ(rig.player().time(), number * picture);
        }
        if (playing) {
            rig.times.clear();
            EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > 210 * picture; }));
            EXPECT_GE(rig.times.front(), 199 * picture) << "never back to where an earlier seek led";
            EXPECT_TRUE(isIncreasing(rig.times));
        } else {
            EXPECT_TRUE(rig.shows(200));
        }
    }
}

TEST(MpvPlayer, steps_go_one_picture_in_each_direction_and_count_as_jumps) {
    ToolkitRig rig;
    const auto movie = rig.show(numberedMovie());
    // Right after a seek a step counts from where that leads.
    rig.player().seek(100 * picture, JumpReport::silent);
    const auto step = [&rig](const std::vector<int>& directions, int number) {
        for (const int direction : directions)
            rig.player().step(direction);
        EXPECT_TRUE(rig.shows(number));
        rig.settle();
        EXPECT_EQ(rig.player().time(), number * picture);
        EXPECT_EQ(rig.screen.number(), number);
    };
    step({1}, 101);
    EXPECT_EQ(rig.jumps, 1);
    step({1, 1, 1}, 104);
    step({-1}, 103);
    step({1, -1, -1, 1, -1}, 102);
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > 110 * picture; }));
    rig.player().step(1);
    EXPECT_FALSE(rig.player().isPlaying());

    // There is no picture before the first and after the last.
    rig.player().seek(0, JumpReport::silent);
    step({-1}, 0);
    rig.player().seek(299 * picture, JumpReport::silent);
    EXPECT_TRUE(rig.shows(299));
    rig.player().step(1);
    rig.settle();
    EXPECT_EQ(rig.screen.number(), 299);
    EXPECT_EQ(rig.ends, 0);
}

TEST(MpvPlayer, fast_motion_in_both_directions_stops_at_the_ends) {
    ToolkitRig rig;
    const auto movie = rig.show(numberedMovie());
    rig.player().seek(150 * picture, JumpReport::silent);
    EXPECT_TRUE(rig.shows(150));
    rig.times.clear();
    rig.player().setRate(8);
    EXPECT_TRUE(rig.waitFor([&] { return !rig.player().isPlaying(); }));
    EXPECT_EQ(rig.player().time(), movieEnd);
    EXPECT_TRUE(isIncreasing(rig.times));
    EXPECT_GE(rig.times.size(), 4U);
    EXPECT_EQ(rig.ends, 1);

    rig.times.clear();
    rig.player().setRate(-8);
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() < 200 * picture; }));
    EXPECT_EQ(rig.player().rate(), -8.0F);
    // To normal speed in the middle, and back again.
    rig.player().setRate(1);
    const std::int32_t turned = rig.player().time();
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > turned; }));
    rig.player().setRate(-8);
    EXPECT_TRUE(rig.waitFor([&] { return !rig.player().isPlaying(); }));
    EXPECT_EQ(rig.player().time(), 0);
    EXPECT_TRUE(rig.shows(0));
    EXPECT_EQ(rig.ends, 1);
}

TEST(MpvPlayer, the_movie_loaded_last_is_the_one_that_plays) {
    ToolkitRig rig;
    const auto red = rig.open(numberedMovie());
    const auto green = rig.open(greenMovie());
    red->setTimeValue(90 * picture);
    green->setTimeValue(30 * picture);
    // At once, and before the core stands.
    rig.player().load(red.get());
    rig.player().load(green.get());
    rig.player().load(red.get());
    rig.player().load(green.get());
    EXPECT_EQ(rig.player().time(), 30 * picture);
    EXPECT_EQ(red->time(), 90 * picture);
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > 40 * picture; }));
    EXPECT_TRUE(rig.screen.at(64, 180).isNear({0, 200, 0}));
    EXPECT_GE(*std::ranges::min_element(rig.times), 0);
    rig.player().pause();
    const std::int32_t left = rig.player().time();

    rig.player().load(red.get());
    EXPECT_EQ(green->time(), left) << "a movie keeps the time at which it was left";
    EXPECT_EQ(rig.player().time(), 90 * picture);
    EXPECT_FALSE(rig.player().isPlaying());
    EXPECT_TRUE(rig.shows(90));
    EXPECT_TRUE(rig.screen.at(64, 180).isNear({200, 0, 0}));
    rig.player().load(nullptr);
    rig.settle();
    EXPECT_EQ(red->time(), 90 * picture);
    EXPECT_FALSE(rig.screen.number()) << "no movie, no picture";
    rig.player().play();
    EXPECT_FALSE(rig.player().isPlaying());
}

TEST(MpvPlayer, a_turned_movie_stands_upright) {
    const std::filesystem::path upright = media().make(
        "halves.mp4", {"-f", "lavfi", "-i", "color=c=0xC80000:s=384x216:r=25:d=1", "-vf",
                       "drawbox=x=192:w=192:h=216:color=blue:t=fill", "-c:v", "libx264", "-pix_fmt", "yuv420p"});
    // Where what was at the left stands after each quarter turn anticlockwise, and what was at the right.
    const struct {
        QPoint red, blue;
    } turns[] = {{{96, 108}, {288, 108}}, {{192, 162}, {192, 54}}, {{288, 108}, {96, 108}}, {{192, 54}, {192, 162}}};
    for (int turn = 0; turn < 4; ++turn) {
        ToolkitRig rig;
        const auto movie = rig.open(urlOf(media().makeTurned("turned" + std::to_string(turn) + ".mp4", upright, turn)));
        ASSERT_TRUE(movie);
        rig.player().load(movie.get());
        const auto& [red, blue] = turns[turn];
        EXPECT_TRUE(rig.waitFor([&] { return rig.screen.at(red.x(), red.y()).isNear({200, 0, 0}); })) << turn;
        EXPECT_TRUE(rig.screen.at(blue.x(), blue.y()).isNear({0, 0, 255})) << turn;
    }
}

TEST(MpvPlayer, shows_the_picture_decoded_ahead_of_its_time_and_no_other_while_there_is_no_core) {
    for (const int number : {0, 90}) {
        ToolkitRig rig;
        const QUrl url = numberedMovie();
        const auto info = rig.answerOf(url).info;
        ASSERT_TRUE(info);
        platform::MpvPlayer player;
        platform::Movie movie(*info, player);
        movie.setTimeValue(number * picture);
        const auto ahead = std::make_shared<platform::Delivery<std::shared_ptr<const platform::FirstFrame>>>();
        player.setPreparedFrame({url, 0, ahead});
        player.load(&movie);
        const auto shows = [&] {
            const QRect whole(QPoint(0, 0), rig.screen.size());
            return player.videoLayer()->renderPixels(whole, whole, rig.screen.pixels(), rig.screen.stride());
        };
        EXPECT_FALSE(shows());
        bool isDone = false;
        std::jthread decoder([&] {
            const std::atomic<bool> cancelled{false};
            ahead->deliver(platform::FirstFrame::decode(url, cancelled));
            rig.loop.post([&] { isDone = true; });
        });
        EXPECT_TRUE(rig.waitFor([&] { return isDone; }));
        EXPECT_TRUE(rig.waitFor(shows)) << "another one than was prepared is decoded";
        EXPECT_EQ(rig.screen.number(), number);
    }
}

TEST(MpvPlayer, a_movie_that_cannot_be_played_ends_whenever_it_is_started) {
    ToolkitRig rig;
    rig.expectedError = QStringLiteral("ERROR: ");
    const auto good = rig.open(numberedMovie());
    // It opened, and was replaced before it was loaded.
    const QUrl url = urlOf(scratch("replaced.mp4", "no movie"));
    platform::MovieInfo info = good->info();
    info.url = url;
    platform::Movie bad(info, rig.player());
    int badEnds = 0;
    bad.callWhenStopped([&] { ++badEnds; });
    rig.player().load(&bad);
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return badEnds == 1; }));
    EXPECT_FALSE(rig.player().isPlaying());

    // Its end does not become that of the movie after it.
    rig.log.clear();
    rig.player().load(nullptr);
    rig.player().load(&bad);
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return rig.log.contains("Can't play"); }));
    good->setTimeValue(0);
    rig.player().load(good.get());
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > 30 * picture; }));
    EXPECT_EQ(badEnds, 1);
    EXPECT_EQ(rig.ends, 0);
    rig.player().load(nullptr);
}

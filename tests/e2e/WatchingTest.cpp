// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the movie plays, and the places in it that are reached.
#include "tests/e2e/PlayerFixture.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

using namespace harness;

namespace {

class Watching : public PlayerFixture {
protected:
    // A numbered movie of ten seconds with chapters at 2 and 6 seconds.
    std::string chaptered(const char* suffix) {
        const std::string plain = numbered("chapters.mp4", red, 300);
        const std::string words = (user.folder() / "chapters.txt").string();
        std::ofstream(words) << ";FFMETADATA1\n"
                             << "[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=2000\ntitle=One\n"
                             << "[CHAPTER]\nTIMEBASE=1/1000\nSTART=2000\nEND=6000\ntitle=Two\n"
                             << "[CHAPTER]\nTIMEBASE=1/1000\nSTART=6000\nEND=10000\ntitle=Six\n";
        return media()
            .make(std::string("chaptered.") + suffix,
                  {"-i", plain, "-f", "ffmetadata", "-i", words, "-map", "0", "-map_chapters", "1", "-c", "copy"})
            .string();
    }
};

} // namespace

TEST_F(Watching, half_as_fast_shows_half_as_many_frames_and_the_space_bar_pauses) {
    start({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_braceleft, {XK_Shift_L});
    probe.tap(XK_space);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
    const auto begin = std::chrono::steady_clock::now();
    const int first = frame().value_or(0);
    ASSERT_TRUE(frameBecomes([&](int seen) { return seen >= first + 30; }, "a second further"));
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    EXPECT_NEAR(took, 2.0, 0.5);
    probe.tap(XK_space);
    EXPECT_TRUE(settledFrame()) << "it pauses";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Watching, chapters_of_the_file_are_stepped_through) {
    for (const char* suffix : {"mkv", "mp4"}) {
        start({"--set", "QVPlaylistAutoPlay=0", chaptered(suffix)});
        ASSERT_TRUE(frameBecomes(0)) << suffix;
        probe.tap(XK_Next, {XK_Shift_L});
        EXPECT_TRUE(frameBecomes(60));
        probe.tap(XK_Next, {XK_Shift_L});
        EXPECT_TRUE(frameBecomes(180));
        probe.tap(XK_Prior, {XK_Shift_L});
        EXPECT_TRUE(frameBecomes(60));
        ASSERT_TRUE(quitsCleanly());
    }
}

TEST_F(Watching, the_information_stands_beside_the_movie_that_plays_on_and_its_key_shows_and_hides_it) {
    start({numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    const auto isShown = [&] { return !probe.pixel(screenWidth / 12, screenHeight / 4).isNear(red, 40); };
    for (const KeySym end : {KeySym{XK_i}, KeySym{XK_Escape}}) {
        probe.tap(XK_i);
        ASSERT_TRUE(waitUntil(isShown));
        EXPECT_TRUE(colorBecomes(red)) << "it leaves the middle of the picture";
        ASSERT_TRUE(waitUntil([&] {
            const std::size_t heard = keysHeard();
            probe.tap(XK_F12);
            return staysTrue([&] { return keysHeard() == heard; }, Seconds(0.3));
        })) << "it has not the keyboard";
        probe.tap(end);
        ASSERT_TRUE(waitUntil([&] { return !isShown(); }));
    }
    EXPECT_EQ(timesLogged("Movie: Pause"), 0U);
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Watching, a_section_is_repeated_to_the_frame) {
    start({"--set", "QVPlaylistAutoPlay=0", "--set", "QVJumpInterval=1", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_Right, {XK_Control_L});
    for (const int stepped : {31, 32}) {
        probe.tap(XK_Right);
        ASSERT_TRUE(frameBecomes(stepped));
    }
    probe.tap(XK_l, {XK_Control_L});
    ASSERT_TRUE(logs("Set Text: Repeat from 0:00:01.0"));
    probe.tap(XK_Right, {XK_Control_L});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen == 61 || seen == 62; }, "one second on"));
    probe.tap(XK_l, {XK_Control_L});
    ASSERT_TRUE(logs("Set Text: Repeat: 0:00:01.0 – 0:00:02.0"));
    // A stepped frame is on the screen a moment before its time is known; the keyframe before both is no answer.
    ASSERT_TRUE(frameBecomes([](int seen) { return seen == 31 || seen == 32; }, "it goes there at once"));
    probe.tap(XK_space);
    int least = 1000, most = 0, turns = 0, last = 0;
    waitUntil([&] {
        const int seen = frame().value_or(last);
        turns += seen < last ? 1 : 0;
        last = seen;
        least = std::min(least, turns > 0 ? seen : least);
        most = std::max(most, seen);
        return turns == 3;
    });
    EXPECT_EQ(turns, 3);
    EXPECT_NEAR(least, 32, 1);
    EXPECT_LE(most, 62);
    probe.tap(XK_l, {XK_Control_L});
    EXPECT_TRUE(frameBecomes([](int seen) { return seen > 70; }, "beyond the section"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Watching, a_typed_time_is_gone_to_and_its_still_is_the_movies_own_picture) {
    startRecorded(LUMARO_PROGRAM, {{"HOME", user.folder().string()}},
                  {"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_g);
    // The panel stands below the middle.
    ASSERT_TRUE(probe.waitForPixel(screenWidth / 2, screenHeight * 7 / 10,
                                   [](const Color& color) { return !color.isNear(red); }));
    std::this_thread::sleep_for(Seconds(0.5)); // it has the keyboard a moment later
    for (const KeySym typed : std::vector<KeySym>{XK_4, XK_period, XK_5, XK_Return})
        probe.tap(typed);
    ASSERT_TRUE(logs("Set Text: Time: 0:00:04.5"));
    ASSERT_TRUE(frameBecomes(135));
    probe.tap(XK_s, {XK_Control_L, XK_Shift_L});
    ASSERT_TRUE(logs("Set Text: Still: "));
    const std::filesystem::path file = user.folder() / "Pictures/red 0.00.04.500.png";
    ASSERT_TRUE(std::filesystem::exists(file));
    const QImage still(QString::fromStdString(file.string()));
    EXPECT_EQ(still.size(), QSize(384, 216)) << "not the screen's";
    const QColor color = still.pixelColor(190, 20);
    EXPECT_TRUE((Color{color.red(), color.green(), color.blue()}.isNear(red)));
    ASSERT_TRUE(quitsCleanly());
}

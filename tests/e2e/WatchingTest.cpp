// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the movie plays, and the places in it that are reached.
#include "tests/e2e/PlayerFixture.h"

#include <chrono>
#include <fstream>
#include <string>

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

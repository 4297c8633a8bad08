// SPDX-License-Identifier: GPL-3.0-or-later
// A drive of a network that stops to answer, and a long walk through folders.
#include "tests/e2e/PlayerFixture.h"

#include <X11/keysym.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace harness;

namespace {

class HangingDrive : public PlayerFixture {
protected:
    void SetUp() override {
        std::filesystem::create_directories(films);
        std::filesystem::create_symlink(numbered("green.mp4", green, 1200), films / "green.mp4");
    }
    void hang() const { std::ofstream(drive.string() + ".hangs") << "now"; }
    void startBeside(const std::vector<std::string>& arguments) {
        startRecorded(LUMARO_PROGRAM,
                      {{"LD_PRELOAD", LUMARO_HANGING_DRIVE_LIBRARY},
                       {"LUMARO_HANGING_DRIVE", drive.string()},
                       {"ASAN_OPTIONS", "verify_asan_link_order=0"}},
                      arguments);
    }
    testing::AssertionResult plays() {
        const std::optional<int> before = frame();
        return frameBecomes([&](int seen) { return before && seen > *before; }, "later");
    }

    const std::filesystem::path drive = user.folder() / "drive";
    const std::filesystem::path films = drive / "films";
    const std::string redMovie = numbered("red.mp4", red, 900);
};

} // namespace

TEST_F(HangingDrive, holds_up_neither_the_window_nor_the_next_movie_nor_the_end) {
    hang();
    const WindowId nothing = probe.windowAt(screenWidth / 2, screenHeight / 2);
    const auto isThere = [&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != nothing; };
    for (const auto& asked : {films, films / "green.mp4"}) {
        SCOPED_TRACE(asked);
        startBeside({asked});
        ASSERT_TRUE(waitUntil(isThere)) << "no window";
        EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Lo")) << "looking, or loading";
        EXPECT_EQ(startAnother({redMovie})->waitForExit(), 0);
        ASSERT_TRUE(colorBecomes(red));
        EXPECT_EQ(startAnother({"--append", asked})->waitForExit(), 0);
        ASSERT_TRUE(plays());
        // The first press may end what is looked for.
        probe.tap(XK_Escape);
        if (!waitUntil([&] { return !player->isRunning(); }, Seconds(1)))
            probe.tap(XK_Escape);
        EXPECT_EQ(player->waitForExit(), 0);
    }
}

TEST_F(HangingDrive, that_stops_to_answer_later_leaves_the_list_and_the_way_out) {
    startBeside({redMovie, films / "green.mp4"});
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(plays());
    hang();
    probe.tap(XK_Next);
    ASSERT_TRUE(logs("Next movie: file://" + (films / "green.mp4").string()));
    probe.tap(XK_Prior);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Previous: red.mp4"));
    ASSERT_TRUE(colorBecomes(red));
    EXPECT_TRUE(plays());
    probe.tap(XK_Next);
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(HangingDrive, that_gives_no_more_of_the_movie_that_plays_leaves_the_list_and_the_way_out) {
    // Large, so that much of it is yet to be read; and no link, whose content would lie elsewhere.
    MediaFixture::Numbered large;
    large.color = blue;
    large.width = 768;
    large.height = 432;
    large.encoder = {"-c:v", "mjpeg", "-q:v", "2", "-pix_fmt", "yuvj420p"};
    const std::filesystem::path movie = films / "blue.mkv";
    std::filesystem::copy_file(media().makeNumbered("blue.mkv", large), movie);
    for (const char* renderer : {"", "opengl"}) {
        SCOPED_TRACE(renderer);
        ::setenv("LUMARO_RENDERER", renderer, 1);
        startBeside({movie, redMovie});
        ASSERT_TRUE(colorBecomes(blue));
        ASSERT_TRUE(plays());
        std::ofstream(drive.string() + ".stalls") << 0;
        ASSERT_TRUE(settledFrame()) << "there is no more";
        probe.tap(XK_space);
        EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Movie: Pause"));
        probe.tap(XK_space);
        probe.tap(XK_Next);
        ASSERT_TRUE(colorBecomes(red));
        EXPECT_TRUE(plays());
        std::filesystem::remove(drive.string() + ".stalls");
        probe.tap(XK_Prior);
        ASSERT_TRUE(colorBecomes(blue));
        EXPECT_TRUE(plays()) << "the drive is back";
        std::ofstream(drive.string() + ".stalls") << 0;
        ASSERT_TRUE(settledFrame());
        const auto asked = std::chrono::steady_clock::now();
        ASSERT_TRUE(quitsCleanly());
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - asked;
        EXPECT_LT(taken.count(), 3) << "half of it is the word and the fade of every end";
        std::filesystem::remove(drive.string() + ".stalls");
    }
    ::unsetenv("LUMARO_RENDERER");
}

TEST_F(HangingDrive, a_long_walk_says_how_much_it_has_found_and_ends_by_escape) {
    constexpr int movies = 120;
    const std::filesystem::path folder = user.folder() / "many";
    std::filesystem::create_directories(folder);
    for (int i = 0; i < movies; ++i) {
        char name[16];
        std::snprintf(name, sizeof name, "%03d.mp4", i);
        std::filesystem::create_symlink(redMovie, folder / name);
    }
    std::filesystem::create_directory_symlink(films, folder / "z"); // the walk hangs there
    hang();
    startBeside({"--set", "QVOnLaunchDefaultAction=1", folder});
    ASSERT_TRUE(colorBecomes(red)) << "the first one plays at once";
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: 120 files found"));
    EXPECT_TRUE(plays());
    std::size_t before = player->lineCount();
    probe.tap(XK_Escape);
    EXPECT_TRUE(logs("QVFeedbackOverlay: Start Fading", before)) << "what was said goes";
    EXPECT_TRUE(plays());
    ASSERT_TRUE(quitsCleanly());
    const std::string kept = user.settingsText();
    int listed = 0;
    for (std::size_t at = 0; (at = kept.find("many/", at)) != std::string::npos; ++at)
        ++listed;
    EXPECT_EQ(listed, movies) << "what was found stays";
}

TEST_F(HangingDrive, holds_up_no_movie_that_its_subtitles_are_added_to_or_remembered_with) {
    std::ofstream(films / "red.srt") << "1\n00:00:01,000 --> 00:00:02,000\nHi\n";
    startBeside({redMovie});
    ASSERT_TRUE(colorBecomes(red));
    const std::string subtitles = films / "red.srt";
    EXPECT_EQ(startAnother({subtitles})->waitForExit(), 0);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: red.srt (1/1)"));
    ASSERT_TRUE(quitsCleanly());
    hang();
    for (int launch = 0; launch < 2; ++launch) {
        startBeside({redMovie});
        ASSERT_TRUE(colorBecomes(red));
        EXPECT_EQ(startAnother({subtitles})->waitForExit(), 0);
        ASSERT_TRUE(plays());
        ASSERT_TRUE(quitsCleanly());
    }
    std::filesystem::remove(drive.string() + ".hangs");
    startBeside({redMovie});
    EXPECT_TRUE(logs("Switching to subtitles stream: \"red.srt\"")) << "it was not forgotten meanwhile";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(HangingDrive, holds_up_no_panel_that_would_begin_there) {
    hang();
    startBeside({"--set", "NSNavLastRootDirectory=" + films.string(), redMovie});
    ASSERT_TRUE(colorBecomes(red));
    probe.tap(XK_o, {XK_Control_L});
    const WindowId panel = nextPanel();
    ASSERT_TRUE(panel);
    EXPECT_TRUE(plays());
    probe.tap(XK_Escape);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != panel; }));
    ASSERT_TRUE(quitsCleanly());
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Bitmap subtitles beside a movie, on the screen: where, when, out of which file and in which language.
#include "tests/e2e/PreferencesFixture.h"
#include "tests/support/RarWriter.h"
#include "tools/vobsub/VobSubWriter.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace harness;

namespace {

class VobSub : public PreferencesFixture {
protected:
    static constexpr std::uint8_t blueOfPalette = 6;

    // A blue rectangle within a transparent margin, in a frame of 720 by 480.
    static vobsub::Subpicture rectangle(int x, int y, int width, int height) {
        constexpr int margin = 10;
        vobsub::Subpicture picture{.bitmap = {width + 2 * margin, height + 2 * margin}};
        picture.bitmap.fill(margin, margin, width, height, 1);
        picture.x = x - margin;
        picture.y = y - margin;
        picture.colors[1] = blueOfPalette;
        picture.stop = 2000 * 90 / 1024; // two seconds
        return picture;
    }
    // English: below on the left from 1 to 3 s, wide and on the right from 5 to 7 s. German: in the middle, all along.
    static vobsub::PairWriter pair() {
        vobsub::PairWriter writer;
        writer.addStream("en");
        writer.addStream("de");
        vobsub::Subpicture german = rectangle(300, 240, 60, 60);
        german.stop.reset();
        writer.add(1, 0, german);
        writer.add(0, 1000, rectangle(90, 400, 180, 40), {.foreignPacks = 1});
        writer.add(0, 5000, rectangle(360, 320, 270, 80));
        writer.add(1, 9000, german);
        return writer;
    }
    static std::string dataOf(const vobsub::PairWriter& writer) {
        const auto& bytes = const_cast<vobsub::PairWriter&>(writer).data().bytes();
        return {bytes.begin(), bytes.end()};
    }

    // Where something blue stands on the screen; width 0 for nowhere.
    Region blueBox() {
        return probe.picture({0, 0, screenWidth, screenHeight}).extentWhere([](const Color& color) {
            return color.blue >= 128 && color.red < 128 && color.green < 128;
        });
    }
    // The rectangle comes to stand where the frame, as large as the screen, has it.
    testing::AssertionResult standsAt(int x, int y, int width, int height) {
        const auto scaled = [](int pixels, int shown, int of) { return pixels * shown / of; };
        const Region wanted{scaled(x, screenWidth, 720), scaled(y, screenHeight, 480), scaled(width, screenWidth, 720),
                            scaled(height, screenHeight, 480)};
        constexpr int blurred = 2; // the edges of an enlarged picture
        Region seen;
        const bool stands = waitUntil([&] {
            seen = blueBox();
            const auto near = [](int a, int b) { return std::abs(a - b) <= blurred; };
            return near(seen.x, wanted.x) && near(seen.y, wanted.y) && near(seen.width, wanted.width) &&
                   near(seen.height, wanted.height);
        });
        return stands ? testing::AssertionSuccess() : testing::AssertionFailure() << seen << " instead of " << wanted;
    }
    bool nothingStands() {
        return waitUntil([&] { return blueBox().width == 0; }) &&
               staysTrue([&] { return blueBox().width == 0; }, Seconds(0.15));
    }
};

} // namespace

TEST_F(VobSub, cues_stand_at_their_times_and_places_out_of_a_pair_and_out_of_archives) {
    const vobsub::PairWriter writer = pair();
    const auto archive = [&](RarFormat format) {
        const std::string data = dataOf(writer);
        return rarArchive(format, {{"Film.SUB", QByteArray(data.data(), static_cast<qsizetype>(data.size()))}})
            .toStdString();
    };
    for (const Files& data : {Files{{"sub", dataOf(writer)}}, Files{{"rar", archive(RarFormat::rar4)}},
                              Files{{"rar", archive(RarFormat::rar5)}}}) {
        SCOPED_TRACE(data.begin()->first);
        Files files = data;
        files["idx"] = writer.index();
        startStanding(movie(files));
        EXPECT_TRUE(logs("QVSubtitlesController: Switching to subtitles stream: \"English, film.idx\""));
        EXPECT_TRUE(nothingStands());
        jump(1, 2);
        EXPECT_TRUE(standsAt(90, 400, 180, 40));
        jump(1, 4);
        EXPECT_TRUE(nothingStands());
        jump(1, 6);
        EXPECT_TRUE(standsAt(360, 320, 270, 80));
        jump(-1, 4);
        EXPECT_TRUE(nothingStands());
        jump(-1, 2);
        EXPECT_TRUE(standsAt(90, 400, 180, 40));
        ASSERT_TRUE(quitsCleanly());
    }
}

TEST_F(VobSub, the_chosen_language_follows_to_the_next_movie_and_the_picture_scales_it) {
    const Files files{{"idx", pair().index()}, {"sub", dataOf(pair())}};
    const std::string next = movie(files);
    startStanding(movie(files), {next});
    EXPECT_TRUE(nothingStands());
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: German, film.idx (2/2)"));
    EXPECT_TRUE(standsAt(300, 240, 60, 60));
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: Off"));
    EXPECT_TRUE(nothingStands());
    probe.tap(XK_s, {XK_Shift_L});
    EXPECT_TRUE(standsAt(300, 240, 60, 60));
    const std::size_t from = player->lineCount();
    probe.tap(XK_Next);
    ASSERT_TRUE(logs("QVSubtitlesController: Switching to subtitles stream: \"German, film.idx\"", from));
    // It plays by now, and is brought to stand still before it is looked at.
    probe.tap(XK_space);
    ASSERT_TRUE(logs("QVMovieView: Stop Playing movie", from));
    probe.tap(XK_Left, {XK_Alt_L});
    EXPECT_TRUE(standsAt(300, 240, 60, 60));
    // A smaller picture takes them along.
    const Region full = blueBox();
    probe.tap(XK_minus);
    probe.tap(XK_minus);
    EXPECT_TRUE(waitUntil([&] {
        const Region box = blueBox();
        return box.width > 0 && box.width < full.width - 2 && box.height < full.height - 2;
    }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(VobSub, an_archive_is_unpacked_beside_the_playing_movie_for_as_long_as_somebody_waits_for_it) {
    const std::filesystem::path programs = user.folder() / "bin", temporary = user.folder() / "tmp";
    std::filesystem::create_directory(programs);
    std::filesystem::create_directory(temporary);
    // The first program that looks into an archive never ends.
    std::ofstream(programs / "lsar") << "#!/bin/sh\nexec sleep 1000\n";
    std::filesystem::permissions(programs / "lsar", std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    ::setenv("PATH", (programs.string() + ':' + path).c_str(), 1);
    ::setenv("TMPDIR", temporary.c_str(), 1);
    const auto isClean = [&] { return waitUntil([&] { return std::filesystem::is_empty(temporary); }); };

    const std::string slow = movie({{"idx", pair().index()}, {"rar", "Rar!\x1A\x07"}});
    start({slow});
    ASSERT_TRUE(logs("QVVobSubInfo: Launching UNRAR:"));
    EXPECT_TRUE(frameBecomes([](int number) { return number > 10; }, "11")) << "it does not play meanwhile";
    EXPECT_FALSE(std::filesystem::is_empty(temporary));
    EXPECT_EQ(startAnother({numbered("2.mp4", green, 300)})->waitForExit(), 0);
    ASSERT_TRUE(colorBecomes(green));
    EXPECT_TRUE(isClean()) << "it goes on for a movie that is gone";
    ASSERT_TRUE(quitsCleanly());

    for (const int end : {SIGTERM, SIGKILL}) {
        start({slow});
        ASSERT_TRUE(logs("QVVobSubInfo: Launching UNRAR:"));
        player->signal(end);
        EXPECT_TRUE(player->waitForExit());
        EXPECT_EQ(std::filesystem::is_empty(temporary), end == SIGTERM);
    }
    start({numbered("2.mp4", green, 300)});
    EXPECT_TRUE(isClean()) << "what the killed player left stays";
    ASSERT_TRUE(colorBecomes(green)) << "there is no window yet that takes keys";
    ::setenv("PATH", path.c_str(), 1);
    ::unsetenv("TMPDIR");
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(VobSub, a_damaged_track_goes_on_where_it_is_repaired) {
    vobsub::PairWriter writer;
    writer.addStream("en");
    writer.addShifted(0, 500, rectangle(300, 240, 60, 60), 400);
    writer.add(0, 1000, rectangle(90, 400, 180, 40));
    startStanding(movie({{"idx", writer.index()}, {"sub", dataOf(writer)}}));
    jump(1, 2);
    EXPECT_TRUE(nothingStands());
    probe.tap(XK_r);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Repair: On"));
    EXPECT_TRUE(standsAt(90, 400, 180, 40));
    probe.tap(XK_r);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Repair: Off"));
    EXPECT_TRUE(nothingStands());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(VobSub, the_style_of_the_preferences_acts_on_the_cue_that_stands) {
    // Where it is seen beside the window.
    vobsub::Subpicture narrow = rectangle(10, 400, 6, 60);
    narrow.stop = 6000 * 90 / 1024;
    vobsub::PairWriter writer;
    writer.addStream("en");
    writer.add(0, 1000, narrow);
    startStanding(movie({{"idx", writer.index()}, {"sub", dataOf(writer)}}));
    jump(1, 2);
    const int x = 13 * screenWidth / 720, y = 430 * screenHeight / 480;
    ASSERT_TRUE(waitUntil([&] { return probe.pixel(x, y).blue > 200; }));
    ASSERT_TRUE(opens());
    probe.tap(XK_s, {XK_Alt_L});
    probe.click(146, 200); // its tab
    probe.tap(XK_y, {XK_Alt_L});
    probe.tap(XK_Home); // no opacity at all
    EXPECT_TRUE(probe.waitForColor(x, y, red));
    for (int step = 0; step < 5; ++step)
        probe.tap(XK_Prior);
    EXPECT_TRUE(stores("MaxAlpha", "<real>0.5</real>"));
    const auto isHalf = [&] {
        const Color seen = probe.pixel(x, y);
        return seen.blue > 80 && seen.blue < 180 && seen.red > 60;
    };
    EXPECT_TRUE(waitUntil(isHalf)) << probe.pixel(x, y);
    probe.tap(XK_End);
    EXPECT_TRUE(waitUntil([&] { return probe.pixel(x, y).blue > 200; }));
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    ASSERT_TRUE(quitsCleanly());
}

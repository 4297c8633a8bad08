// SPDX-License-Identifier: GPL-3.0-or-later
// Asking for movies and dropping them, on the real program.
#include "tests/e2e/PlayerFixture.h"

#include <X11/keysym.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace harness;

namespace {

constexpr Color sourceColor{250, 0, 250};

std::unique_ptr<ChildProcess> startProgram(const char* program, const std::vector<std::string>& arguments,
                                           const std::map<std::string, std::string>& environment) {
    ChildProcess::Options options;
    options.arguments = {program};
    options.arguments.insert(options.arguments.end(), arguments.begin(), arguments.end());
    options.environment = environment;
    options.withoutEnvironment = {"QT_QPA_PLATFORM"};
    return std::make_unique<ChildProcess>(options);
}

/// Two movies of the user's in one folder.
class Opening : public PlayerFixture {
protected:
    void SetUp() override {
        std::filesystem::copy_file(numbered("red.mp4", red, 900), redMovie());
        std::filesystem::copy_file(numbered("green.mp4", green, 1200), greenMovie());
    }
    std::string redMovie() const { return user.folder() / "red.mp4"; }
    std::string greenMovie() const { return user.folder() / "green.mp4"; }

    /// A file of one cue, apart from the movies.
    std::string writeSubtitles() const {
        const std::filesystem::path file = user.folder() / "elsewhere/words.srt";
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "1\n00:00:00,000 --> 00:00:30,000\nWords\n";
        return file;
    }

    /// Whether the next movie is of the colour.
    testing::AssertionResult isFollowedBy(const Color& color) {
        if (!tapUntil(XK_Next, [&] { return probe.pixel(screenWidth / 4, screenHeight * 5 / 6).isNear(color); }))
            return testing::AssertionFailure() << "no such movie follows";
        return testing::AssertionSuccess();
    }
};

/// The same on a session with a message bus, on which a portal may be played.
class OpeningByPortal : public Opening {
protected:
    void SetUp() override {
        Opening::SetUp();
        std::filesystem::create_directories(user.runtimeFolder());
        // Where programs look for it that were told of none.
        const std::string socket = user.runtimeFolder() / "bus";
        _bus = startProgram("dbus-daemon", {"--session", "--nofork", "--address=unix:path=" + socket}, {});
        ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(socket); })) << _bus->errorOutput();
    }
    void startPortal(const std::vector<std::string>& arguments) {
        portal = startProgram(LUMARO_FAKE_PORTAL, arguments,
                              {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + (user.runtimeFolder() / "bus").string()}});
        ASSERT_TRUE(portal->waitForErrorLine("ready")) << portal->errorOutput();
    }
    std::unique_ptr<ChildProcess> portal;

private:
    std::unique_ptr<ChildProcess> _bus;
};

} // namespace

TEST_F(OpeningByPortal, the_desktops_own_panel_is_asked_and_its_check_box_adds) {
    startPortal({"0", "true", "file://" + greenMovie()});
    start({"--set", "QVPauseOnDeactivate=1", redMovie()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    probe.tap(XK_o, {XK_Control_L});
    ASSERT_TRUE(portal->waitForErrorLine("OpenFile(x11:"));
    ASSERT_TRUE(logs("Adding to playlist movie file: file://" + greenMovie()));
    EXPECT_TRUE(colorBecomes(red)) << "it plays on";
    EXPECT_TRUE(isFollowedBy(green));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(OpeningByPortal, a_panel_that_stands_holds_up_neither_another_launch_nor_the_end) {
    startPortal({"4", "false"});
    start({"--set", "QVPauseOnDeactivate=1", "--set", "QVHideOnDeactivate=1", redMovie()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    probe.tap(XK_o, {XK_Control_L});
    ASSERT_TRUE(portal->waitForErrorLine("OpenFile("));
    probe.tap(XK_Escape);
    EXPECT_TRUE(staysTrue([&] { return player->isRunning(); }, Seconds(0.5))) << "keys are the panel's";
    EXPECT_EQ(startAnother({greenMovie()})->waitForExit(), 0);
    EXPECT_TRUE(colorBecomes(green));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
    EXPECT_TRUE(portal->waitForErrorLine("Close()")) << "the panel goes with the player";
}

TEST_F(OpeningByPortal, where_the_portal_cannot_ask_the_players_own_panel_does) {
    startPortal({"3", "false"});
    start({redMovie()});
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(opensWindow(XK_o, {XK_Control_L}));
    type("green.mp4"); // in the folder of the movie opened last
    probe.tap(XK_Return);
    EXPECT_TRUE(colorBecomes(green));
    // Alt held at the answer adds.
    ASSERT_TRUE(opensWindow(XK_o, {XK_Control_L}));
    type("red.mp4");
    const std::size_t before = player->lineCount();
    probe.tap(XK_Return, {XK_Alt_L});
    ASSERT_TRUE(logs("Adding to playlist movie file:", before));
    EXPECT_TRUE(colorBecomes(green));
    EXPECT_TRUE(isFollowedBy(red));
    ASSERT_TRUE(opensWindow(XK_o, {XK_Control_L, XK_Shift_L}));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(OpeningByPortal, subtitles_are_added_to_the_movie_that_plays_and_come_back_with_it) {
    startPortal({"0", "false", "file://" + writeSubtitles()});
    start({redMovie()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    probe.tap(XK_e, {XK_Control_L});
    ASSERT_TRUE(portal->waitForErrorLine("OpenFile(x11:"));
    EXPECT_TRUE(logs("QVTextSubView: Set Text: Words"));
    const std::optional<int> seen = frame();
    EXPECT_TRUE(frameBecomes([&](int now) { return now > seen.value_or(0) + 10; }, "playing on"));
    ASSERT_TRUE(quitsCleanly());
    start({redMovie()});
    EXPECT_TRUE(logs("QVTextSubView: Set Text: Words")) << "they are not remembered with it";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(OpeningByPortal, the_desktops_own_panel_says_where_the_playlist_is_saved) {
    const std::filesystem::path list = user.folder() / "my list.m3u8";
    startPortal({"0", "false", "file://" + user.folder().string() + "/my%20list.m3u8"});
    start({redMovie(), greenMovie()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    probe.tap(XK_s, {XK_Control_L});
    ASSERT_TRUE(portal->waitForErrorLine("SaveFile(x11:"));
    ASSERT_TRUE(portal->waitForErrorLine("current_name=Playlist.m3u8"));
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(list); }));
    std::ifstream file(list);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(text.find("\ngreen.mp4\n"), std::string::npos) << text;
    ASSERT_TRUE(quitsCleanly());
    // It opens as what it names.
    start({list.string()});
    ASSERT_TRUE(colorBecomes(red));
    EXPECT_TRUE(isFollowedBy(green));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Opening, an_entered_path_is_opened_and_kept_for_the_next_time) {
    start({redMovie()});
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(opensWindow(XK_u, {XK_Control_L}));
    type(greenMovie());
    probe.tap(XK_Return);
    EXPECT_TRUE(colorBecomes(green));
    EXPECT_TRUE(logs("QVOpenURLPanel: Opening URLs: ("));
    ASSERT_TRUE(opensWindow(XK_u, {XK_Control_L, XK_Shift_L}));
    type(redMovie());
    probe.tap(XK_Return);
    probe.tap(XK_Return, {XK_Control_L});
    EXPECT_TRUE(colorBecomes(red));
    ASSERT_TRUE(quitsCleanly());
    EXPECT_NE(user.settingsText().find("<string>" + greenMovie() + "</string>"), std::string::npos);
    EXPECT_NE(user.settingsText().find("<string>" + redMovie() + "\n</string>"), std::string::npos);
}

namespace {

class Dropping : public Opening {
protected:
    void startSource(const std::string& actions, const std::vector<std::string>& things) {
        std::vector<std::string> arguments = {actions, "900", "500"};
        arguments.insert(arguments.end(), things.begin(), things.end());
        source =
            startProgram(LUMARO_DRAG_SOURCE, arguments, {{"DISPLAY", server.display()}, {"QT_QPA_PLATFORM", "xcb"}});
        ASSERT_TRUE(probe.waitForColor(950, 540, sourceColor)) << source->errorOutput();
    }
    /// Drags from the source to the place, and holds it there.
    void dragTo(int x, int y) {
        probe.movePointer(950, 540);
        probe.pressButton();
        // Slowly, as a hand does: the source asks after each place.
        for (int step = 1; step <= 10; ++step) {
            probe.movePointer(950 + (x - 950) * step / 10, 540 + (y - 540) * step / 10);
            std::this_thread::sleep_for(Seconds(0.02));
        }
    }
    /// The same until what a drop would do stands on the screen, and the source knows it.
    testing::AssertionResult hovers(int x, int y) {
        const std::size_t before = player->lineCount();
        dragTo(x, y);
        const testing::AssertionResult said = logs("QVFeedbackOverlay: Start Fading DELAY", before);
        std::this_thread::sleep_for(Seconds(0.2));
        return said;
    }
    std::unique_ptr<ChildProcess> source;
};

} // namespace

TEST_F(Dropping, what_hovers_is_said_and_taken_as_a_copy_or_a_link_but_never_moved) {
    start({"--set", "QVPlaylistAutoPlay=0", redMovie()});
    ASSERT_TRUE(frameBecomes(0));
    for (const auto& [actions, how] :
         {std::pair{"move", "nothing"}, {"copy,move", "copy"}, {"copy,move,link", "link"}}) {
        startSource(actions, {greenMovie()});
        if (actions == std::string("move"))
            dragTo(400, 600);
        else
            ASSERT_TRUE(hovers(400, 600)) << actions;
        probe.releaseButton();
        EXPECT_TRUE(source->waitForErrorLine(std::string("dropped as ") + how)) << actions << source->errorOutput();
        EXPECT_TRUE(colorBecomes(actions == std::string("move") ? red : green)) << actions;
        source.reset();
        EXPECT_EQ(startAnother({redMovie()})->waitForExit(), 0);
        ASSERT_TRUE(colorBecomes(red));
    }
    // With Alt it is added, and what leaves again is not said any more.
    startSource("copy", {"see " + greenMovie() + " and file://" + greenMovie() + ", too"});
    probe.press(XK_Alt_L);
    EXPECT_TRUE(logs("Set Text: Replace the Playlist"));
    ASSERT_TRUE(hovers(400, 600));
    EXPECT_TRUE(logs("Set Text: Add to the Playlist"));
    std::size_t before = player->lineCount();
    probe.movePointer(950, 540);
    EXPECT_TRUE(logs("Start Fading OUT", before));
    before = player->lineCount();
    ASSERT_TRUE(hovers(400, 600));
    probe.releaseButton();
    EXPECT_TRUE(source->waitForErrorLine("dropped as copy"));
    probe.release(XK_Alt_L);
    ASSERT_TRUE(logs("Adding to playlist movie file: file://" + greenMovie(), before)) << "the address in a text";
    EXPECT_TRUE(colorBecomes(red));
    source.reset();
    EXPECT_TRUE(isFollowedBy(green));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Dropping, subtitles_are_added_to_the_movie_that_plays) {
    start({redMovie()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    startSource("copy,move", {writeSubtitles()});
    ASSERT_TRUE(hovers(400, 600));
    EXPECT_TRUE(logs("Set Text: Add to the Movie as Subtitles"));
    probe.releaseButton();
    EXPECT_TRUE(logs("QVTextSubView: Set Text: Words"));
    source.reset();
    EXPECT_TRUE(frameBecomes([](int seen) { return seen > 60; }, "playing on"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Dropping, on_a_panel_falls_not_through_to_the_movie) {
    start({"--set", "QVPlaylistAutoPlay=0", redMovie()});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(opensWindow(XK_comma, {XK_Control_L}));
    startSource("copy", {greenMovie()});
    dragTo(screenWidth / 2, screenHeight / 2);
    probe.releaseButton();
    EXPECT_TRUE(source->waitForErrorLine("dropped as nothing"));
    EXPECT_TRUE(probe.waitForColor(20, 20, red));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Dropping, names_that_are_no_utf8_come_with_their_subtitles_by_a_drop_as_by_a_hand_over) {
    const std::filesystem::path movie = user.folder() / "caf\xE9.mp4", subtitles = user.folder() / "caf\xE9.srt";
    std::error_code error;
    std::filesystem::copy_file(greenMovie(), movie, error);
    if (error)
        GTEST_SKIP() << "this file system takes UTF-8 alone";
    std::ofstream(subtitles) << "1\n00:00:00,000 --> 00:00:30,000\nWords\n";
    start({"--set", "QVPlaylistAutoPlay=0", redMovie()});
    ASSERT_TRUE(colorBecomes(red));
    for (const bool isDropped : {false, true}) {
        const std::size_t before = player->lineCount();
        if (isDropped) {
            startSource("copy,move,link", {"file://" + user.folder().string() + "/caf%E9.mp4"});
            ASSERT_TRUE(hovers(400, 600));
            probe.releaseButton();
        } else {
            EXPECT_EQ(startAnother({movie})->waitForExit(), 0);
        }
        EXPECT_TRUE(colorBecomes(green)) << isDropped;
        EXPECT_TRUE(logs("QVTextSubView: Set Text: Words", before)) << isDropped;
        source.reset();
        EXPECT_EQ(startAnother({redMovie()})->waitForExit(), 0);
        ASSERT_TRUE(colorBecomes(red));
    }
    ASSERT_TRUE(quitsCleanly());
    // The folder's own end does not know how to remove these.
    std::filesystem::remove(movie);
    std::filesystem::remove(subtitles);
}

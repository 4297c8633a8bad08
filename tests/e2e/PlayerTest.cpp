// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <signal.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

using namespace harness;

namespace {

class Player : public PlayerFixture {
protected:
    // Starts movies that stand at their beginning until they are told to play.
    void startStanding(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--set", "QVPlaylistAutoPlay=0"});
        start(arguments);
        ASSERT_TRUE(frameBecomes(0));
    }

    bool regionBecomes(const Color& color, const Region& wanted, Region& seen) {
        const auto near = [](int a, int b) { return std::abs(a - b) <= 1; };
        return waitUntil([&] {
            seen = probe.extentOf(color);
            return near(seen.x, wanted.x) && near(seen.y, wanted.y) && near(seen.width, wanted.width) &&
                   near(seen.height, wanted.height);
        });
    }
};

} // namespace

TEST_F(Player, arrows_step_and_jump_a_paused_movie_and_go_to_its_ends) {
    startStanding({"--set", "QVJumpInterval=3", numbered("red.mp4", red, 300)});
    probe.tap(XK_space);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen >= 3; }, "3 or later"));
    probe.tap(XK_space);
    EXPECT_TRUE(logs("QVMovieView: Stop Playing movie"));
    EXPECT_TRUE(settledFrame()) << "the movie runs on after a pause";
    probe.tap(XK_Left, {XK_Alt_L});
    ASSERT_TRUE(frameBecomes(0));
    const struct {
        KeySym key;
        std::vector<KeySym> modifiers;
        int frame;
    } presses[] = {{XK_Right, {}, 1},
                   {XK_Right, {}, 2},
                   {XK_Right, {XK_Control_L}, 92},
                   {XK_Right, {XK_Control_L}, 182},
                   {XK_Left, {XK_Control_L}, 92},
                   {XK_Right, {}, 93},
                   {XK_Left, {}, 92},
                   {XK_Left, {}, 91},
                   {XK_Left, {XK_Control_L}, 1},
                   {XK_Left, {XK_Control_L}, 0}, // not before the beginning
                   {XK_Right, {XK_Alt_L}, 299},
                   {XK_Left, {XK_Alt_L}, 0}};
    for (const auto& press : presses) {
        probe.tap(press.key, press.modifiers);
        ASSERT_TRUE(frameBecomes(press.frame));
        EXPECT_EQ(settledFrame(), press.frame); // the time of a step is known a little after its picture
    }
    probe.tap(XK_space);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 15; }, "later while playing"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, size_keys_place_the_picture) {
    const std::string movie =
        media().makeColored("wide.mp4", {blue}, 60, 400, 300, 5, {"-c:v", "libx264", "-pix_fmt", "yuv420p"}).string();
    start({"--set", "QVDefaultMovieSize=3", movie});
    ASSERT_TRUE(colorBecomes(blue));
    const struct {
        const char* name;
        KeySym key;
        Region picture;
    } sizes[] = {{"normal", XK_1, {440, 210, 400, 300}},
                 {"half", XK_0, {540, 285, 200, 150}},
                 {"double", XK_2, {240, 60, 800, 600}},
                 {"full", XK_3, {160, 0, 960, 720}},
                 {"fit width", XK_4, {0, 0, 1280, 720}},
                 {"fit height", XK_5, {160, 0, 960, 720}},
                 {"fit width", XK_w, {0, 0, 1280, 720}},
                 {"full", XK_f, {160, 0, 960, 720}},
                 {"normal again", XK_1, {440, 210, 400, 300}},
                 {"bigger", XK_equal, {420, 195, 440, 330}},
                 {"bigger twice", XK_equal, {400, 180, 480, 360}},
                 {"smaller", XK_minus, {420, 195, 440, 330}},
                 {"with the controller bar", XK_c, {420, 195 - 8, 440, 330}},
                 {"full above the bar", XK_3, {171, 0, 939, 704}}};
    for (const auto& size : sizes) {
        probe.tap(size.key);
        Region seen;
        EXPECT_TRUE(regionBecomes(blue, size.picture, seen)) << size.name << ": " << seen << " is not " << size.picture;
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, the_list_plays_through_and_stops_at_its_last_picture) {
    start({numbered("short1.mp4", red, 60), numbered("short2.mp4", green, 90)});
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(colorBecomes(green));
    const auto finished = player->waitForErrorLine("QVPlaylistController: Current movie finished.");
    ASSERT_TRUE(finished);
    ASSERT_TRUE(logs("QVPlaylistController: Current movie finished.", *finished));
    EXPECT_EQ(settledFrame(), 89);
    EXPECT_TRUE(player->isRunning());
    // Play again from the end begins at the start.
    probe.tap(XK_space);
    EXPECT_TRUE(frameBecomes([](int seen) { return seen < 80; }, "early again"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, automatic_quit_ends_the_program_after_the_list) {
    start({"--set", "QVPlaylistAutoQuit=1", numbered("short1.mp4", red, 25)});
    EXPECT_EQ(player->waitForExit(), 0);
    EXPECT_TRUE(logs("Playlist finished. Looping is Off. AutoQuit is ON. Terminating app."));
}

TEST_F(Player, of_players_that_are_started_at_once_one_stays) {
    const std::string movie = numbered("1.mp4", red, 300);
    std::vector<std::unique_ptr<LumaroProcess>> all;
    for (int i = 0; i < 3; ++i)
        all.push_back(startAnother({movie}));
    const auto isRunning = [](const auto& one) { return one->isRunning(); };
    EXPECT_TRUE(waitUntil([&] { return std::ranges::count_if(all, isRunning) == 1; }));
    const auto stays = std::ranges::find_if(all, isRunning);
    ASSERT_NE(stays, all.end());
    player = std::move(*stays);
    all.erase(stays);
    for (const auto& one : all) {
        EXPECT_EQ(one->waitForExit(), 0) << one->errorOutput();
        EXPECT_TRUE(one->faults().empty()) << one->errorOutput();
    }
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, a_second_launch_hands_its_files_over) {
    const std::filesystem::path second = numbered("2.mp4", green, 300);
    startStanding({numbered("1.mp4", red, 300)});
    ASSERT_TRUE(colorBecomes(red));
    // By a name that means something only in the second one's working directory.
    EXPECT_EQ(startAnother({second.filename().string()}, second.parent_path().string())->waitForExit(), 0);
    ASSERT_TRUE(colorBecomes(green));
    EXPECT_EQ(startAnother({"--append", numbered("3.mp4", blue, 300)})->waitForExit(), 0);
    ASSERT_TRUE(logs("3.mp4"));
    EXPECT_TRUE(
        staysTrue([&] { return probe.pixel(screenWidth / 4, screenHeight * 5 / 6).isNear(green); }, Seconds(0.3)))
        << "appending changed the movie shown";
    probe.tap(XK_Page_Down);
    ASSERT_TRUE(colorBecomes(blue));
    probe.tap(XK_Page_Up);
    ASSERT_TRUE(colorBecomes(green));

    // What acts only at the start of a player is refused, and the movie with it.
    for (const std::vector<std::string>& option :
         {std::vector<std::string>{"--software"}, {"--set", "QVJumpInterval=3"}}) {
        std::vector<std::string> arguments = option;
        arguments.push_back(numbered("1.mp4", red, 300));
        const auto refused = startAnother(arguments);
        EXPECT_EQ(refused->waitForExit(), 1);
        EXPECT_NE(refused->errorOutput().find("lumaro: '" + option.front() + "'"), std::string::npos)
            << refused->errorOutput();
    }
    // A launch from elsewhere has no display, or another one.
    for (const std::string display : {"", ":4711"}) {
        const std::string movie = numbered(display.empty() ? "1.mp4" : "3.mp4", display.empty() ? red : blue, 300);
        EXPECT_EQ(LumaroProcess(user, display, {movie}).waitForExit(), 0);
        ASSERT_TRUE(colorBecomes(display.empty() ? red : blue));
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, without_a_display_one_sentence_says_so) {
    for (const std::string display : {"", ":4711"}) {
        LumaroProcess process(user, display, {numbered("1.mp4", red, 300)});
        EXPECT_EQ(process.waitForExit(), 1) << process.errorOutput();
        EXPECT_EQ(process.errorLines().size(), 1u) << process.errorOutput();
        EXPECT_NE(process.errorOutput().find("lumaro: there is no display"), std::string::npos);
    }
}

TEST_F(Player, it_plays_without_a_screen_where_that_was_asked_for_and_takes_addresses_of_this_machine) {
    startOn("offscreen", {"file://localhost" + numbered("1.mp4", red, 30), "--set", "QVPlaylistAutoQuit=1"});
    EXPECT_EQ(player->waitForExit(), 0) << player->errorOutput();
    EXPECT_TRUE(logs("QVMovieView: Start Playing movie"));
}

TEST_F(Player, the_right_button_opens_a_menu_that_escape_closes) {
    startStanding({numbered("red.mp4", red, 300)});
    const auto window = probe.windowAt(320, 220);
    ASSERT_NE(window, 0u);
    probe.click(300, 200, 3);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(320, 220) != window; })) << "no menu opened";
    probe.tap(XK_Escape);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(320, 220) == window; })) << "the menu stays";
    EXPECT_TRUE(player->isRunning());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, the_menu_bar_comes_while_the_pointer_is_at_the_top) {
    startStanding({numbered("red.mp4", red, 300)});
    const auto covered = [](const Color& color) { return !color.isNear(red); };
    ASSERT_FALSE(covered(probe.pixel(1200, 8)));
    probe.movePointer(640, 300);
    probe.movePointer(640, 0);
    EXPECT_TRUE(probe.waitForPixel(1200, 8, covered)) << "no menu bar";
    const auto window = probe.windowAt(20, 30);
    probe.click(20, 8);
    EXPECT_TRUE(waitUntil([&] { return probe.windowAt(20, 30) != window; })) << "its menu does not open";
    probe.tap(XK_Escape);
    EXPECT_TRUE(waitUntil([&] { return probe.windowAt(20, 30) == window; })) << "its menu stays";
    probe.movePointer(640, 300);
    EXPECT_TRUE(probe.waitForColor(1200, 8, red)) << "the menu bar stays";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, settings_survive_quitting_and_a_kill_at_any_moment) {
    const std::string movie =
        media().makeColored("wide.mp4", {blue}, 60, 400, 300, 5, {"-c:v", "libx264", "-pix_fmt", "yuv420p"}).string();
    const Region normal{440, 210, 400, 300}, half{540, 285, 200, 150};
    Region seen;
    start({movie});
    ASSERT_TRUE(waitUntil([&] { return probe.extentOf(blue).width > 0; }));
    probe.tap(XK_1);
    ASSERT_TRUE(regionBecomes(blue, normal, seen)) << seen;
    ASSERT_TRUE(quitsCleanly());
    ASSERT_NE(user.settingsText().find("QVDefaultMovieSize"), std::string::npos);
    EXPECT_EQ(user.settingsText().find("QVEnableTrace"), std::string::npos) << "a setting for one run was kept";

    start({movie});
    ASSERT_TRUE(regionBecomes(blue, normal, seen)) << seen << ": the size was not kept";
    probe.tap(XK_0);
    ASSERT_TRUE(regionBecomes(blue, half, seen)) << seen;
    // As from writing to a pipe that nobody reads any more.
    player->signal(SIGPIPE);
    EXPECT_FALSE(player->waitForExit(Seconds(0.3)));
    player->signal(SIGKILL);
    ASSERT_EQ(player->waitForExit(), -SIGKILL);

    // What was written last, whole: the size before or after, nothing else.
    start({movie});
    EXPECT_TRUE(waitUntil([&] { return probe.extentOf(blue).width == 400 || probe.extentOf(blue).width == 200; }))
        << probe.extentOf(blue);
    for (const std::string& line : player->errorLines())
        EXPECT_EQ(line.find("ERROR: SettingsFile"), std::string::npos) << line;
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Player, what_quitting_keeps_is_kept_when_the_screen_dies_or_the_terminal_goes) {
    const std::string movie = numbered("1.mp4", red, 300);
    for (const bool dies : {true, false}) {
        XvfbServer another(screenWidth, screenHeight);
        auto keys = std::make_unique<XProbe>(another.display());
        // It plays: there is always something to draw.
        startOn(another.display(), {movie});
        ASSERT_TRUE(keys->waitForColor(1200, 8, red));
        keys->tap(dies ? XK_Down : XK_Up);
        ASSERT_TRUE(logs(dies ? "Volume: 90%" : "Volume: 100%"));
        keys.reset();
        if (dies)
            another.kill();
        else
            player->signal(SIGHUP);
        EXPECT_EQ(player->waitForExit(), dies ? 1 : 0);
        EXPECT_NE(user.settingsText().find(dies ? "<real>0.9</real>" : "<real>1</real>"), std::string::npos)
            << user.settingsText();
    }
}

TEST_F(Player, told_to_end_while_a_panel_waits_at_launch_it_opens_nothing_more_and_keeps_what_was_kept) {
    std::filesystem::create_directories(user.settingsFile().parent_path());
    std::ofstream(user.settingsFile()) << "<plist version=\"1.0\"><dict><key>QVOSDStateSavedType</key>"
                                          "<integer>3</integer></dict></plist>\n";
    player = startAnother({"--set", "QVEnableTrace=1", "--set", "QVOnLaunchDefaultAction=2"});
    ASSERT_TRUE(logs("Launching File Open panel ..."));
    EXPECT_EQ(startAnother({numbered("1.mp4", red, 300)})->waitForExit(), 0);
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
    EXPECT_EQ(player->errorOutput().find("Adding to playlist"), std::string::npos);
    EXPECT_NE(user.settingsText().find("<integer>3</integer>"), std::string::npos) << user.settingsText();
}

TEST_F(Player, wrong_usage_ends_with_status_2_and_help_and_version_with_0) {
    const struct {
        std::vector<std::string> arguments;
        int status;
    } cases[] = {{{"--no-such-option"}, 2}, {{"--set"}, 2},
                 {{"--set", "=1"}, 2},      {{"--set", "QVJumpInterval=soon", "--inspect", "a.srt"}, 2},
                 {{"--help"}, 0},           {{"--version"}, 0}};
    for (const auto& given : cases) {
        LumaroProcess process(user, {}, given.arguments);
        EXPECT_EQ(process.waitForExit(), given.status) << given.arguments.front() << process.errorOutput();
        EXPECT_FALSE((given.status ? process.errorOutput() : process.output()).empty()) << given.arguments.front();
    }
}

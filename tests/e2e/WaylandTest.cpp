// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using namespace harness;

namespace {

/// A Wayland compositor in a window that fills the screen, so that it is looked at and pressed from outside.
class Wayland : public PlayerFixture {
protected:
    void SetUp() override {
        std::filesystem::create_directories(user.runtimeFolder());
        std::filesystem::permissions(user.runtimeFolder(), std::filesystem::perms::owner_all);
        ChildProcess::Options options;
        options.arguments = {"weston",
                             "--backend=x11-backend.so",
                             "--use-pixman",
                             "--width=" + std::to_string(screenWidth),
                             "--height=" + std::to_string(screenHeight),
                             "--socket=wayland-test",
                             "--no-config",
                             "--output-count=" + std::to_string(outputs()),
                             "--idle-time=0"};
        options.environment = {{"DISPLAY", server.display()}, {"XDG_RUNTIME_DIR", user.runtimeFolder().string()}};
        compositor = std::make_unique<ChildProcess>(options);
        ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(user.runtimeFolder() / "wayland-test"); }))
            << compositor->errorOutput();
        ASSERT_TRUE(waitUntil([&] { return probe.hasVisibleWindow(); }));
    }

    virtual int outputs() const { return 1; }

    void startStanding(const std::vector<std::string>& movies) {
        std::vector<std::string> arguments = {"--set", "QVPlaylistAutoPlay=0"};
        arguments.insert(arguments.end(), movies.begin(), movies.end());
        probe.movePointer(screenWidth / 2, screenHeight / 2);
        startOn("wayland-test", arguments);
        ASSERT_TRUE(frameBecomes(0));
        // A compositor that fades its screen in is dark first, and keeps the pointer to itself until it has.
        ASSERT_TRUE(becomes(1200, 8, false)) << "the screen stays dark";
        // The compositor's pointer begins in the corner, wherever the screen's is, and follows its moves: in that
        // corner the two come together. The menu bar tells that they did.
        ASSERT_TRUE(waitUntil([&] {
            probe.movePointer(1, 1);
            probe.movePointer(0, 0);
            return !staysTrue([&] { return probe.pixel(1200, 8).isNear(red); }, Seconds(0.5));
        })) << "no pointer";
        probe.movePointer(600, 200);
        ASSERT_TRUE(becomes(1200, 8, false)) << "the menu bar stays";
    }

    bool becomes(int x, int y, bool covered) {
        return probe.waitForPixel(x, y, [&](const Color& seen) { return seen.isNear(red) != covered; });
    }

    // The compositor draws the pointer into its screen.
    bool pointerBecomes(int x, int y, const Color& background, bool shown) {
        return waitUntil([&] {
            const Picture around = probe.picture({x, y, 16, 16});
            return (around.extentWhere([&](const Color& seen) { return !seen.isNear(background); }).width > 0) == shown;
        });
    }

    // Presses a key that opens a panel over the middle of the screen, and waits until keys are the panel's.
    bool opensPanel(KeySym key, const std::vector<KeySym>& modifiers) {
        const Color before = probe.pixel(screenWidth / 2, screenHeight * 3 / 4);
        probe.tap(key, modifiers);
        return probe.waitForPixel(screenWidth / 2, screenHeight * 3 / 4, [&](const Color& seen) {
            return !seen.isNear(before);
        }) && waitUntil([&] {
                   const std::size_t heard = keysHeard();
                   probe.tap(XK_F12);
                   return staysTrue([&] { return keysHeard() == heard; }, Seconds(0.3));
               });
    }

    // Every key is the menu's: none reached the player's own commands.
    testing::AssertionResult gotNoKey() {
        for (const std::string& line : player->errorLines())
            if (line.find("Key: 0x") != std::string::npos)
                return testing::AssertionFailure() << "the player took a key: " << line;
        return testing::AssertionSuccess() << "no key";
    }

    std::unique_ptr<ChildProcess> compositor;
};

/// The second output's window lies on the first one's: it is the one seen.
class TwoWaylandOutputs : public Wayland {
protected:
    int outputs() const override { return 2; }

    // A movie that fades is darker, the desktop is grey.
    bool desktopIsSeen() {
        return probe.waitForPixel(900, 500, [&](const Color& seen) { return seen.green > 60 && seen.blue > 60; });
    }
};

} // namespace

TEST_F(Wayland, fills_the_screen_and_takes_keys) {
    startStanding({numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90)});
    probe.tap(XK_Right);
    ASSERT_TRUE(frameBecomes(1));
    probe.tap(XK_Right, {XK_Control_L});
    ASSERT_TRUE(frameBecomes(299)) << "ten seconds on";
    probe.tap(XK_Next);
    ASSERT_TRUE(colorBecomes(green));
    probe.movePointer(300, 150);
    EXPECT_TRUE(pointerBecomes(300, 150, green, true));
    EXPECT_TRUE(pointerBecomes(300, 150, green, false)) << "the pointer stays";
    probe.movePointer(500, 150);
    EXPECT_TRUE(pointerBecomes(500, 150, green, true));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, keys_belong_to_the_menu_that_is_open) {
    startStanding({numbered("red.mp4", red, 300)});
    probe.click(300, 120, 3);
    ASSERT_TRUE(becomes(320, 140, true)) << "no menu opened";
    // Faster than the program answers, to the submenu of the first item and away from it, then from the menu.
    for (const KeySym key : std::vector<KeySym>{XK_m, XK_Down, XK_Right, XK_Escape, XK_Escape})
        probe.tap(key);
    ASSERT_TRUE(becomes(320, 140, false)) << "the menu stays";
    EXPECT_TRUE(gotNoKey());

    // A click elsewhere closes it, and does nothing to the movie.
    probe.click(300, 120, 3);
    ASSERT_TRUE(becomes(320, 140, true)) << "no menu opened again";
    probe.click(900, 600);
    probe.click(900, 600);
    ASSERT_TRUE(becomes(320, 140, false)) << "the menu stays at a click elsewhere";
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, the_menu_bar_comes_while_the_pointer_is_at_the_top) {
    startStanding({numbered("red.mp4", red, 300)});
    for (int round = 0; round < 3; ++round) {
        probe.movePointer(640, 200);
        probe.movePointer(640, 0);
        ASSERT_TRUE(becomes(1200, 8, true)) << "no menu bar";
        probe.click(20, 8);
        ASSERT_TRUE(becomes(20, 40, true)) << "its menu does not open";
        probe.tap(XK_Escape);
        ASSERT_TRUE(becomes(20, 40, false)) << "its menu stays";
        EXPECT_TRUE(gotNoKey());
        probe.movePointer(640, 200);
        ASSERT_TRUE(becomes(1200, 8, false)) << "the menu bar stays";
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, the_preferences_stand_on_the_screen_as_a_whole) {
    startStanding({numbered("red.mp4", red, 300)});
    probe.tap(XK_comma, {XK_Control_L});
    // Below the pages, and between the buttons: as high as a button and what lies around it.
    const auto lowestRow = [&] {
        const Picture column = probe.picture({screenWidth / 2, screenHeight / 2, 1, screenHeight / 2});
        return std::ranges::count_if(column.pixels, [](std::uint32_t pixel) { return (pixel & 0xffffff) == 0xefefef; });
    };
    EXPECT_TRUE(waitUntil([&] { return lowestRow() >= 36; })) << lowestRow();
    probe.tap(XK_Escape);
    ASSERT_TRUE(becomes(screenWidth / 4, screenHeight * 5 / 6, false));
    // The compositor gives the keyboard back a moment later.
    ASSERT_TRUE(tapUntil(XK_m, [&] { return isLogged("Char: \"m\""); }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(TwoWaylandOutputs, the_movie_fills_the_one_chosen_and_moves_to_the_other) {
    startOn("wayland-test",
            {"--set", "QVMainWindowScreen=1", "--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_Tab);
    EXPECT_TRUE(desktopIsSeen());
    probe.tap(XK_Tab);
    EXPECT_TRUE(frameBecomes(0));
    EXPECT_TRUE(colorBecomes(red));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, what_is_dragged_in_replaces_the_movie) {
    startStanding({numbered("red.mp4", red, 300)});
    ChildProcess::Options options;
    options.arguments = {LUMARO_DRAG_SOURCE, "copy,move", "0", "0", numbered("green.mp4", green, 1200)};
    options.environment = {{"XDG_RUNTIME_DIR", user.runtimeFolder().string()},
                           {"WAYLAND_DISPLAY", "wayland-test"},
                           {"QT_QPA_PLATFORM", "wayland"}};
    ChildProcess source(options);
    // Where the compositor put it.
    Region at;
    ASSERT_TRUE(waitUntil([&] { return (at = probe.extentOf({250, 0, 250}, 10)).width >= 100; }));
    const int x = at.x + at.width / 2, y = at.y + at.height / 2;
    probe.movePointer(x, y);
    probe.pressButton();
    for (int step = 1; step <= 10; ++step) {
        probe.movePointer(x + (200 - x) * step / 10, y + ((y < 360 ? 650 : 100) - y) * step / 10);
        std::this_thread::sleep_for(Seconds(0.02));
    }
    EXPECT_TRUE(logs("Set Text: Replace the Playlist"));
    std::this_thread::sleep_for(Seconds(0.2)); // its source hears of it, too
    probe.releaseButton();
    EXPECT_TRUE(source.waitForErrorLine("dropped as copy")) << source.errorOutput();
    EXPECT_TRUE(logs("green.mp4"));
    EXPECT_TRUE(probe.waitForPixel(20, 100, [](const Color& seen) { return seen.isNear(green); }));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Wayland, what_the_panels_ask_for_plays) {
    const std::string redMovie = user.folder() / "red.mp4", greenMovie = user.folder() / "green.mp4";
    std::filesystem::copy_file(numbered("red.mp4", red, 300), redMovie);
    std::filesystem::copy_file(numbered("green.mp4", green, 1200), greenMovie);
    startStanding({redMovie});
    const struct {
        KeySym key;
        std::vector<KeySym> modifiers;
        std::string typed;
        std::vector<KeySym> withReturn;
        Color color;
    } panels[] = {
        {XK_o, {XK_Control_L}, "green.mp4", {}, green}, // in the folder of the movie opened last
        {XK_u, {XK_Control_L}, redMovie, {}, red},
        {XK_u, {XK_Control_L, XK_Shift_L}, greenMovie, {XK_Control_L}, green},
    };
    for (const auto& panel : panels) {
        ASSERT_TRUE(opensPanel(panel.key, panel.modifiers)) << panel.typed;
        type(panel.typed);
        probe.tap(XK_Return, panel.withReturn);
        ASSERT_TRUE(colorBecomes(panel.color)) << panel.typed;
        ASSERT_TRUE(frameBecomes(0)) << "the panel is gone";
        // The compositor gives the keyboard back a moment later.
        const std::size_t heard = keysHeard();
        ASSERT_TRUE(tapUntil(XK_F12, [&] { return keysHeard() > heard; }));
    }
    EXPECT_EQ(timesLogged("QVOpenURLPanel: Opening URLs: ("), 2U);
    ASSERT_TRUE(opensPanel(XK_o, {XK_Control_L, XK_Shift_L}));
    probe.tap(XK_Escape);
    EXPECT_TRUE(frameBecomes(0)) << "nothing was chosen";
    ASSERT_TRUE(tapUntil(XK_m, [&] { return isLogged("Char: \"m\""); }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, what_another_launch_hands_over_plays_and_comes_back_at_the_next) {
    const std::vector<std::string> restoring = {"--set", "QVOnLaunchDefaultAction=1"};
    startStanding({restoring[0], restoring[1], numbered("red.mp4", red, 300)});
    LumaroProcess another(user, "wayland-test", {numbered("green.mp4", green, 1200)});
    EXPECT_EQ(another.waitForExit(), 0);
    ASSERT_TRUE(colorBecomes(green));
    probe.tap(XK_Right);
    ASSERT_TRUE(frameBecomes(1)) << "it has the keyboard still";
    ASSERT_TRUE(quitsCleanly());
    startOn("wayland-test", restoring);
    EXPECT_TRUE(colorBecomes(green));
    EXPECT_TRUE(frameBecomes(1));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, what_quitting_keeps_is_kept_when_the_compositor_dies) {
    startStanding({numbered("red.mp4", red, 300)});
    probe.tap(XK_Down);
    ASSERT_TRUE(logs("Volume: 90%"));
    compositor->kill();
    EXPECT_EQ(player->waitForExit(), 1);
    EXPECT_NE(user.settingsText().find("<real>0.9"), std::string::npos) << user.settingsText();
}

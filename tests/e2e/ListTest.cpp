// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and the list by hand, on the real program.
#include "tests/e2e/PlayerFixture.h"
#include "tools/screen/HttpServer.h"
#include "tools/screen/Waiting.h"

#include <X11/keysym.h>

#include <signal.h>

using namespace harness;

namespace {

class List : public PlayerFixture {};

} // namespace

TEST_F(List, an_address_that_hangs_holds_up_neither_a_film_nor_the_end) {
    const std::string film = numbered("red.mp4", red, 1200);
    const HttpServer http(film);
    start({http.url("/never.mp4")});
    ASSERT_TRUE(logs("Set Text: Loading: never.mp4"));
    EXPECT_EQ(startAnother({film})->waitForExit(), 0);
    // The server is given up after ten seconds, and a film must not wait for that.
    EXPECT_TRUE(colorBecomes(red, Seconds(5)));
    EXPECT_EQ(startAnother({"--append", http.url("/never.mp4")})->waitForExit(), 0);
    const std::size_t opened = player->errorOutput().find("Next movie:");
    ASSERT_TRUE(waitUntil([&] { return player->errorOutput().find("/never.mp4", opened) != std::string::npos; }));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(Seconds(5)), 0);
    EXPECT_TRUE(player->faults().empty());
}

TEST_F(List, what_a_server_cannot_send_from_its_end_is_said) {
    // Its index stands at the end, and /early.mp4 knows no ranges.
    const HttpServer http(numbered("red.mp4", red, 1200));
    start({http.url("/early.mp4")});
    EXPECT_TRUE(logs("QT Sticky Error Code -6006"));
    EXPECT_TRUE(tapUntil(XK_Return, [&] {
        return player->errorOutput().find("No playable movies foung in playlist.") != std::string::npos;
    }));
    EXPECT_TRUE(tapUntil(XK_Escape, [&] { return !player->isRunning(); }));
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(List, the_panel_of_the_whole_list_plays_moves_and_removes) {
    start({numbered("red.mp4", red, 1200), numbered("green.mp4", green, 1200), numbered("blue.mp4", blue, 1200)});
    ASSERT_TRUE(colorBecomes(red));
    ASSERT_TRUE(logs("All movies are opened."));
    const std::size_t before = player->errorOutput().size();
    // The panel takes the keyboard a moment after it was asked for; the player itself passes Return on.
    probe.tap(XK_p);
    probe.tap(XK_Down);
    EXPECT_TRUE(
        tapUntil(XK_Return, [&] { return player->errorOutput().find("Next movie:", before) != std::string::npos; }));
    // Filtered to the blue one, which is moved to the beginning before it plays.
    for (const KeySym key : {KeySym{XK_b}, KeySym{XK_l}, KeySym{XK_u}})
        probe.tap(key);
    EXPECT_TRUE(tapUntil(XK_Return, [&] { return probe.pixel(screenWidth / 8, screenHeight * 7 / 8).isNear(blue); }));
    for (int i = 0; i < 3; ++i)
        probe.tap(XK_BackSpace);
    probe.tap(XK_Up, {XK_Alt_L});
    probe.tap(XK_Up, {XK_Alt_L});
    probe.tap(XK_Escape);
    const std::size_t moved = player->errorOutput().size();
    EXPECT_TRUE(tapUntil(XK_Page_Down, [&] {
        return player->errorOutput().find("red.mp4", moved) != std::string::npos;
    })) << "it follows the blue one now";
    ASSERT_TRUE(quitsCleanly());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <X11/XF86keysym.h>

#include <algorithm>
#include <string>
#include <thread>

using namespace harness;

namespace {

class Input : public PlayerFixture {
protected:
    /// Holds a key until it has repeated some twenty times by the X server's clock.
    void hold(KeySym key) {
        probe.press(key);
        std::this_thread::sleep_for(Seconds(1.5));
        probe.release(key);
    }
    std::ptrdiff_t count(const std::string& text) {
        const std::vector<std::string> lines = player->errorLines();
        return std::ranges::count_if(lines,
                                     [&](const std::string& line) { return line.find(text) != std::string::npos; });
    }
};

} // namespace

TEST_F(Input, a_held_key_is_one_press) {
    start({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90),
           numbered("short1.mp4", red, 60)});
    ASSERT_TRUE(frameBecomes(0));
    hold(XK_c);
    EXPECT_TRUE(logs("movie contoller."));
    EXPECT_TRUE(logs("Repeat: 1")) << "it is held long enough";
    EXPECT_EQ(count("Hiding movie contoller.") + count("Showing movie contoller."), 1);
    // The next movie once, and not the one after it.
    probe.press(XK_Super_L);
    hold(XK_Right);
    probe.release(XK_Super_L);
    EXPECT_TRUE(colorBecomes(green));
    EXPECT_TRUE(staysTrue([&] { return colorBecomes(green, Seconds(0)); }, Seconds(0.3)));
    // A modifier that comes and goes is no release of what is held.
    const std::ptrdiff_t before = count("Char:");
    probe.tap(XK_Shift_L);
    probe.tap(XK_m);
    EXPECT_TRUE(logs("Char: \"m\""));
    EXPECT_EQ(count("Char:"), before + 1);
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Input, the_mouse_and_the_keyboards_media_keys_act) {
    start({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90)});
    ASSERT_TRUE(frameBecomes(0));
    const int x = screenWidth / 2, y = screenHeight / 6;
    probe.click(x, y);
    probe.click(x, y);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 10; }, "playing after a double click"));
    probe.tap(XF86XK_AudioPlay);
    ASSERT_TRUE(settledFrame()) << "the media key pauses";
    probe.click(x, y, 9);
    EXPECT_TRUE(colorBecomes(green)) << "the forward button";
    probe.click(x, y, 8);
    EXPECT_TRUE(colorBecomes(red)) << "the back button";
    probe.tap(XF86XK_AudioNext);
    EXPECT_TRUE(colorBecomes(green));
    ASSERT_TRUE(quitsCleanly());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using namespace harness;

namespace {

class MovieChange : public PlayerFixture {
protected:
    /// Looks at the picture until it has the colour; fails when it was black meanwhile.
    testing::AssertionResult changesTo(const Color& color) {
        const int x = screenWidth / 4, y = screenHeight * 5 / 6;
        int looks = 0, black = 0;
        const bool changed = waitUntil(
            [&] {
                const Color seen = probe.pixel(x, y);
                ++looks;
                black += seen.isNear({0, 0, 0}, 20) ? 1 : 0;
                return seen.isNear(color);
            },
            defaultTimeout, Seconds(0.0005));
        if (!changed)
            return testing::AssertionFailure() << "it never became " << color;
        if (black > 0)
            return testing::AssertionFailure() << black << " of " << looks << " looks met black before " << color;
        return testing::AssertionSuccess();
    }
};

} // namespace

TEST_F(MovieChange, the_old_picture_stays_until_the_next_one_stands) {
    // One of them fills less of the screen: each keeps its place.
    const std::string narrow = media()
                                   .makeColored("narrow.mp4", {blue}, 20, 600, 450, 25,
                                                {"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"})
                                   .string();
    start({numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90), narrow});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
    probe.tap(XK_Right, {XK_Super_L});
    EXPECT_TRUE(changesTo(green));
    EXPECT_TRUE(changesTo(blue)) << "when the movie has come to its end";
    probe.tap(XK_Left, {XK_Super_L});
    EXPECT_TRUE(changesTo(green));
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 30; }, "playing"));
    probe.tap(XK_Left, {XK_Super_L});
    EXPECT_TRUE(changesTo(red));
    const std::optional<int> first = frame();
    EXPECT_LT(first.value_or(1000), 30) << "it shows the place where it was left";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(MovieChange, a_recording_is_followed_as_it_grows) {
    std::ifstream whole(numbered("recording.ts", red, 240), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(whole)), std::istreambuf_iterator<char>());
    const std::filesystem::path file = user.folder() / "recording.ts";
    const std::size_t half = bytes.size() / 2;
    std::ofstream recording(file, std::ios::binary);
    recording << bytes.substr(0, half) << std::flush;
    start({"--set", "QVPlaylistAutoQuit=1", file.string()});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 10; }, "playing"));
    // More comes before the end of the first half is reached, and the rest after that.
    recording << bytes.substr(half, bytes.size() / 4) << std::flush;
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 160; }, "beyond what was there at first"));
    recording << bytes.substr(half + bytes.size() / 4) << std::flush;
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 220; }, "at its end"));
    EXPECT_EQ(player->waitForExit(), 0) << "nothing more arrives: the movie is over";
}

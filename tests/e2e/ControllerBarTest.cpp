// SPDX-License-Identifier: GPL-3.0-or-later
// What the controller bars show of the movie, as it is seen on the screen.
#include "tests/e2e/PlayerFixture.h"

#include <cstdlib>
#include <string>
#include <vector>

using namespace harness;

namespace {

class Bars : public PlayerFixture {
protected:
    // Red for half a minute, then green.
    static std::string twoScenes() {
        return media()
            .make("two scenes.mp4", {"-f", "lavfi", "-i", "color=c=0xC80000:s=640x360:r=10:d=60", "-vf",
                                     "drawbox=color=0x009600:t=fill:enable='gte(t,30)'", "-c:v", "libx264", "-preset",
                                     "ultrafast", "-pix_fmt", "yuv420p", "-g", "10"})
            .string();
    }
    // The small picture of the second scene, while the first one plays: a part of the screen above the pointer.
    testing::AssertionResult picturesScene(const Color& color, int pointerX, int barTop) {
        Region seen;
        const bool does = waitUntil([&] {
            seen = probe.extentOf(color);
            return seen.width > 200 && seen.width < 240 && seen.height > 110 && seen.height < 140 &&
                   std::abs(seen.x + seen.width / 2 - pointerX) < 8 && seen.y + seen.height < barTop;
        });
        return does ? testing::AssertionSuccess() : testing::AssertionFailure() << color << " stands at " << seen;
    }
    bool showsNo(const Color& color) {
        return waitUntil([&] { return probe.extentOf(color).width == 0; });
    }
};

} // namespace

TEST_F(Bars, the_place_under_the_pointer_is_pictured_and_a_press_goes_there) {
    struct Case {
        const char* what;
        std::vector<std::string> options;
        int barTop, y; // of the bar, and of its time slider
    };
    for (const Case& c : {Case{"below the picture", {"--set", "QVControllerVisible=1"}, 704, 712},
                          Case{"over the picture", {"--set", "QVControllerOverPicture=2"}, 640, 672}}) {
        SCOPED_TRACE(c.what);
        std::vector<std::string> arguments{"--set", "QVPlaylistAutoPlay=0", "--set", "QVDefaultMovieSize=3"};
        arguments.insert(arguments.end(), c.options.begin(), c.options.end());
        arguments.push_back(twoScenes());
        probe.movePointer(600, 300);
        start(arguments);
        ASSERT_TRUE(probe.waitForColor(640, 200, red));
        probe.movePointer(601, 300);
        probe.movePointer(950, c.y);
        probe.movePointer(951, c.y); // the bar comes with the first move
        EXPECT_TRUE(picturesScene(green, 951, c.barTop));
        EXPECT_TRUE(probe.pixel(640, 200).isNear(red)) << "the movie stands where it was";
        probe.movePointer(640, 300);
        EXPECT_TRUE(showsNo(green));
        probe.click(951, c.y);
        EXPECT_TRUE(probe.waitForColor(640, 200, green));
        ASSERT_TRUE(quitsCleanly());
    }
}

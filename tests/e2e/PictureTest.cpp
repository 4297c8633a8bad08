// SPDX-License-Identifier: GPL-3.0-or-later
// The picture shown otherwise than its file says, as it is seen on the screen.
#include "tests/e2e/PlayerFixture.h"

#include <cstdlib>
#include <string>
#include <vector>

using namespace harness;

namespace {

const std::vector<std::string> encoder{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};

class ShownPicture : public PlayerFixture {
protected:
    // Of the lavfi source and filters.
    static std::string made(const std::string& name, const std::string& source, const std::string& filters,
                            const std::vector<std::string>& more = {}) {
        std::vector<std::string> arguments{"-f", "lavfi", "-i", source, "-vf", filters};
        arguments.insert(arguments.end(), encoder.begin(), encoder.end());
        arguments.insert(arguments.end(), more.begin(), more.end());
        return media().make(name, arguments).string();
    }
    void show(const std::string& movie) {
        start({"--set", "QVPlaylistAutoPlay=0", "--set", "QVControllerVisible=0", "--set", "QVDefaultMovieSize=3",
               "--set", "QVDisplayFeedback=0", movie});
    }
    testing::AssertionResult stands(const Color& color, const Region& wanted) {
        Region seen;
        const bool does = waitUntil([&] {
            seen = probe.extentOf(color);
            return std::abs(seen.x - wanted.x) <= 3 && std::abs(seen.y - wanted.y) <= 3 &&
                   std::abs(seen.width - wanted.width) <= 6 && std::abs(seen.height - wanted.height) <= 6;
        });
        return does ? testing::AssertionSuccess()
                    : testing::AssertionFailure() << color << " stands at " << seen << ", not at " << wanted;
    }
};

} // namespace

TEST_F(ShownPicture, its_shape_follows_the_keys) {
    // 16:9 with bars that leave 640 by 270; red on the left, green on the right.
    show(made("bars.mp4", "color=c=black:s=640x360:r=5:d=20",
              "drawbox=y=45:w=320:h=270:color=0xC80000:t=fill,drawbox=x=320:y=45:w=320:h=270:color=0x009600:t=fill"));
    ASSERT_TRUE(stands(red, {0, 90, 640, 540}));
    probe.tap(XK_t, {XK_Shift_L});
    EXPECT_TRUE(stands(red, {640, 90, 640, 540})) << "mirrored";
    probe.tap(XK_t, {XK_Shift_L});
    probe.tap(XK_a, {XK_Control_L});
    EXPECT_TRUE(stands(red, {160, 90, 480, 540})) << "4:3";
    for (int i = 0; i < 3; ++i)
        probe.tap(XK_a, {XK_Control_L});
    probe.tap(XK_t);
    EXPECT_TRUE(stands(red, {640 - 202 + 51, 0, 304, 360})) << "a quarter turn clockwise puts the left on top";
    probe.tap(XK_b, {XK_Control_L});
    EXPECT_TRUE(stands(red, {640 - 152, 0, 304, 360})) << "without its bars";
    for (int i = 0; i < 3; ++i)
        probe.tap(XK_t);
    EXPECT_TRUE(stands(red, {0, 90, 640, 540}));
    // Larger than the screen: the crop stays right where only a part is seen.
    probe.tap(XK_5);
    EXPECT_TRUE(stands(red, {0, 0, 640, 720})) << "as high as the screen";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(ShownPicture, its_colors_follow_the_keys_in_software) {
    show(made("grey.mp4", "color=c=0x808080:s=640x360:r=5:d=20", "null"));
    const auto grey = [&](int from, int to) {
        return probe.waitForPixel(200, 200, [=](const Color& seen) {
            return seen.red >= from && seen.red <= to && std::abs(seen.red - seen.blue) < 8;
        });
    };
    ASSERT_TRUE(grey(120, 136));
    for (int i = 0; i < 10; ++i)
        probe.tap(XK_F5);
    EXPECT_TRUE(grey(165, 200)) << "brighter";
    for (int i = 0; i < 20; ++i)
        probe.tap(XK_F4);
    EXPECT_TRUE(grey(55, 92)) << "darker";
    probe.tap(XK_BackSpace, {XK_Control_L});
    EXPECT_TRUE(grey(120, 136));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(ShownPicture, an_interlaced_film_is_shown_without_its_comb) {
    // A white bar that moves half a screen a second: its edges are a comb of two fields.
    show(made("fields.mp4", "color=c=black:s=640x360:r=50:d=3",
              "geq=lum='if(between(X,mod(N*13,560),mod(N*13,560)+120),220,16)':cb=128:cr=128,tinterlace=interleave_top",
              {"-flags", "+ilme+ildct"}));
    // Lines whose neighbours above and below are alike and differ from them.
    const auto comb = [&] {
        const Picture picture = probe.picture({0, 200, screenWidth, 120});
        int count = 0;
        for (int y = 202; y < 316; y += 2)
            for (int x = 0; x < screenWidth; x += 2) {
                const int above = picture.at(x, y - 2).green, here = picture.at(x, y).green,
                          below = picture.at(x, y + 2).green;
                count += std::abs(above - below) < 40 && std::abs(here - above) > 60 ? 1 : 0;
            }
        return count;
    };
    probe.tap(XK_Right);
    probe.tap(XK_Right);
    EXPECT_TRUE(waitUntil([&] { return comb() < 20; })) << comb();
    for (int i = 0; i < 2; ++i)
        probe.tap(XK_i, {XK_Control_L});
    EXPECT_TRUE(waitUntil([&] { return comb() > 200; })) << "off: " << comb();
    probe.tap(XK_i, {XK_Control_L});
    EXPECT_TRUE(waitUntil([&] { return comb() < 20; })) << "automatic: " << comb();
    ASSERT_TRUE(quitsCleanly());
}

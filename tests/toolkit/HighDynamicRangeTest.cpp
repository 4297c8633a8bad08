// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrame.h"

#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

namespace {

/// A grey of ten bits, as the file says how it is meant.
std::filesystem::path grey(const std::string& name, int luma, const std::vector<std::string>& encoder) {
    std::vector<std::string> arguments{
        "-f", "lavfi", "-i",
        "color=black:s=64x36:r=25:d=1,format=yuv420p10le,geq=lum=" + std::to_string(luma) + ":cb=512:cr=512"};
    arguments.insert(arguments.end(), encoder.begin(), encoder.end());
    return media().make(name, arguments);
}

} // namespace

TEST(HighDynamicRange, is_mapped_to_the_screen_in_the_first_picture_and_in_those_that_follow) {
    const auto lossless = [](const char* transfer) {
        return std::vector<std::string>{"-c:v",   "ffv1",        "-color_trc", transfer, "-color_primaries",
                                        "bt2020", "-colorspace", "bt2020nc"};
    };
    struct Case {
        std::filesystem::path path;
        int shown;
    };
    // 64 to 940 are black to white: 590 has the code 0.6, 721 the code 0.75.
    const Case cases[] = {
        {grey("pq.mkv", 590, lossless("smpte2084")), 235},
        {grey("hlg.mkv", 721, lossless("arib-std-b67")), 227},
        {grey("standard.mkv", 590, lossless("bt2020-10")), 153},
        // Its pictures say it, and the container does not.
        {grey("untold.mp4", 590,
              {"-c:v", "libx265", "-x265-params",
               "log-level=error:lossless=1:colorprim=bt2020:transfer=smpte2084:colormatrix=bt2020nc", "-movflags",
               "-write_colr"}),
         235},
    };
    for (const auto& [path, shown] : cases) {
        ToolkitRig rig;
        const harness::Color expected{shown, shown, shown};
        const std::atomic<bool> cancelled{false};
        if (const auto first = platform::FirstFrame::decode(urlOf(path), cancelled)) {
            RenderedPicture picture(rig.screen.size());
            ASSERT_TRUE(first->render(picture.size(), picture.pixels(), picture.stride()));
            EXPECT_TRUE(picture.at(100, 100).isNear(expected, 3)) << path << ' ' << picture.at(100, 100);
        } else {
            EXPECT_EQ(path.filename(), "untold.mp4");
        }
        const auto movie = rig.open(urlOf(path));
        ASSERT_TRUE(movie) << path;
        rig.player().load(movie.get());
        EXPECT_TRUE(rig.waitFor([&] { return rig.screen.at(100, 100).isNear(expected, 3); }))
            << path << ' ' << rig.screen.at(100, 100);
    }
}

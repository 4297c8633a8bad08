// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrame.h"

#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

namespace {

/// A grey of ten bits; `marks` say how the file says it is meant: filters behind a comma, or nothing.
std::filesystem::path grey(const std::string& name, int luma, const std::string& marks,
                           const std::vector<std::string>& encoder) {
    std::vector<std::string> arguments{
        "-f", "lavfi", "-i",
        "color=black:s=64x36:r=25:d=1,format=yuv420p10le,geq=lum=" + std::to_string(luma) + ":cb=512:cr=512" + marks};
    arguments.insert(arguments.end(), encoder.begin(), encoder.end());
    return media().make(name, arguments);
}

} // namespace

TEST(HighDynamicRange, is_mapped_to_the_screen_in_the_first_picture_and_in_those_that_follow) {
    // FFmpeg 5 takes the encoder's word for it, FFmpeg 7 the pictures'.
    const auto lossless = [](const char* transfer) {
        return std::vector<std::string>{"-c:v",   "ffv1",        "-color_trc", transfer, "-color_primaries",
                                        "bt2020", "-colorspace", "bt2020nc"};
    };
    const auto marks = [](const std::string& transfer) {
        return ",setparams=color_primaries=bt2020:colorspace=bt2020nc:color_trc=" + transfer;
    };
    struct Case {
        std::filesystem::path path;
        int shown;
    };
    // 64 to 940 are black to white: 590 has the code 0.6, 721 the code 0.75.
    const Case cases[] = {
        {grey("pq.mkv", 590, marks("smpte2084"), lossless("smpte2084")), 235},
        {grey("hlg.mkv", 721, marks("arib-std-b67"), lossless("arib-std-b67")), 227},
        {grey("standard.mkv", 590, marks("bt2020-10"), lossless("bt2020-10")), 153},
        // Its pictures say it, and the container does not.
        {grey("untold.mp4", 590, "",
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

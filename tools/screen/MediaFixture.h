// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/XProbe.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace harness {

// Movies for tests, made by ffmpeg when they are first asked for and kept in a folder of the build. Several processes
// may ask for the same movie at once: one makes it, the others wait.
class MediaFixture {
public:
    explicit MediaFixture(std::filesystem::path folder);

    // The file of this name (in a folder of its own, named after what it is made of) as ffmpeg with these arguments
    // makes it. The arguments end before the output file. Throws std::runtime_error with ffmpeg's words when it fails.
    // It may take so long, on a machine that has other work; big movies take more. What was made is kept.
    std::filesystem::path make(const std::string& fileName, const std::vector<std::string>& arguments,
                               Seconds timeout = Seconds(120)) const;

    // A movie that tells its place: each frame carries its number as a row of black and white blocks across the middle
    // third of the picture; above and below is one colour.
    struct Numbered {
        int frames = 300;
        int framesPerSecond = 30;
        int width = 384, height = 216; // the width a multiple of 12
        Color color{200, 0, 0};
        int keyframeInterval = 30;
        bool sound = true;
        std::vector<std::string> encoder = {"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};
    };
    std::filesystem::path makeNumbered(const std::string& fileName, const Numbered& movie) const;

    // The same movie, whose pictures are in its first track, to be turned anticlockwise that often. Written into the
    // copy: what ffmpeg's programs take for it differs between their versions.
    std::filesystem::path makeTurned(const std::string& fileName, const std::filesystem::path& upright,
                                     int quarterTurns) const;

    // A movie of one colour after another, each for so many seconds.
    std::filesystem::path makeColored(const std::string& fileName, const std::vector<Color>& colors, double secondsEach,
                                      int width, int height, int framesPerSecond,
                                      const std::vector<std::string>& encoder) const;

    // What a numbered movie shows within the region of the screen that its picture fills: the number of the frame; none
    // when it is not there (whole).
    static std::optional<int> frameNumber(XProbe& probe, const Region& picture);

private:
    std::filesystem::path _folder;
};

// "0xRRGGBB", as ffmpeg takes a colour.
std::string ffmpegColor(const Color& color);

} // namespace harness

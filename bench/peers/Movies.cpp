// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/peers/Movies.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

using harness::Color;

namespace bench {

namespace {

/// For ffmpeg to make the big ones, on a machine that has other work.
constexpr harness::Seconds bigMovieTimeout{1800};

constexpr int bitCount = 12; // as harness::MediaFixture::frameNumber reads them
constexpr Color stripe{220, 0, 0};
// The lines along the top of the fast movie: the number, and the stripe below it.
constexpr harness::Region head{0, 0, screenWidth, 90};
constexpr int numberHeight = 60;

// The number of each frame as blocks of black and white, in these lines of a picture of that width.
std::string numberFilter(const std::string& lines, int width = screenWidth) {
    std::string filter = "drawbox=x=0:" + lines + ":w=iw:color=black:t=fill";
    const int block = width / bitCount;
    for (int bit = 0; bit < bitCount; ++bit)
        filter += ",drawbox=x=" + std::to_string(block * (bitCount - 1 - bit)) + ':' + lines +
                  ":w=" + std::to_string(block) + ":color=white:t=fill:enable='gte(mod(n," + std::to_string(2 << bit) +
                  ")," + std::to_string(1 << bit) + ")'";
    return filter;
}

// An mp4 box that readers skip, with the number in it.
std::string unlikeAnyOther(int number) {
    std::string text = std::to_string(number);
    text.insert(0, 16 - text.size(), '0');
    return std::string("\0\0\0\x18"
                       "free",
                       8) +
           text;
}

// The frame's number across the middle, the stripe at the bottom, of a picture of that width.
std::string marks(int width) {
    return numberFilter("y=ih*7/16:h=ih/8", width) +
           ",drawbox=x=0:y=ih*15/16:w=iw:h=ih/16:color=" + harness::ffmpegColor(stripe) + ":t=fill";
}

std::string subRipTime(int milliseconds) {
    char text[64];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d,%03d", milliseconds / 3'600'000, milliseconds / 60'000 % 60,
                  milliseconds / 1000 % 60, milliseconds % 1000);
    return text;
}

} // namespace

std::filesystem::path makeMovie(const harness::MediaFixture& media) {
    const std::string filter = marks(screenWidth);
    const std::string keyframes = "250";
    return media.make("side by side.mp4", {"-f",
                                           "lavfi",
                                           "-i",
                                           "testsrc2=s=1920x1080:r=30:d=60",
                                           "-vf",
                                           filter,
                                           "-c:v",
                                           "libx264",
                                           "-preset",
                                           "veryfast",
                                           "-crf",
                                           "23",
                                           "-pix_fmt",
                                           "yuv420p",
                                           "-g",
                                           keyframes,
                                           "-keyint_min",
                                           keyframes,
                                           "-sc_threshold",
                                           "0"});
}

std::filesystem::path makeFastMovie(const harness::MediaFixture& media) {
    const std::string filter =
        numberFilter("y=0:h=" + std::to_string(numberHeight)) + ",drawbox=x=0:y=" + std::to_string(numberHeight) +
        ":w=iw:h=" + std::to_string(head.height - numberHeight) + ":color=" + harness::ffmpegColor(stripe) +
        ":t=fill,drawbox=x=0:y=ih*15/16:w=iw:h=ih/16" + ":color=" + harness::ffmpegColor(stripe) + ":t=fill";
    return media.make("fast.mp4", {"-f", "lavfi", "-i", "testsrc2=s=1920x1080:r=60:d=30", "-vf", filter, "-c:v",
                                   "libx264", "-preset", "ultrafast", "-crf", "26", "-pix_fmt", "yuv420p"});
}

std::filesystem::path makePlainMovie(const harness::MediaFixture& media) {
    return media.make("plain.mp4",
                      {"-f", "lavfi", "-i", "color=c=" + harness::ffmpegColor(stripe) + ":s=1920x1080:r=30:d=60",
                       "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"});
}

std::filesystem::path makeLongMovie(const harness::MediaFixture& media, const std::filesystem::path& plainMovie,
                                    const std::filesystem::path& folder) {
    constexpr int minutes = 240, tracks = 30, every = 4000;
    std::filesystem::create_directories(folder);
    const std::filesystem::path cues = folder / "four hours.srt";
    std::ofstream file(cues);
    for (int start = 0; start < minutes * 60'000; start += every)
        file << start / every + 1 << '\n'
             << subRipTime(start) << " --> " << subRipTime(start + every / 2) << "\nThe ship went by.\n\n";
    file.close();
    std::vector<std::string> arguments{
        "-stream_loop", std::to_string(minutes - 1), "-i", plainMovie.string(), "-i", cues.string(), "-map", "0:v"};
    for (int track = 0; track < tracks; ++track)
        arguments.insert(arguments.end(), {"-map", "1:s"});
    arguments.insert(arguments.end(), {"-c:v", "copy", "-c:s", "srt"});
    return media.make("four hours.mkv", arguments, bigMovieTimeout);
}

std::filesystem::path makeLargeMovie(const harness::MediaFixture& media) {
    constexpr int width = 3840;
    return media.make("large.mkv",
                      {"-f", "lavfi", "-i", "testsrc2=s=3840x2160:r=24:d=10", "-vf", marks(width), "-c:v", "libx265",
                       "-preset", "ultrafast", "-x265-params", "log-level=error", "-pix_fmt", "yuv420p10le"},
                      bigMovieTimeout);
}

std::filesystem::path makeTwoTracks(const harness::MediaFixture& media, const std::filesystem::path& plainMovie,
                                    const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    std::vector<std::string> arguments{"-i", plainMovie.string()};
    for (const char* text :
         {"Ah.", "The keeper saw the ships go by,\nand waved his hat\nto every single one of them."}) {
        const std::filesystem::path file = folder / (std::to_string(arguments.size()) + ".srt");
        std::ofstream(file) << "1\n" << subRipTime(0) << " --> " << subRipTime(59'000) << '\n' << text << "\n\n";
        arguments.insert(arguments.end(), {"-i", file.string()});
    }
    arguments.insert(arguments.end(), {"-map", "0:v", "-map", "1:s", "-map", "2:s", "-c:v", "copy", "-c:s", "srt",
                                       "-disposition:s:0", "default"});
    return media.make("two tracks.mkv", arguments, bigMovieTimeout);
}

std::filesystem::path makeTwoSounds(const harness::MediaFixture& media, const std::filesystem::path& plainMovie) {
    return media.make("two sounds.mkv", {"-i",   plainMovie.string(),
                                         "-f",   "lavfi",
                                         "-i",   "anullsrc=r=48000:d=60",
                                         "-f",   "lavfi",
                                         "-i",   "sine=f=1000:r=48000:d=60",
                                         "-map", "0:v",
                                         "-map", "1:a",
                                         "-map", "2:a",
                                         "-c:v", "copy",
                                         "-c:a", "ac3"},
                      bigMovieTimeout);
}

std::filesystem::path makeInterlacedMovie(const harness::MediaFixture& media) {
    return media.make("interlaced.mp4",
                      {"-f", "lavfi", "-i", "testsrc2=s=1920x1080:r=50:d=60", "-vf",
                       "drawbox=x=0:y=ih*15/16:w=iw:h=ih/16:color=" + harness::ffmpegColor(stripe) +
                           ":t=fill,interlace=scan=tff:lowpass=linear",
                       "-c:v", "libx264", "-preset", "veryfast", "-flags", "+ildct+ilme", "-x264-params", "tff=1",
                       "-pix_fmt", "yuv420p"},
                      bigMovieTimeout);
}

std::filesystem::path withSubtitles(const std::filesystem::path& movie, const std::filesystem::path& folder,
                                    const Cues& cues) {
    std::filesystem::create_directories(folder);
    const std::filesystem::path copy = folder / movie.filename();
    std::filesystem::copy_file(movie, copy, std::filesystem::copy_options::overwrite_existing);
    std::ofstream file(std::filesystem::path(copy).replace_extension(".srt"));
    for (int cue = 0; cue < cues.count; ++cue) {
        const int start = cues.first + cue * cues.every, end = start + cues.shown;
        file << cue + 1 << '\n'
             << subRipTime(start) << " --> " << subRipTime(end) << "\nThe keeper saw " << cue
             << " ships go by,\nand waved his hat to every one.\n\n";
    }
    return copy;
}

bool showsMovie(harness::XProbe& probe) {
    return probe.pixel(screenWidth - 100, screenHeight - 20).isNear(stripe, 60);
}

std::optional<int> frameOnScreen(harness::XProbe& probe) {
    return harness::MediaFixture::frameNumber(probe, {0, 0, screenWidth, screenHeight});
}

std::optional<int> fastFrameOnScreen(harness::XProbe& probe) {
    return harness::MediaFixture::frameNumber(probe, head);
}

std::vector<std::string> makeManyMovies(const harness::MediaFixture& media, const std::filesystem::path& folder,
                                        int count) {
    const std::filesystem::path first =
        media.make("short.mp4", {"-f", "lavfi", "-i", "testsrc2=s=320x180:r=25:d=1", "-f", "lavfi", "-i",
                                 "sine=frequency=440:duration=1", "-c:v", "libx264", "-preset", "veryfast", "-pix_fmt",
                                 "yuv420p", "-c:a", "aac"});
    if (!std::filesystem::create_directories(folder))
        throw std::runtime_error(folder.string() + " is there already");
    std::vector<std::string> files;
    for (int i = 0; i < count; ++i) {
        const std::filesystem::path file = folder / ("movie " + std::to_string(i) + ".mp4");
        std::filesystem::copy_file(first, file);
        std::ofstream(file, std::ios::binary | std::ios::app) << unlikeAnyOther(i);
        files.push_back(file.string());
    }
    return files;
}

} // namespace bench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieProbe.h"

#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

namespace fs = std::filesystem;
using platform::ProbeResult;
namespace movieError = platform::movieError;

namespace {

using Arguments = std::vector<std::string>;

ProbeResult probe(const fs::path& path) {
    const std::atomic<bool> cancelled{false};
    return platform::probeMovie(urlOf(path), 10, cancelled);
}

fs::path numbered(const std::string& name, int frames, const Arguments& encoder, bool sound = true) {
    harness::MediaFixture::Numbered movie;
    movie.frames = frames;
    movie.encoder = encoder;
    movie.sound = sound;
    return media().makeNumbered(name, movie);
}

/// The movie again, otherwise packed.
fs::path repacked(const std::string& name, const fs::path& from, const Arguments& how) {
    Arguments arguments{"-i", from.string()};
    arguments.insert(arguments.end(), how.begin(), how.end());
    return media().make(name, arguments);
}

const Arguments h264{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};

fs::path scratch(const std::string& name, const std::string& content) {
    const fs::path folder = fs::path(LUMARO_BINARY_DIR) / "tests" / "media" / "scratch";
    fs::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary | std::ios::trunc) << content;
    return folder / name;
}

std::string bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(MovieProbe, finds_the_facts_of_each_container) {
    const fs::path mp4 = numbered("facts.mp4", 300, h264);
    struct Case {
        const char* what;
        fs::path path;
        std::int32_t timeScale;
        double seconds;
        bool video, audio;
        QSizeF size;
        unsigned frames;
    };
    const QSizeF plain(384, 216);
    const Case cases[] = {
        {"mp4", mp4, 15360, 10, true, true, plain, 300},
        {"mkv", repacked("facts.mkv", mp4, {"-c", "copy"}), 1000, 10, true, true, plain, 300},
        {"ts", repacked("facts.ts", mp4, {"-c", "copy"}), 90000, 10, true, true, plain, 300},
        {"avi", numbered("facts.avi", 300, {"-c:v", "mpeg4", "-c:a", "libmp3lame"}), 30, 10, true, true, plain, 300},
        {"silent", numbered("silent.mp4", 60, h264, false), 15360, 2, true, false, plain, 60},
        {"mp3", repacked("facts.mp3", mp4, {"-vn"}), 600, 10, false, true, QSizeF(), 0},
        {"cover",
         media().make("cover.mp3", {"-i", mp4.string(), "-f", "lavfi", "-i", "color=s=64x64:d=0.04", "-map", "0:a",
                                    "-map", "1:v", "-c:v", "mjpeg", "-disposition:v", "attached_pic"}),
         600, 10, false, true, QSizeF(), 0},
        {"rotated", repacked("rotated.mp4", mp4, {"-c", "copy", "-metadata:s:v:0", "rotate=90"}), 15360, 10, true, true,
         QSizeF(216, 384), 300},
        {"wide pixels", repacked("wide.mp4", mp4, {"-t", "1", "-vf", "setsar=4/3"}), 15360, 1, true, true,
         QSizeF(512, 216), 30},
        {"tall pixels", repacked("tall.mkv", mp4, {"-t", "1", "-vf", "setsar=3/4"}), 1000, 1, true, true,
         QSizeF(384, 288), 30},
        {"short", numbered("short.mp4", 5, h264, false), 15360, 5 / 30.0, true, false, plain, 5},
        {"four hours in small units",
         media().make("long.mp4", {"-f", "lavfi", "-i", "color=s=32x32:r=1/10:d=14400", "-c:v", "mpeg4",
                                   "-video_track_timescale", "1000000"}),
         125000, 14400, true, false, QSizeF(32, 32), 1440},
    };
    for (const Case& c : cases) {
        const ProbeResult result = probe(c.path);
        ASSERT_TRUE(result.info) << c.what << ' ' << result.error;
        const platform::MovieInfo& info = *result.info;
        EXPECT_EQ(result.error, movieError::none) << c.what;
        EXPECT_EQ(info.timeScale, c.timeScale) << c.what;
        EXPECT_NEAR(double{1} * info.duration / info.timeScale, c.seconds, 0.1) << c.what;
        EXPECT_EQ(info.hasVideo, c.video) << c.what;
        EXPECT_EQ(info.hasAudio, c.audio) << c.what;
        EXPECT_EQ(info.naturalSize, c.size)
            << c.what << ' ' << info.naturalSize.width() << 'x' << info.naturalSize.height();
        EXPECT_NEAR(info.videoSampleCount, c.frames, 2) << c.what;
        if (c.video) {
            EXPECT_NEAR(info.frameDuration * c.frames, info.duration, info.timeScale * 0.1) << c.what;
        }
    }
}

TEST(MovieProbe, refuses_what_is_no_movie_without_waiting) {
    const std::string whole = bytesOf(numbered("facts.mp4", 300, h264));
    const fs::path folder = scratch("empty.mp4", "").parent_path();
    const fs::path fifo = folder / "pipe.mp4";
    ::unlink(fifo.c_str());
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const fs::path unreadable = scratch("unreadable.mp4", whole);
    ::chmod(unreadable.c_str(), 0);
    struct Case {
        fs::path path;
        std::int16_t error;
    };
    std::vector<Case> cases = {
        {folder / "missing.mp4", movieError::fileNotFound},
        {folder, movieError::couldNotOpen},
        {fifo, movieError::couldNotOpen},
        {folder / "empty.mp4", movieError::couldNotOpen},
        {scratch("text.mp4", "This is no movie at all.\nIt is a text.\n"), movieError::couldNotOpen},
        {scratch("half.mp4", whole.substr(0, whole.size() / 2)), movieError::couldNotOpen},
    };
    if (::geteuid() != 0)
        cases.push_back({unreadable, movieError::permissionDenied});
    for (const Case& c : cases) {
        const ProbeResult result = probe(c.path);
        EXPECT_FALSE(result.info) << c.path;
        EXPECT_EQ(result.error, c.error) << c.path;
    }
    ::unlink(unreadable.c_str());
}

TEST(MovieProbe, an_address_is_never_taken_for_anything_else) {
    const std::string whole = bytesOf(numbered("short.mp4", 5, h264, false));
    for (const char* name : {"-y.mp4", "http: x.mp4", "100% #1 ?a.mp4", "pic%03d.mp4", "ü 🎬.mp4", "a|b.mp4"}) {
        const ProbeResult result = probe(scratch(name, whole));
        EXPECT_TRUE(result.info) << name;
        ASSERT_FALSE(::testing::Test::HasFatalFailure());
    }
    const std::atomic<bool> cancelled{false};
    EXPECT_EQ(platform::probeMovie(QUrl(QStringLiteral("nothing://x/y.mp4")), 1, cancelled).error,
              movieError::noMediaHandler);
}

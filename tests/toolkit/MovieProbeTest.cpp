// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieProbe.h"

#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using platform::ProbeResult;
namespace movieError = platform::movieError;

namespace {

using Arguments = std::vector<std::string>;

ProbeResult probe(const fs::path& path) {
    const std::atomic<bool> cancelled{false};
    return platform::probeMovie(urlOf(path), 10, cancelled);
}

fs::path numbered(const std::string& name, int frames, const Arguments& encoder) {
    harness::MediaFixture::Numbered movie;
    movie.frames = frames;
    movie.encoder = encoder;
    return media().makeNumbered(name, movie);
}

/// The movie again, otherwise packed.
fs::path repacked(const std::string& name, const fs::path& from, const Arguments& how) {
    Arguments arguments{"-i", from.string()};
    arguments.insert(arguments.end(), how.begin(), how.end());
    return media().make(name, arguments);
}

const Arguments h264{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};

} // namespace

TEST(MovieProbe, finds_the_facts_of_a_movie) {
    const fs::path mp4 = numbered("facts.mp4", 300, h264);
    const struct {
        const char* what;
        fs::path path;
        std::int32_t timeScale;
        double seconds;
        bool video, audio;
        QSizeF size;
        unsigned frames;
    } cases[] = {
        {"mp4", mp4, 15360, 10, true, true, QSizeF(384, 216), 300},
        {"ts", repacked("facts.ts", mp4, {"-c", "copy"}), 90000, 10, true, true, QSizeF(384, 216), 300},
        {"mp3", repacked("facts.mp3", mp4, {"-vn"}), 600, 10, false, true, QSizeF(), 0},
        {"cover",
         media().make("cover.mp3", {"-i", mp4.string(), "-f", "lavfi", "-i", "color=s=64x64:d=0.04", "-map", "0:a",
                                    "-map", "1:v", "-c:v", "mjpeg", "-disposition:v", "attached_pic"}),
         600, 10, false, true, QSizeF(), 0},
        {"tall pixels", repacked("tall.mkv", mp4, {"-t", "1", "-vf", "setsar=3/4"}), 1000, 1, true, true,
         QSizeF(384, 288), 30},
        {"four hours in small units",
         media().make("long.mp4", {"-f", "lavfi", "-i", "color=s=32x32:r=1/10:d=14400", "-c:v", "mpeg4",
                                   "-video_track_timescale", "1000000"}),
         125000, 14400, true, false, QSizeF(32, 32), 1440},
    };
    for (const auto& c : cases) {
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
    const std::atomic<bool> cancelled{false};
    EXPECT_EQ(platform::probeMovie(QUrl(QStringLiteral("nothing://x/y.mp4")), 1, cancelled).error,
              movieError::noMediaHandler);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrame.h"

#include "platform/movie/mpv/MpvVideoLayer.h"
#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>

namespace {

std::filesystem::path pattern(const std::string& name, const std::string& size,
                              const std::vector<std::string>& encoder) {
    std::vector<std::string> arguments{"-f", "lavfi", "-i", "testsrc2=s=" + size + ":r=25:d=1"};
    arguments.insert(arguments.end(), encoder.begin(), encoder.end());
    return media().make(name, arguments);
}

} // namespace

TEST(FirstFrame, is_the_one_that_the_player_shows_first) {
    const std::filesystem::path paths[] = {
        pattern("small.mp4", "640x360", {"-c:v", "libx264", "-pix_fmt", "yuv420p"}),
        pattern("full.mp4", "640x360", {"-c:v", "libx264", "-vf", "scale=out_range=full,format=yuvj420p"}),
        pattern(
            "told.mkv", "640x360",
            {"-vf", "scale=out_color_matrix=bt709", "-colorspace", "bt709", "-c:v", "libx264", "-pix_fmt", "yuv444p"}),
        pattern("old.avi", "640x360", {"-c:v", "mpeg4", "-q:v", "2"}),
        pattern("web.webm", "640x360", {"-c:v", "libvpx-vp9", "-deadline", "realtime", "-cpu-used", "8"}),
    };
    for (const std::filesystem::path& path : paths) {
        ToolkitRig rig;
        const std::atomic<bool> cancelled{false};
        const auto first = platform::FirstFrame::decode(urlOf(path), cancelled);
        ASSERT_TRUE(first) << path;
        RenderedPicture expected(rig.screen.size());
        ASSERT_TRUE(first->render(expected.size(), expected.pixels(), expected.stride()));
        const auto movie = rig.open(urlOf(path));
        ASSERT_TRUE(movie) << path;
        rig.player().load(movie.get());
        EXPECT_TRUE(rig.waitFor([&] { return rig.screen.differenceTo(expected) < 3; }))
            << path << ": " << rig.screen.differenceTo(expected);
    }
}

TEST(FirstFrame, of_a_time_is_the_one_that_the_player_shows_when_it_is_loaded_there) {
    // The last two begin at another time than 0.
    for (const std::string name : {"at.mp4", "at.mkv", "at.avi", "at.ts"}) {
        harness::MediaFixture::Numbered numbered;
        numbered.frames = 90;
        const QUrl url = urlOf(media().makeNumbered(name, numbered));
        for (const int number : {1, 29, 30, 50}) {
            ToolkitRig rig;
            const auto movie = rig.open(url);
            ASSERT_TRUE(movie);
            const auto time = static_cast<std::int32_t>(std::lround(number * movie->timeScale() / 30.0));
            const std::atomic<bool> cancelled{false};
            const auto first = platform::FirstFrame::decode(url, cancelled, platform::FirstFrame::PictureOf::movie,
                                                            static_cast<double>(time) / movie->timeScale());
            ASSERT_TRUE(first) << name << ' ' << number;
            RenderedPicture decoded(rig.screen.size());
            ASSERT_TRUE(first->render(decoded.size(), decoded.pixels(), decoded.stride()));
            movie->setTimeValue(time);
            rig.player().load(movie.get());
            EXPECT_TRUE(rig.waitFor([&] { return rig.screen.number() == decoded.number(); })) << name << ' ' << number;
            rig.settle();
            EXPECT_EQ(rig.screen.number(), decoded.number()) << name;
            if (name == "at.mp4" || name == "at.mkv") {
                EXPECT_EQ(rig.screen.number(), number) << name;
            }
        }
    }
}

TEST(FirstFrame, is_left_to_the_player_where_it_is_not_simple) {
    const std::atomic<bool> cancelled{false};
    const auto rotated = media().makeTurned(
        "turned.mp4", pattern("small.mp4", "640x360", {"-c:v", "libx264", "-pix_fmt", "yuv420p"}), 1);
    EXPECT_FALSE(platform::FirstFrame::decode(urlOf(rotated), cancelled));
    const auto sound = media().make("sound.mp3", {"-f", "lavfi", "-i", "sine=d=1"});
    EXPECT_FALSE(platform::FirstFrame::decode(urlOf(sound), cancelled));
    EXPECT_FALSE(platform::FirstFrame::decode(urlOf("/nowhere.mp4"), cancelled));
}

TEST(FirstFrame, that_nobody_wants_any_more_leaves_no_error_of_a_good_movie) {
    ToolkitRig rig; // the core hears what the library says, and the rig fails at an error
    harness::MediaFixture::Numbered numbered;
    numbered.frames = 90;
    for (const std::string name : {"at.mp4", "at.mkv"}) {
        const QUrl url = urlOf(media().makeNumbered(name, numbered));
        const auto movie = rig.show(url);
        for (int wait = 0; wait < 4000; wait += 100) {
            std::atomic<bool> cancelled{false};
            std::thread decoding(
                [&] { platform::FirstFrame::decode(url, cancelled, platform::FirstFrame::PictureOf::movie, 2); });
            std::this_thread::sleep_for(std::chrono::microseconds(wait));
            cancelled = true;
            decoding.join();
        }
        rig.settle();
        rig.player().load(nullptr);
    }
}

TEST(FirstFrame, is_let_go_of_when_the_player_has_its_own) {
    const std::atomic<bool> cancelled{false};
    auto first = platform::FirstFrame::decode(
        urlOf(pattern("small.mp4", "640x360", {"-c:v", "libx264", "-pix_fmt", "yuv420p"})), cancelled);
    ASSERT_TRUE(first);
    const std::weak_ptr<const platform::FirstFrame> kept = first;
    platform::MpvVideoLayer layer;
    layer.setFirst(std::move(first));
    EXPECT_FALSE(kept.expired());
    layer.coreFrameReady();
    EXPECT_TRUE(kept.expired());
}

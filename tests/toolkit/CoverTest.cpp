// SPDX-License-Identifier: GPL-3.0-or-later
// What is told, and shown, of files of sound.
#include "platform/movie/mpv/MovieProbe.h"
#include "tests/toolkit/ToolkitRig.h"

#include <gtest/gtest.h>

namespace {

std::filesystem::path cover(const std::string& name) {
    return media().make(name, {"-f", "lavfi", "-i", "color=c=0xC80000:s=2000x1000:d=1", "-frames:v", "1"});
}

std::filesystem::path song(const std::string& name, const std::vector<std::string>& more) {
    std::vector<std::string> arguments{"-f", "lavfi", "-i", "sine=d=2"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return media().make(name, arguments);
}

std::vector<std::string> tagged(std::vector<std::string> arguments) {
    const std::vector<std::string> tags{"-metadata", "title=  Sea\nSong ", "-metadata", "artist=Die Wärter"};
    arguments.insert(arguments.end(), tags.begin(), tags.end());
    return arguments;
}

std::vector<std::string> covered(const std::string& image) {
    return tagged({"-i", cover(image).string(), "-map", "0:a", "-map", "1:v", "-c:v", "copy", "-disposition:v:0",
                   "attached_pic"});
}

} // namespace

TEST(Sound, tells_its_title_and_artist_and_shows_its_cover) {
    const struct {
        std::filesystem::path path;
        bool tagged;
        bool hasCover;
    } cases[] = {
        {song("covered.mp3", covered("cover.jpg")), true, true},
        {song("covered.flac", covered("cover.png")), true, true},
        {song("covered.m4a", covered("cover.jpg")), true, true},
        {song("tagged.ogg", tagged({"-c:a", "flac"})), true, false},
        {song("plain.wav", {}), false, false},
    };
    ToolkitRig rig;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.filename());
        const std::atomic<bool> cancelled{false};
        const platform::OpenedMovie opened = platform::probeMovie(urlOf(c.path), 10, cancelled);
        ASSERT_TRUE(opened.info);
        EXPECT_FALSE(opened.info->hasVideo);
        EXPECT_EQ(opened.info->title, c.tagged ? "Sea Song" : "") << "in one line";
        EXPECT_EQ(opened.info->artist, c.tagged ? QString::fromUtf8("Die Wärter") : QString());
        EXPECT_EQ(opened.info->hasCover, c.hasCover);
        std::optional<QImage> image;
        const auto opening = rig.toolkit.coverAsync(urlOf(c.path), [&](const QImage& shown) { image = shown; });
        EXPECT_FALSE(image) << "nobody waits for it";
        ASSERT_TRUE(rig.waitFor([&] { return image.has_value(); }));
        EXPECT_EQ(image->size(), c.hasCover ? QSize(1280, 640) : QSize(0, 0));
        if (!c.hasCover)
            continue;
        const QRgb middle = image->pixel(640, 320);
        EXPECT_TRUE((harness::Color{qRed(middle), qGreen(middle), qBlue(middle)}).isNear({200, 0, 0}));
    }
}

TEST(Sound, a_cover_that_is_no_picture_or_no_longer_wanted_is_none) {
    ToolkitRig rig;
    std::optional<QImage> image;
    const auto missing = rig.toolkit.coverAsync(urlOf("/nowhere.mp3"), [&](const QImage& shown) { image = shown; });
    ASSERT_TRUE(rig.waitFor([&] { return image.has_value(); }));
    EXPECT_TRUE(image->isNull());
    bool called = false;
    rig.toolkit.coverAsync(urlOf(song("covered.mp3", covered("cover.jpg"))), [&](const QImage&) { called = true; })
        .reset();
    rig.settle();
    EXPECT_FALSE(called);
}

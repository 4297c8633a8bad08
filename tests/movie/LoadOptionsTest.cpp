// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/LoadOptions.h"

#include "platform/movie/Movie.h"
#include "platform/movie/mpv/VideoFilters.h"

#include <gtest/gtest.h>

#include <string>

TEST(LoadOptions, say_start_turn_and_threads_only_where_they_are_not_as_usual) {
    const struct {
        double start;
        int quarterTurns;
        QSizeF size;
        const char* options;
    } cases[] = {
        {0, 0, {1920, 1080}, ""},
        {0, 0, {1920, 1088}, ""},
        {2.5, 0, {640, 360}, ",start=2.500000"},
        {0, 1, {360, 640}, ",video-rotate=no,vf=%23%lavfi=[transpose=clock]"},
        {0, 2, {640, 360}, ",video-rotate=no,vf=%19%lavfi=[hflip,vflip]"},
        {0, 3, {360, 640}, ",video-rotate=no,vf=%24%lavfi=[transpose=cclock]"},
        {0, 0, {1920, 1089}, ",vd-lavc-threads=0"},
        {0.04, 1, {2160, 3840}, ",start=0.040000,video-rotate=no,vf=%23%lavfi=[transpose=clock],vd-lavc-threads=0"},
    };
    for (const auto& c : cases) {
        platform::MovieInfo movie;
        movie.url = QUrl(QStringLiteral("http://example.org/movie.mp4"));
        movie.quarterTurns = c.quarterTurns;
        movie.naturalSize = c.size;
        EXPECT_EQ(platform::loadOptions(movie, c.start, {}, platform::filterOption({.fileTurns = c.quarterTurns}))
                      .toStdString(),
                  std::string("vid=auto,aid=auto,sid=no,secondary-sid=no") + c.options);
    }
}

TEST(LoadOptions, one_thread_decodes_what_it_can_decode_well_in_time) {
    const struct {
        double frameRate, bitRate;
        bool expected;
    } cases[] = {
        {30, 12e6, true},
        {0, 0, true},
        {50, 4e6, false},
        {24, 12.1e6, false},
    };
    for (const auto& c : cases) {
        platform::MovieInfo movie;
        movie.naturalSize = {1920, 1080};
        movie.frameDuration = c.frameRate > 0 ? movie.timeScale / c.frameRate : 0;
        movie.bitRate = c.bitRate;
        EXPECT_EQ(platform::isDecodedByOneThread(movie), c.expected) << c.frameRate << ' ' << c.bitRate;
    }
}

TEST(LoadOptions, a_local_movie_opens_nothing_but_itself) {
    platform::MovieInfo movie;
    movie.url = QUrl::fromLocalFile(QStringLiteral("/a/movie.mp4"));
    EXPECT_EQ(platform::loadOptions(movie, 2.5, {}, {}).toStdString(),
              "vid=auto,aid=auto,sid=no,secondary-sid=no,start=2.500000,access-references=no,demuxer-lavf-o=protocol_"
              "whitelist=none");
}

TEST(LoadOptions, say_the_tracks_each_time) {
    const struct {
        platform::TrackSelection tracks;
        const char* options;
    } cases[] = {
        {{}, "vid=auto,aid=auto,sid=no,secondary-sid=no"},
        {{.audio = 2, .subtitles = 11, .secondSubtitles = 3}, "vid=auto,aid=2,sid=11,secondary-sid=3"},
        {{.video = 3}, "vid=3,aid=auto,sid=no,secondary-sid=no"},
        {{.audio = 0, .subtitles = -1}, "vid=auto,aid=no,sid=no,secondary-sid=no"},
        {{.subtitles = 1, .subtitleFile = QStringLiteral("/a,b.ass")}, "vid=auto,aid=auto,sid=no,secondary-sid=no"},
    };
    for (const auto& c : cases) {
        platform::MovieInfo movie;
        movie.url = QUrl(QStringLiteral("http://example.org/movie.mkv"));
        EXPECT_EQ(platform::loadOptions(movie, 0, c.tracks, {}).toStdString(), c.options);
    }
}

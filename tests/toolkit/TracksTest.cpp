// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PathNames.h"
#include "tests/toolkit/ToolkitRig.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using platform::MovieTrack;
using platform::TrackSelection;
using Kind = MovieTrack::Kind;
using Content = MovieTrack::Content;

namespace {

constexpr const char* text = "1\n00:00:01,000 --> 00:00:03,000\n<i>Hello</i> you\n\n"
                             "2\n00:00:05,000 --> 00:00:06,000\nLater\n\n";
/// White letters on a black box over the whole picture.
constexpr const char* script =
    "[Script Info]\nScriptType: v4.00+\nPlayResX: 384\nPlayResY: 216\n\n[V4+ Styles]\n"
    "Format: Name, Fontname, Fontsize, PrimaryColour, OutlineColour, BorderStyle, Outline, Alignment\n"
    "Style: Default,Sans,20,&H00FFFFFF,&H00000000,1,1,2\nStyle: Sign,Sans,20,&H0000FF00,&H0000FF00,3,8,7\n\n[Events]\n"
    "Format: Layer, Start, End, Style, Text\n"
    "Dialogue: 0,0:00:01.00,0:00:03.00,Sign,{\\pos(40,20)}A sign here\n";

/// Two tracks of sound and three of subtitles, the numbered pictures.
QUrl movieOfTracks() {
    const std::string numbered = media().makeNumbered("numbered.mp4", {}).string();
    const std::string srt = scratch("tracks.srt", text).string();
    const std::string ass = scratch("tracks.ass", script).string();
    return urlOf(media().make("tracks.mkv", {"-i",
                                             numbered,
                                             "-f",
                                             "lavfi",
                                             "-i",
                                             "sine=880:d=10",
                                             "-i",
                                             srt,
                                             "-i",
                                             ass,
                                             "-map",
                                             "0",
                                             "-map",
                                             "1",
                                             "-map",
                                             "2",
                                             "-map",
                                             "2",
                                             "-map",
                                             "3",
                                             "-c:v",
                                             "copy",
                                             "-c:a:0",
                                             "copy",
                                             "-c:a:1",
                                             "ac3",
                                             "-ac:a:1",
                                             "6",
                                             "-c:s:0",
                                             "srt",
                                             "-c:s:1",
                                             "ass",
                                             "-c:s:2",
                                             "copy",
                                             "-metadata:s:a:0",
                                             "language=eng",
                                             "-metadata:s:a:1",
                                             "language=ger",
                                             "-metadata:s:a:1",
                                             "title=Two\nlines",
                                             "-metadata:s:s:1",
                                             "language=por",
                                             "-disposition:s:1",
                                             "forced"}));
}

bool hasGreen(const RenderedPicture& screen) {
    return screen.at(36, 16).isNear({0, 255, 0}, 60);
}

} // namespace

TEST(Tracks, are_known_before_the_player_is_asked_and_are_what_it_finds) {
    ToolkitRig rig;
    const auto movie = rig.open(movieOfTracks());
    ASSERT_TRUE(movie);
    const platform::MovieTracks probed = movie->tracks();
    ASSERT_EQ(probed.size(), 6U);
    EXPECT_EQ(probed[0].kind, Kind::video);
    EXPECT_EQ(probed[1].language, "eng");
    EXPECT_EQ(probed[1].id, 1);
    const MovieTrack& sound = probed[2];
    EXPECT_EQ(sound.kind, Kind::audio);
    EXPECT_EQ(std::make_pair(sound.id, sound.channels), std::make_pair(2, 6));
    EXPECT_EQ(sound.codec, "ac3");
    EXPECT_EQ(sound.title, "Two lines");
    EXPECT_EQ(probed[3].content, Content::text);
    EXPECT_EQ(std::make_pair(probed[4].id, probed[4].content), std::make_pair(2, Content::text)) << "one style only";
    EXPECT_TRUE(probed[4].isForced);
    EXPECT_EQ(probed[5].content, Content::styledText);
    rig.player().load(movie.get());
    ASSERT_TRUE(rig.shows(0));
    rig.settle();
    EXPECT_EQ(movie->tracks(), probed);
}

TEST(Tracks, the_text_that_is_due_is_told_with_its_times_wherever_the_movie_is_moved) {
    ToolkitRig rig;
    const auto movie = rig.open(movieOfTracks());
    movie->select({.audio = 2, .subtitles = 1});
    rig.player().load(movie.get());
    ASSERT_TRUE(rig.shows(0));
    EXPECT_EQ(movie->subtitleText().text, "");
    const std::int32_t second = movie->timeScale();
    const auto says = [&](const QString& expected) {
        return rig.waitFor([&] { return movie->subtitleText().text == expected; });
    };
    rig.player().seek(2 * second, platform::MoviePlayer::JumpReport::silent);
    EXPECT_TRUE(says(QStringLiteral("{\\i1}Hello{\\i0} you"))) << movie->subtitleText().text.toStdString();
    // The file begins a little before its first picture.
    EXPECT_NEAR(movie->subtitleText().start, 1, 0.05);
    EXPECT_NEAR(movie->subtitleText().end, 3, 0.05);
    rig.player().seek(4 * second, platform::MoviePlayer::JumpReport::silent);
    EXPECT_TRUE(says(QString()));
    rig.player().seek(5 * second + second / 2, platform::MoviePlayer::JumpReport::silent);
    EXPECT_TRUE(says(QStringLiteral("Later")));
    movie->select({.audio = 1});
    EXPECT_TRUE(says(QString())) << "no subtitles any more";
    movie->select({.subtitles = 2});
    EXPECT_TRUE(says(QStringLiteral("Later"))) << "another track, while it rests";
    movie->select({.subtitles = 2, .subtitleSpeed = 1.2});
    EXPECT_TRUE(says(QString())) << "it stands from 6 s on";
    movie->select({.subtitles = 2, .subtitleSpeed = 0.95});
    EXPECT_TRUE(says(QStringLiteral("Later")));
    movie->select({.subtitles = 2, .subtitleDelay = 2});
    EXPECT_TRUE(says(QString()));
    rig.settle();
    EXPECT_TRUE(rig.shows(165)) << "the picture stays";
    movie->select({.subtitles = 1});
    EXPECT_TRUE(says(QStringLiteral("Later")));
    // Two at once, of which the second one is told without its markup.
    rig.player().seek(2 * second, platform::MoviePlayer::JumpReport::silent);
    movie->select({.subtitles = 2, .secondSubtitles = 1});
    EXPECT_TRUE(says(QStringLiteral("{\\i1}Hello{\\i0} you")));
    const auto saysSecond = [&](const QString& expected) {
        return rig.waitFor([&] { return movie->secondSubtitleText().text == expected; });
    };
    EXPECT_TRUE(saysSecond(QStringLiteral("Hello you"))) << movie->secondSubtitleText().text.toStdString();
    movie->select({.subtitles = 2});
    EXPECT_TRUE(saysSecond(QString()));
    rig.player().load(nullptr);
    EXPECT_EQ(movie->subtitleText().text, "");
}

TEST(Tracks, the_first_and_the_last_line_of_a_track_are_found_in_the_file) {
    ToolkitRig rig;
    const auto endsOf = [&](const QUrl& url, int track) {
        std::optional<platform::SubtitleEnds> found;
        bool isFound = false;
        const auto search = rig.toolkit.subtitleEndsAsync(url, track, [&](auto ends) {
            found = ends;
            isFound = true;
        });
        EXPECT_TRUE(rig.waitFor([&] { return isFound; }));
        return found;
    };
    // A text, and the same as a script.
    const struct {
        int track;
        const char *first, *last;
        double lastTime;
    } cases[] = {{1, "<i>Hello</i> you", "Later", 5}, {2, "{\\i1}Hello{\\i0} you", "Later", 5}};
    for (const auto& c : cases) {
        const auto ends = endsOf(movieOfTracks(), c.track);
        ASSERT_TRUE(ends) << c.track;
        EXPECT_EQ(ends->first.text.trimmed().toStdString(), c.first);
        EXPECT_EQ(ends->last.text.trimmed().toStdString(), c.last);
        EXPECT_NEAR(ends->first.time, 1, 0.05);
        EXPECT_NEAR(ends->last.time, c.lastTime, 0.05);
    }
    EXPECT_TRUE(endsOf(movieOfTracks(), 3));
    EXPECT_FALSE(endsOf(movieOfTracks(), 4)) << "there is none";
    EXPECT_FALSE(endsOf(QUrl("https://example.org/a.mkv"), 1));
}

TEST(Tracks, styled_texts_are_drawn_into_the_picture_from_the_movie_and_from_a_file_beside_it) {
    ToolkitRig rig;
    const auto movie = rig.show(movieOfTracks());
    movie->setTimeValue(2 * movie->timeScale());
    ASSERT_TRUE(rig.shows(60));
    constexpr auto drawn = TrackSelection::Drawn::inPicture;
    const auto green = [&](bool expected) { return rig.waitFor([&] { return hasGreen(rig.screen) == expected; }); };
    const TrackSelection selections[] = {
        {.subtitles = 3, .drawn = drawn},
        {.subtitleFile =
             platform::pathOfBytes(QByteArray::fromStdString(scratch("beside, 100%, \xE9.ass", script).string())),
         .drawn = drawn},
    };
    for (const TrackSelection& selection : selections) {
        movie->select(selection);
        EXPECT_TRUE(green(true)) << selection.subtitles;
        EXPECT_EQ(movie->subtitleText().text, "") << "nobody else is to draw it";
        movie->select({});
        EXPECT_TRUE(green(false)) << selection.subtitles;
    }
    // From the start of a movie, too.
    movie->select(selections[1]);
    rig.player().load(nullptr);
    rig.player().load(movie.get());
    EXPECT_TRUE(green(true));
    EXPECT_TRUE(rig.shows(60));
    movie->select({.subtitles = 1});
    EXPECT_TRUE(green(false));
    EXPECT_TRUE(rig.waitFor([&] { return movie->subtitleText().text.contains(QStringLiteral("Hello")); }));
    const auto isExternal = [](const MovieTrack& track) { return track.isExternal; };
    EXPECT_EQ(std::ranges::count_if(movie->tracks(), isExternal), 1);
}

TEST(Tracks, a_transport_stream_tells_its_tracks_and_an_unknown_kind_keeps_its_number) {
    ToolkitRig rig;
    rig.expectedError = QStringLiteral("Failed to initialize a decoder");
    const std::string numbered = media().makeNumbered("numbered.mp4", {}).string();
    const auto stream =
        rig.open(urlOf(media().make("tracks.ts", {"-i", numbered, "-map", "0", "-map", "0:a", "-c:v", "copy", "-c:a",
                                                  "mp2", "-metadata:s:a:1", "language=deu"})));
    ASSERT_TRUE(stream);
    ASSERT_EQ(stream->tracks().size(), 3U);
    EXPECT_EQ(stream->tracks()[2].language, "deu");
    QFile file(movieOfTracks().toLocalFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto movie = rig.open(urlOf(scratch("unknown.mkv", file.readAll().replace("A_AAC", "A_XYZ").toStdString())));
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->tracks()[1].codec, "");
    EXPECT_EQ(movie->tracks()[2].id, 2);
    const platform::MovieTracks probed = movie->tracks();
    rig.player().load(movie.get());
    ASSERT_TRUE(rig.shows(0));
    rig.settle();
    EXPECT_EQ(movie->tracks(), probed);
}

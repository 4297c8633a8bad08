// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "playback/AudioChoice.h"
#include "playback/StreamQuality.h"
#include "playback/TrackNames.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitle.h"
#include "tests/support/PlaybackRig.h"

#include <gtest/gtest.h>

using platform::MovieTrack;
using platform::TrackSelection;
using Kind = MovieTrack::Kind;
using Content = MovieTrack::Content;

namespace {

MovieTrack sound(int id, const char* language, const char* title = "", int channels = 2, const char* codec = "aac") {
    return {.kind = Kind::audio, .id = id, .language = language, .title = title, .codec = codec, .channels = channels};
}

MovieTrack text(int id, const char* language, Content content = Content::text) {
    return {.kind = Kind::subtitles, .id = id, .language = language, .content = content};
}

QString titlesOf(const QVMovie& movie) {
    QStringList titles;
    for (const auto& track : movie.subtitles())
        titles << track->title();
    return titles.join(u'|');
}

} // namespace

TEST(TrackNames, say_what_tells_tracks_apart_in_the_users_language) {
    MovieTrack forced = text(2, "eng");
    forced.isForced = true;
    const struct {
        MovieTrack track;
        const char* name;
    } cases[] = {
        {sound(1, "ger", "Kommentar", 6, "ac3"), "German, Kommentar, 5.1, AC-3"},
        {sound(1, "deu", "german", 1, "mp3"), "German, Mono, MP3"},
        {sound(3, "", "", 0, ""), "Track 3"},
        {sound(3, "qqq", "", 8, "pcm_s16le"), "qqq, 7.1, PCM"},
        {sound(1, "", "Isolated score", 10, "dts"), "Isolated score, 10 channels, DTS"},
        {forced, "English, forced"},
        {text(4, "pt-BR"), "Portuguese"},
    };
    platform::setLocalizationLanguages({QStringLiteral("en")});
    for (const auto& c : cases)
        EXPECT_EQ(TrackNames::nameOf(c.track).toStdString(), c.name);
    EXPECT_EQ(TrackNames::nameOf(sound(1, "", QString(150, u'x').toUtf8().constData(), 2)).size(), 60 + 13);
    platform::setLocalizationLanguages({QStringLiteral("de")});
    EXPECT_EQ(TrackNames::nameOf(forced), "Englisch, nur Fremdsprachiges");
    platform::setLocalizationLanguages({});
}

TEST(AudioChoice, begins_with_the_language_wanted_most_else_as_the_file_recommends) {
    MovieTrack recommended = sound(2, "fra");
    recommended.isDefault = true;
    const MovieTrack unknown = sound(4, "jpn", "", 2, "");
    const platform::MovieTracks tracks{sound(1, "eng"), recommended, sound(3, "ger"), unknown, text(1, "jpn")};
    const struct {
        QStringList languages;
        int first;
    } cases[] = {{{"de", "en"}, 3}, {{"ja", "en"}, 1}, {{"sv"}, 2}, {{}, 2}};
    for (const auto& c : cases)
        EXPECT_EQ(AudioChoice::first(tracks, c.languages), c.first) << c.languages.join(u' ').toStdString();
    EXPECT_EQ(AudioChoice::first({unknown}, {}), 4) << "better than none";
    EXPECT_EQ(AudioChoice::first({text(1, "ger")}, {"de"}), 0);
    EXPECT_EQ(AudioChoice::first({sound(1, "ger"), sound(2, "ger")}, {"de"}), 1);
}

TEST(MovieTracks, the_sound_follows_the_languages_until_the_user_chooses) {
    PlaybackRig rig;
    rig.toolkit.tracks = {sound(1, "eng"), sound(2, "ger")};
    rig.settings.defaults().setObject(QStringList{"de"}, kQVPreferredLanguages);
    const auto movie = rig.show();
    EXPECT_EQ(movie->audioTrack(), 2) << "before it is loaded";
    EXPECT_TRUE(rig.player().selections.empty());
    EXPECT_EQ(movie->audioLanguage(), "de");
    EXPECT_FALSE(movie->chosenAudio());
    movie->setAudioTrack(1);
    ASSERT_EQ(rig.player().selections.size(), 1U);
    EXPECT_EQ(rig.player().selections.back().audio, 1);
    movie->selectTracks();
    EXPECT_EQ(movie->chosenAudio(), 1);
    movie->setAudioTrack(7);
    EXPECT_EQ(movie->audioTrack(), 2) << "there is no such track";
    EXPECT_FALSE(movie->chosenAudio());
}

TEST(MovieTracks, of_a_stream_in_several_qualities_one_plays_with_its_sound) {
    const auto picture = [](int id, QSize size, int bitRate, std::vector<int> variants) {
        return MovieTrack{.kind = Kind::video, .id = id, .size = size, .variantBitRate = bitRate, .variants = variants};
    };
    const auto soundOf = [](int id, const char* language, std::vector<int> variants) {
        MovieTrack track = sound(id, language);
        track.variants = std::move(variants);
        return track;
    };
    PlaybackRig rig;
    rig.settings.defaults().setObject(QStringList{"en"}, kQVPreferredLanguages);
    rig.toolkit.tracks = {picture(1, {640, 360}, 800'000, {0}),     soundOf(1, "eng", {0}), soundOf(2, "ger", {0}),
                          picture(2, {1920, 1080}, 4'500'000, {1}), soundOf(3, "eng", {1}), soundOf(4, "ger", {1}),
                          picture(3, {1280, 720}, 2'000'000, {2}),  soundOf(5, "fra", {})};
    const auto movie = rig.show();
    const auto playsNow = [&] { return std::pair(movie->quality(), movie->audioTrack()); };
    EXPECT_EQ(playsNow(), std::pair(2, 3)) << "the best";
    std::string names;
    for (const MovieTrack& track : movie->qualities())
        names += StreamQuality::nameOf(track).toStdString() + '|';
    EXPECT_EQ(names, "1920 × 1080, 4.5 Mbit/s|1280 × 720, 2 Mbit/s|640 × 360, 800 kbit/s|");
    EXPECT_EQ(movie->audioTracks().size(), 3U);
    movie->setAudioTrack(4);
    movie->setQuality(1);
    EXPECT_EQ(playsNow(), std::pair(1, 2)) << "in the language that was chosen";
    movie->setQuality(7);
    EXPECT_EQ(playsNow(), std::pair(1, 2)) << "there is no such quality";
    movie->setQuality(3);
    EXPECT_EQ(playsNow(), std::pair(3, 5)) << "what goes with every picture";
    const struct { int kilobits, first; } cases[] = {{0, 2}, {2500, 3}, {2001, 3}, {1999, 1}, {5, 1}};
    for (const auto& c : cases)
        EXPECT_EQ(StreamQuality::first(movie->tracks(), c.kilobits), c.first) << c.kilobits;
    EXPECT_EQ(rig.show()->quality(), 3) << "what the last one needed is what the next one may need";
    EXPECT_EQ(StreamQuality::first({picture(1, {640, 360}, 800'000, {})}, 0), 0) << "no choice";
}

TEST(MovieTracks, subtitles_inside_follow_those_beside_and_join_them_when_they_turn_up) {
    PlaybackRig rig;
    rig.toolkit.tracks = {sound(1, "eng"), text(1, "ger"), text(2, "eng", Content::bitmaps)};
    const auto movie = rig.show();
    movie->addSubtitleFile("beside");
    EXPECT_EQ(titlesOf(*movie), "beside|German|English");
    const auto german = movie->subtitles()[1];
    platform::MovieTracks later = movie->tracks();
    later.push_back(text(3, ""));
    MovieTrack external = text(4, "fra");
    external.isExternal = true;
    later.push_back(external);
    Posts<QVMovieTracksChangedNotification> posts(rig.settings.notifications);
    movie->playerFoundTracks(later);
    EXPECT_EQ(titlesOf(*movie), "beside|German|English|Track 3");
    EXPECT_EQ(movie->subtitles()[1], german);
    EXPECT_EQ(posts.count, 1);
    EXPECT_EQ(german->language(), "de");
    EXPECT_EQ(movie->subtitles()[3]->streamIndex(), 2U);
    EXPECT_EQ(german->path(), "/movies/a.mp4") << "by which it is remembered";
    EXPECT_FALSE(movie->subtitles()[2]->isTextBased());
}

TEST(MovieTracks, a_text_inside_is_given_while_it_is_due_and_what_has_none_is_drawn_by_the_player) {
    PlaybackRig rig;
    rig.toolkit.tracks = {text(1, "ger"), text(2, "eng", Content::styledText)};
    const auto movie = rig.show();
    QVSubtitles& track = *movie->subtitles()[0];
    int told = 0;
    track.preload();
    track.setLoadingObserver([&told] { ++told; });
    movie->playerReadSubtitle({QStringLiteral("early"), 0, 9});
    EXPECT_EQ(track.subtitleForTime(600), nullptr) << "it is not the one shown";
    track.setShown(true);
    EXPECT_EQ(movie->selection(), (TrackSelection{.audio = movie->selection().audio, .subtitles = 1}));
    movie->playerReadSubtitle({QStringLiteral("{\\i1}Hello"), 1, 2.5});
    EXPECT_EQ(told, 1);
    const auto cue = track.subtitleForTime(700);
    ASSERT_TRUE(cue);
    EXPECT_EQ(cue->text(), "{\\i1}Hello");
    EXPECT_EQ(track.subtitleForTime(1500), cue) << "the same one as long as it stands";
    EXPECT_EQ(track.subtitleForTime(1501), nullptr);
    EXPECT_EQ(track.subtitleForTime(599), nullptr) << "a jump back, before the player has read there";
    track.setShift({.delay = 1000});
    EXPECT_EQ(movie->selection().subtitleDelay, 1);
    EXPECT_EQ(track.subtitleForTime(700), nullptr);
    EXPECT_TRUE(track.subtitleForTime(1300));
    track.setShift({.delay = 1000, .speed = 1.5});
    EXPECT_EQ(movie->selection().subtitleSpeed, 1.5);
    EXPECT_EQ(track.subtitleForTime(1499), nullptr);
    EXPECT_TRUE(track.subtitleForTime(1500) && track.subtitleForTime(2850));
    EXPECT_EQ(track.subtitleForTime(2851), nullptr);
    const platform::SubtitleEnds ends{{1, QStringLiteral("First")}, {100, QStringLiteral("Last")}};
    std::vector<std::optional<platform::SubtitleEnds>> found;
    const auto find = [&] { track.findEnds([&found](const auto& answer) { found.push_back(answer); }); };
    find();
    EXPECT_TRUE(found.empty()) << "they are looked for";
    rig.toolkit.endsAsked(ends);
    rig.toolkit.endsAsked = nullptr;
    find();
    EXPECT_EQ(found, (std::vector<std::optional<platform::SubtitleEnds>>{ends, ends})) << "once";
    movie->subtitles()[1]->setShown(true);
    track.setShown(false);
    EXPECT_EQ(movie->selection().subtitles, 2) << "another one was selected meanwhile";
    EXPECT_EQ(movie->selection().drawn, TrackSelection::Drawn::inPicture);
    EXPECT_EQ(movie->selection().subtitleDelay, 0) << "each track has its own";
    movie->subtitles()[1]->setShown(false);
    EXPECT_EQ(movie->selection().subtitles, 0);
    movie->drawFile(QStringLiteral("/movies/a.ass"), {.delay = -500, .speed = 2});
    EXPECT_EQ(movie->selection(), (TrackSelection{.audio = movie->selection().audio,
                                                  .subtitleFile = QStringLiteral("/movies/a.ass"),
                                                  .drawn = TrackSelection::Drawn::inPicture,
                                                  .subtitleDelay = -0.5,
                                                  .subtitleSpeed = 2}));
    movie->endDrawing(QStringLiteral("/movies/other.ass"));
    EXPECT_FALSE(movie->selection().subtitleFile.isEmpty());
    movie->endDrawing(QStringLiteral("/movies/a.ass"));
    EXPECT_TRUE(movie->selection().subtitleFile.isEmpty());
}

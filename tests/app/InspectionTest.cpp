// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Inspection.h"
#include "platform/base/JsonWriter.h"
#include "settings/SettingsKeys.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedToolkit.h"
#include "tests/support/TestEnvironment.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Inspection : public testing::Test {
protected:
    QJsonArray inspect(const QStringList& files, const InspectedSubtitles& subtitles = {}) {
        QByteArray text;
        {
            platform::JsonWriter json([&text](QByteArrayView piece) { text.append(piece); });
            errors = inspectFiles(
                settings.environment, toolkit, [this](const QUrl& url) { return toolkit.answerOf(url); }, files, json,
                subtitles);
        }
        return QJsonDocument::fromJson(text).array();
    }

    TestEnvironment settings;
    ScriptedToolkit toolkit;
    QTemporaryDir folder;
    QStringList errors;
};

} // namespace

TEST_F(Inspection, the_cues_of_a_subtitle_file_are_listed_in_units_and_in_milliseconds) {
    const QString path = writeFile(folder.filePath("film.srt"), "00:00:01,500 --> 00:00:03,250\nHello\n\n"
                                                                "00:00:05,000 --> 00:00:06,000\nTwo\nlines\n\n");
    const QJsonArray found = inspect({path}, {.timeScale = 2000});
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0]["path"].toString(), path);
    const QJsonArray tracks = found[0]["tracks"].toArray();
    ASSERT_EQ(tracks.size(), 1);
    EXPECT_EQ(tracks[0]["type"].toString(), "SubRip");
    EXPECT_EQ(tracks[0]["title"].toString(), "film.srt");
    EXPECT_EQ(tracks[0]["timeScale"].toInt(), 2000);
    EXPECT_EQ(tracks[0]["streamIndex"].toInt(-1), 0);
    EXPECT_EQ(tracks[0]["cues"].toArray(),
              (QJsonArray{
                  QJsonObject{{"start", 3000}, {"end", 6500}, {"startMs", 1500}, {"endMs", 3250}, {"text", "Hello"}},
                  QJsonObject{
                      {"start", 10000}, {"end", 12000}, {"startMs", 5000}, {"endMs", 6000}, {"text", "Two\nlines"}}}));
    EXPECT_EQ(tracks[0]["losses"].toInt(-1), 0);
    EXPECT_TRUE(errors.isEmpty());
    const QJsonArray unscaled = inspect({path});
    EXPECT_EQ(unscaled[0]["tracks"][0]["timeScale"].toInt(), 600) << "as most movies have it";
}

TEST_F(Inspection, an_address_of_a_file_may_name_this_machine) {
    const QString path = writeFile(folder.filePath("a film.srt"), "00:00:01,500 --> 00:00:03,250\nHello\n\n");
    const QString escaped = QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded()).mid(7);
    for (const QString& host : {QString(), QStringLiteral("localhost")})
        EXPECT_EQ(inspect({QStringLiteral("file://") + host + escaped}).size(), 1) << host.toStdString();
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(Inspection, a_movie_is_described_with_the_subtitles_beside_it_and_a_failure_is_a_line) {
    settings.defaults().setBool(true, kQVAutoloadSubtitles);
    const QString movie = writeFile(folder.filePath("film.mp4"));
    const QString broken = writeFile(folder.filePath("broken.mp4"));
    toolkit.scripts[QUrl::fromLocalFile(broken)] = {platform::movieError::couldNotOpen};
    writeFile(folder.filePath("film.sub"), "{30}{90}Words\n");
    // What no type is known for is tried as a movie first.
    const QString strange = writeFile(folder.filePath("film.words"), "{30}{90}Words\n");
    toolkit.scripts[QUrl::fromLocalFile(strange)] = {platform::movieError::couldNotOpen};
    const QJsonArray found = inspect({broken, movie, strange});
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[1]["tracks"][0]["cues"][0]["text"].toString(), "Words");
    EXPECT_EQ(found[0]["path"].toString(), movie);
    EXPECT_EQ(found[0]["timeScale"].toInt(), 600);
    EXPECT_EQ(found[0]["duration"].toInt(), 36000);
    EXPECT_EQ(found[0]["durationInSeconds"].toInt(), 60);
    EXPECT_EQ(found[0]["frameCount"].toInt(), 1500);
    EXPECT_EQ(found[0]["frameRate"].toDouble(), 25);
    EXPECT_EQ(found[0]["naturalBounds"].toArray(), (QJsonArray{0, 0, 640, 480}));
    const QJsonArray tracks = found[0]["subtitles"].toArray();
    ASSERT_EQ(tracks.size(), 1);
    EXPECT_EQ(tracks[0]["type"].toString(), "MicroDVD");
    EXPECT_EQ(tracks[0]["path"].toString(), folder.filePath("film.sub"));
    EXPECT_EQ(tracks[0]["frameRate"].toDouble(), 25);
    EXPECT_EQ(found[0]["tracks"].toArray(), (QJsonArray{})) << "nothing is known to be inside";
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].startsWith(broken)) << errors[0].toStdString();
    EXPECT_TRUE(errors[0].contains("-2000")) << errors[0].toStdString();
}

TEST_F(Inspection, what_is_inside_a_movie_is_listed_in_its_order) {
    using platform::MovieTrack;
    const QString movie = writeFile(folder.filePath("film.mkv"));
    toolkit.tracks = {
        {.kind = MovieTrack::Kind::video, .id = 1, .codec = QStringLiteral("h264"), .isDefault = true},
        {.kind = MovieTrack::Kind::audio,
         .id = 1,
         .language = QStringLiteral("ger"),
         .codec = QStringLiteral("ac3"),
         .channels = 6},
        {.kind = MovieTrack::Kind::subtitles, .id = 1, .title = QStringLiteral("Signs"), .isForced = true},
        {.kind = MovieTrack::Kind::video, .id = 2, .codec = QStringLiteral("png"), .isCover = true}};
    const auto described = [](const char* kind, const QJsonValue& language, const QJsonValue& title,
                              const QJsonValue& codec, bool isDefault, bool isForced) {
        return QJsonObject{{"kind", kind},   {"language", language}, {"title", title},
                           {"codec", codec}, {"default", isDefault}, {"forced", isForced}};
    };
    const QJsonValue none;
    QJsonObject sound = described("audio", "ger", none, "ac3", false, false);
    sound["channels"] = 6;
    QJsonObject cover = described("video", none, none, "png", false, false);
    cover["cover"] = true;
    const QJsonArray found = inspect({movie});
    EXPECT_EQ(found[0]["tracks"].toArray(),
              (QJsonArray{described("video", none, none, "h264", true, false), sound,
                          described("subtitle", none, "Signs", none, false, true), cover}));
}

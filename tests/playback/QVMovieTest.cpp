// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/QVMovie.h"
#include "playback/SubtitleDiscovery.h"

#include "platform/base/PathNames.h"
#include "settings/SettingsKeys.h"
#include "tests/support/Files.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/PlaybackRig.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

TEST(QVMovie, each_picture_jump_and_end_is_told_while_the_movie_is_shown) {
    PlaybackRig rig;
    const auto movie = rig.show();
    Posts<QVMovieInterestingTimeNotification> times(rig.settings.notifications);
    Posts<QVMovieCompleteNotification> ends(rig.settings.notifications);
    rig.view.start();
    rig.player().advance(1);
    EXPECT_EQ(times.count, 25);
    EXPECT_TRUE(rig.desktop.userActive);
    rig.view.stop();
    EXPECT_FALSE(rig.desktop.userActive);
    rig.view.stepForward();
    rig.view.stepForward();
    rig.view.gotoBeginning();
    EXPECT_EQ(times.count, 28);
    movie->setTime(1200);
    EXPECT_EQ(times.count, 29);
    EXPECT_EQ(times.last->movie, movie);
    EXPECT_EQ(movie->timeInSeconds(), 2);
    EXPECT_EQ(movie->naturalFrame(900), platform::Rect(0, 420, 640, 480)) << "below the upper edge";
    EXPECT_FALSE(rig.desktop.userActive) << "a resting movie keeps no screen awake";

    // The end is told each time that it is reached anew: after a start, and after a jump.
    rig.view.start();
    rig.player().reachEnd();
    EXPECT_EQ(ends.count, 1);
    EXPECT_EQ(ends.last->movie, movie);
    EXPECT_FALSE(rig.desktop.userActive);
    rig.player().reachEnd();
    EXPECT_EQ(ends.count, 1);
    rig.view.start();
    rig.player().reachEnd();
    EXPECT_EQ(ends.count, 2);
    rig.view.gotoBeginning();
    rig.player().reachEnd();
    EXPECT_EQ(ends.count, 3);

    rig.show("file:///b.mp4");
    times.count = 0;
    movie->playerJumped();
    EXPECT_EQ(times.count, 0) << "the movie that was replaced is silent";
}

TEST(QVMovie, the_end_of_what_has_arrived_of_a_recording_is_not_told_as_its_own) {
    PlaybackRig rig;
    platform::MovieInfo recording = ScriptedToolkit::plainMovie(QUrl("file:///recording.ts"));
    recording.saysDuration = false;
    const auto movie = std::make_shared<QVMovie>(rig.settings.environment, rig.movies, recording);
    rig.view.setMovie(movie);
    Posts<QVMovieCompleteNotification> ends(rig.settings.notifications);
    rig.view.start();
    rig.player().reachEnd(false);
    EXPECT_EQ(ends.count, 0);
    movie->playerGrew(1200);
    EXPECT_EQ(movie->duration(), 1200);
    EXPECT_TRUE(movie->needsTimeTable());
    rig.view.start();
    rig.player().reachEnd(true);
    EXPECT_EQ(ends.count, 1) << "nothing more arrives";
}

TEST(QVMovie, movies_are_ordered_by_the_settings) {
    PlaybackRig rig;
    const struct {
        bool names, numbers;
        const char *left, *right;
        int order;
    } cases[] = {
        {false, true, "/v/b2.avi", "/v/b10.avi", -1}, {false, false, "/v/b2.avi", "/v/b10.avi", 1},
        {false, true, "/V/A.avi", "/v/a.AVI", 0},     {true, true, "/z/a.avi", "/a/b.avi", -1},
        {false, true, "/z/a.avi", "/a/b.avi", 1},     {true, false, "/v/100%.avi", "/v/1#2.avi", 1},
    };
    for (const auto& c : cases) {
        rig.settings.defaults().setBool(c.names, kQVSortOnlyFilenames);
        rig.settings.defaults().setBool(c.numbers, kQVSortNumerically);
        const auto left = rig.open(QUrl::fromLocalFile(c.left).toString(QUrl::FullyEncoded));
        const auto right = rig.open(QUrl::fromLocalFile(c.right).toString(QUrl::FullyEncoded));
        EXPECT_EQ(left->compare(*right), c.order) << c.left;
        EXPECT_EQ(right->compare(*left), -c.order) << c.left;
    }
}

TEST(QVMovie, files_that_begin_like_the_movie_are_offered_to_the_readers) {
    PlaybackRig rig;
    QTemporaryDir folder;
    for (const char* name : {"Film.avi", "Film.srt", "FILM.SUB", "film.en.srt", "Filmography.txt", "Film.nfo",
                             "Fil.srt", "Other.srt", ".hidden.srt"})
        writeFile(folder.filePath(name));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("Film.pipe.srt")).constData(), 0600), 0);
    QDir(folder.path()).mkdir("Film.folder.srt");

    const auto open = [&] {
        return rig.open(QUrl::fromLocalFile(folder.filePath("Film.avi")).toString(QUrl::FullyEncoded));
    };
    const auto movie = open();
    rig.readers.offered.sort();
    EXPECT_EQ(rig.readers.offered, (QStringList{"FILM.SUB", "Film.srt", "Filmography.txt", "film.en.srt"}));
    EXPECT_EQ(movie->subtitles().size(), 3U);

    rig.settings.defaults().setBool(false, kQVAutoloadSubtitles);
    EXPECT_TRUE(open()->subtitles().empty());
}

TEST(QVMovie, subtitles_are_found_beside_names_that_are_no_utf8) {
    PlaybackRig rig;
    QTemporaryDir folder;
    const QByteArray films = folder.path().toUtf8() + "/\xE9t\xE9";
    std::error_code error;
    std::filesystem::create_directory(films.toStdString(), error);
    if (error)
        GTEST_SKIP() << "this file system takes UTF-8 alone";
    for (const char* name : {"caf\xE9.avi", "caf\xE9.de.srt", "caf\xE8.srt", "caf\xC3\xA9.srt", "CAF\xE9.SUB"})
        std::ofstream((films + '/' + name).toStdString()) << "x";
    const auto movie = rig.open(platform::urlOfNativePath(films + "/caf\xE9.avi").toString(QUrl::FullyEncoded));
    QList<QByteArray> offered;
    for (const QString& name : rig.readers.offered)
        offered.append(platform::bytesOfPath(name));
    std::ranges::sort(offered);
    EXPECT_EQ(offered, (QList<QByteArray>{"CAF\xE9.SUB", "caf\xE9.de.srt"}));
    EXPECT_EQ(platform::bytesOfPath(movie->fileName()), "caf\xE9.avi");
    std::filesystem::remove_all(films.toStdString()); // the folder's own end does not know how to
}

TEST(SubtitleDiscovery, a_listing_is_kept_for_a_second_while_its_folder_stays_as_it_is) {
    ManualRunLoop clock;
    SubtitleDiscovery discovery(clock);
    const QTemporaryDir folder;
    const QString base = folder.filePath("film");
    const auto found = [&](const QStringList& types = {"srt"}) {
        QStringList names;
        for (const QString& path : discovery.filesBeginningWith(base, types))
            names << path.mid(folder.path().size() + 1);
        return names.join(u' ').toStdString();
    };
    const auto seemUnchanged = [&] { std::filesystem::last_write_time(folder.path().toStdString(), {}); };
    seemUnchanged();
    EXPECT_EQ(found(), "");
    writeFile(base + ".srt");
    EXPECT_EQ(found(), "film.srt") << "the folder has changed meanwhile";
    seemUnchanged();
    found();
    writeFile(base + ".en.srt");
    writeFile(base + ".sub");
    seemUnchanged();
    clock.advance(0.9);
    EXPECT_EQ(found(), "film.srt");
    EXPECT_EQ(found({"sub"}), "film.sub") << "of other files";
    EXPECT_EQ(found({}), "");
    EXPECT_EQ(found(), "film.en.srt film.srt");
    writeFile(base + ".de.srt");
    seemUnchanged();
    clock.advance(1.1);
    EXPECT_EQ(found(), "film.de.srt film.en.srt film.srt") << "a second is over";

    // One that has not changed for some seconds will say so when it does.
    for (const auto& [restedSeconds, kept] : {std::pair(2, false), {3, true}}) {
        const std::chrono::sys_seconds time(std::chrono::seconds(clock.date().toSecsSinceEpoch() - restedSeconds));
        const auto changeThen = [&, time = std::chrono::file_clock::from_sys(time)] {
            std::filesystem::last_write_time(folder.path().toStdString(), time);
        };
        changeThen();
        const auto before = found();
        writeFile(base + QString::number(restedSeconds) + ".srt");
        changeThen();
        clock.advance(10);
        EXPECT_EQ(found() == before, kept) << restedSeconds;
    }
}

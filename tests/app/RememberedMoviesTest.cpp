// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RememberedMovies.h"

#include "control/Commands.h"
#include "platform/base/PathNames.h"
#include "playback/QVMovie.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

#include <QTimeZone>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

/// A player of movies of ten minutes, for what is remembered of them. Files are there, in the rig's folder.
struct MemoryRig : AppRig {
    explicit MemoryRig(std::shared_ptr<MemorySettings::Disk> disk = nullptr, QVariantMap stored = {})
        : AppRig([&stored] {
            stored.insert(kQVOnLaunchDefaultAction, 0);
            return stored;
        }()) {
        if (disk)
            moviesDisk->domain = disk->domain;
        toolkit.duration = 600 * 600;
        launch();
    }
    void open(const QString& pathOrAddress) {
        app.openFile(pathOrAddress);
        settings.runLoop.advance(0.2);
    }
    void quit() {
        app.applicationShouldTerminate();
        fade();
        app.applicationWillTerminate();
    }
    std::int32_t loadedAt() const { return toolkit.scriptedPlayer.loadedAt / 600; }
    QVariantMap record(const QString& path) {
        return moviesDisk->domain.value(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)).toMap();
    }
    platform::Menu& recentMenu() {
        platform::Menu& menu = objects->menu().recentMenu();
        menu.willOpen();
        return menu;
    }
    QStringList recent() {
        QStringList titles;
        platform::Menu& menu = recentMenu();
        for (int i = 0; i < menu.count() && menu.itemAt(i).action == openRecentOperation; ++i)
            titles << menu.itemAt(i).title;
        return titles;
    }

    QVPlaylistController& playlist = objects->playlist();
};

} // namespace

TEST(RememberedMovies, a_place_is_kept_between_the_first_minute_and_the_last_two) {
    const struct {
        double seconds;
        double duration;
        bool isKept;
    } cases[] = {{0, 600, false},   {59.9, 600, false}, {60, 600, true},  {479.9, 600, true},
                 {480, 600, false}, {600, 600, false},  {60, 180, false}, {100, 0, false}};
    for (const auto& c : cases)
        EXPECT_EQ(placeToKeep(c.seconds, c.duration).has_value(), c.isKept) << c.seconds << " of " << c.duration;
}

TEST(RememberedMovies, a_movie_opened_anew_goes_on_and_any_other_way_to_it_begins_it) {
    MemoryRig first;
    const QString film = first.file("film #1 100%.mp4"), other = first.file("other.mp4");
    first.open(film);
    EXPECT_EQ(first.loadedAt(), 0);
    first.view.setTime(300 * 600);
    first.quit();

    MemoryRig rig(first.moviesDisk);
    rig.open(film);
    EXPECT_EQ(rig.loadedAt(), 300) << "its beginning was to be seen";
    EXPECT_TRUE(rig.view.isPlaying());
    rig.playlist.playCurrent();
    EXPECT_EQ(rig.view.time(), 0);
    rig.view.setTime(200 * 600);
    rig.open(film);
    EXPECT_EQ(rig.loadedAt(), 200) << "opened once more while it is shown";
    rig.app.openFile(film);
    rig.app.openFile(other);
    rig.settings.runLoop.advance(0.2);
    rig.playlist.playNext();
    EXPECT_EQ(rig.loadedAt(), 0);
    rig.view.setTime(100 * 600);
    rig.playlist.playPrevious();
    EXPECT_EQ(rig.loadedAt(), 0);
    rig.playlist.playNext();
    EXPECT_EQ(rig.loadedAt(), 0);
    // Seen to the end it is forgotten, and so is one that was hardly begun.
    rig.open(other);
    rig.view.setTime(300 * 600);
    rig.toolkit.scriptedPlayer.reachEnd();
    rig.open(film);
    rig.view.setTime(20 * 600);
    rig.open(other);
    EXPECT_EQ(rig.loadedAt(), 0);
    rig.open(film);
    EXPECT_EQ(rig.loadedAt(), 0);
    // Another movie of the same name.
    rig.view.setTime(300 * 600);
    rig.open(other);
    writeFile(film, "a longer one");
    rig.open(film);
    EXPECT_EQ(rig.loadedAt(), 0);
}

TEST(RememberedMovies, it_is_written_as_a_movie_plays_and_an_error_is_met_once) {
    MemoryRig rig;
    const QString film = rig.file("film.mp4");
    rig.open(film);
    rig.settings.runLoop.advance(3);
    EXPECT_FALSE(rig.record(film).isEmpty());
    EXPECT_EQ(rig.recentlyUsed.names, QStringList("film.mp4"));
    rig.view.setTime(100 * 600);
    for (int second = 0; second < 30; ++second) {
        rig.toolkit.scriptedPlayer.advance(1);
        rig.settings.runLoop.advance(1);
    }
    EXPECT_NEAR(rig.record(film).value("Position").toDouble(), 120, 15);
    rig.moviesDisk->refuses = true;
    rig.view.setTime(200 * 600);
    rig.settings.runLoop.advance(60);
    rig.moviesDisk->refuses = false;
    rig.quit();
    EXPECT_EQ(rig.record(film).value("Position").toDouble(), 200);
}

TEST(RememberedMovies, what_is_odd_in_the_file_is_survived_and_what_is_not_known_is_kept) {
    MemoryRig maker;
    const QString film = maker.file("film.mp4");
    const QString address = QUrl::fromLocalFile(film).toString(QUrl::FullyEncoded);
    const struct {
        QVariant record;
        int loadedAt;
    } cases[] = {{QVariantMap{{"Size", 0}, {"Position", 300.0}, {"AudioTrack", 2}}, 300},
                 {QVariantMap{{"Size", 0}, {"Position", "300"}, {"AudioTrack", 2}}, 300},
                 {QVariantMap{{"Size", "many"}, {"Position", 1e300}, {"AudioTrack", 2}}, 0},
                 {QVariantMap{{"Size", 0}, {"Position", -300}, {"Used", 7}, {"AudioTrack", 2}}, 0},
                 {QVariantMap{{"Size", 0}, {"Position", QVariantList{1}}, {"Subtitles", 5}, {"AudioTrack", 2}}, 0},
                 {QStringLiteral("text"), 0},
                 {QVariantMap{{"Size", 1}, {"Position", 300.0}}, 0}};
    for (const auto& c : cases) {
        auto disk = std::make_shared<MemorySettings::Disk>();
        disk->domain = {{address, c.record}, {"Version", 1}, {"odd", QVariantList{1}}};
        MemoryRig rig(disk);
        EXPECT_EQ(rig.recent().size(), c.record.typeId() == QMetaType::QVariantMap ? 1 : 0);
        rig.open(film);
        const auto number = &c - cases;
        EXPECT_EQ(rig.loadedAt(), c.loadedAt) << number;
        rig.quit();
        EXPECT_EQ(rig.record(film).value("AudioTrack").toInt() == 2, number < 5 && number != 2) << number;
        EXPECT_EQ(rig.moviesDisk->domain.value("odd"), QVariant(QVariantList{1}));
    }
}

TEST(RememberedMovies, the_last_thousand_are_kept) {
    auto disk = std::make_shared<MemorySettings::Disk>();
    const QDateTime begin = QDate(2020, 1, 1).startOfDay(QTimeZone::utc());
    for (int number = 0; number < 1000; ++number)
        disk->domain.insert(QStringLiteral("file:///%1.mp4").arg(number),
                            QVariantMap{{"Used", begin.addSecs(number)}, {"Size", 1}});
    MemoryRig rig(disk);
    rig.settings.runLoop.advance(1);
    const QString film = rig.file("film.mp4");
    rig.open(film);
    rig.quit();
    EXPECT_EQ(rig.moviesDisk->domain.size(), 1000);
    EXPECT_FALSE(rig.record(film).isEmpty());
    EXPECT_FALSE(rig.moviesDisk->domain.contains("file:///0.mp4"));
    EXPECT_TRUE(rig.moviesDisk->domain.contains("file:///1.mp4"));
}

TEST(RememberedMovies, switched_off_nothing_is_kept_shown_or_told) {
    MemoryRig rig(nullptr, {{kQVRememberMovies, false}});
    const QString film = rig.file("film.mp4");
    rig.moviesDisk->domain.insert(QUrl::fromLocalFile(film).toString(QUrl::FullyEncoded),
                                  QVariantMap{{"Size", 0}, {"Position", 300.0}});
    const QVariantMap before = rig.moviesDisk->domain;
    rig.open(film);
    EXPECT_EQ(rig.loadedAt(), 0);
    rig.view.setTime(200 * 600);
    rig.settings.runLoop.advance(60);
    EXPECT_TRUE(rig.recent().isEmpty());
    rig.quit();
    EXPECT_EQ(rig.moviesDisk->domain, before);
    EXPECT_TRUE(rig.recentlyUsed.names.isEmpty());
}

TEST(RecentMovies, the_menu_lists_the_last_twenty_opens_them_and_forgets_all) {
    MemoryRig rig;
    for (int number = 1; number <= 25; ++number) {
        rig.open(rig.file(QStringLiteral("%1.mp4").arg(number)));
        rig.settings.runLoop.advance(1);
    }
    EXPECT_EQ(rig.recent().size(), 20);
    EXPECT_EQ(rig.recent().first(), "25.mp4");
    EXPECT_EQ(rig.recent().last(), "6.mp4");
    platform::Menu& menu = rig.recentMenu();
    rig.objects->controller().performMenuItem(menu.itemAt(2));
    rig.settings.runLoop.advance(0.2);
    EXPECT_EQ(rig.listed(), "23.mp4");
    EXPECT_EQ(rig.recent().first(), "23.mp4");
    // One that is gone says so, once.
    QFile::remove(rig.folder.filePath("25.mp4"));
    rig.toolkit.scripts[QUrl::fromLocalFile(rig.folder.filePath("25.mp4"))] = {platform::movieError::fileNotFound};
    rig.objects->controller().performMenuItem(rig.recentMenu().itemAt(1));
    rig.settings.runLoop.advance(0.5);
    EXPECT_EQ(rig.desktop.alerts.size(), 1U);
    EXPECT_FALSE(rig.recent().contains("25.mp4"));
    EXPECT_EQ(rig.listed(), "23.mp4") << "what is shown stays";
    // Namesakes are told apart by their folders.
    QDir(rig.folder.path()).mkdir("other");
    rig.open(rig.file("other/23.mp4"));
    EXPECT_NE(rig.recent()[0], rig.recent()[1]);
    EXPECT_TRUE(rig.recent()[0].startsWith("23.mp4 — "));

    platform::MenuItem& clear = menu.itemAt(menu.count() - 1);
    EXPECT_TRUE(rig.objects->controller().validateMenuItem(clear));
    rig.view.setTime(200 * 600);
    rig.objects->controller().performMenuItem(clear);
    EXPECT_TRUE(rig.recent().isEmpty());
    EXPECT_FALSE(rig.objects->controller().validateMenuItem(rig.recentMenu().itemAt(0)));
    EXPECT_EQ(rig.recentlyUsed.names.last(), "none");
    rig.settings.runLoop.advance(60);
    rig.quit();
    EXPECT_TRUE(rig.moviesDisk->domain.isEmpty()) << "also the movie that was shown";
}

TEST(RememberedMovies, subtitles_that_were_added_come_back_with_their_times_as_long_as_they_are_there) {
    MemoryRig first;
    const QString film = first.file("film.mp4");
    // Its name is no UTF-8.
    const QByteArray name = QFile::encodeName(first.folder.filePath("caf")) + "\xE9.srt";
    std::ofstream(name.constData()) << "1\n00:00:01,000 --> 00:00:02,000\nHi\n";
    const QString added = platform::pathOfBytes(name);
    first.open(film);
    first.app.openFile(platform::textOfNativePath(name));
    first.settings.runLoop.advance(0.2);
    ASSERT_TRUE(first.app.subtitles().current());
    ASSERT_EQ(first.app.subtitles().current()->path(), added);
    first.app.subtitles().current()->setShift({150, 1.04});
    first.view.movie()->setAudioDelay(-100);
    first.quit();
    for (const bool isThere : {true, false}) {
        MemoryRig rig(first.moviesDisk);
        if (!isThere)
            std::filesystem::remove(name.constData());
        rig.open(film);
        EXPECT_EQ(rig.view.movie()->selection().audioDelay, -0.1);
        ASSERT_EQ(rig.app.subtitles().count(), isThere ? 1U : 0U);
        if (isThere) {
            EXPECT_EQ(rig.app.subtitles().current()->path(), added);
            EXPECT_EQ(rig.app.subtitles().current()->shift(), (CueShift{150, 1.04}));
        }
    }
}

TEST(RememberedMovies, the_sound_that_the_user_chose_comes_back_and_no_other) {
    using platform::MovieTrack;
    const platform::MovieTracks tracks{{.kind = MovieTrack::Kind::audio, .id = 1, .codec = QStringLiteral("aac")},
                                       {.kind = MovieTrack::Kind::audio, .id = 2, .codec = QStringLiteral("aac")}};
    MemoryRig first;
    first.toolkit.tracks = tracks;
    const QString film = first.file("film.mp4"), other = first.file("other.mp4");
    first.open(other);
    first.open(film);
    EXPECT_EQ(first.view.movie()->audioTrack(), 1);
    first.view.movie()->setAudioTrack(2);
    first.quit();

    MemoryRig rig(first.moviesDisk);
    rig.toolkit.tracks = tracks;
    rig.open(film);
    EXPECT_EQ(rig.view.movie()->audioTrack(), 2);
    EXPECT_FALSE(rig.record(other).contains("AudioTrack"));
    rig.open(other);
    EXPECT_EQ(rig.view.movie()->audioTrack(), 1);
}

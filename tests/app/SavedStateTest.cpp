// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SavedState.h"

#include "platform/movie/Movie.h"
#include "playback/QVMovie.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitles.h"
#include "tests/app/AppRig.h"

#include <gtest/gtest.h>

namespace {

QUrl url(const QString& name) {
    return QUrl::fromLocalFile(QStringLiteral("/movies/") + name);
}

QVariantList addresses(const QStringList& names) {
    QVariantList list;
    for (const QString& name : names)
        list.append(url(name).toString(QUrl::FullyEncoded));
    return list;
}

/// The player of a user who wants to have the last list back, with what the run before left.
struct StateRig : AppRig {
    explicit StateRig(QVariantMap stored = {})
        : AppRig([&stored] {
            stored.insert(kQVOnLaunchDefaultAction, 1);
            return stored;
        }()) {}
    explicit StateRig(const QVariantMap& state, int arrangement)
        : StateRig(QVariantMap{{kQVSavedState, state}, {kQVPlaylistDefaultArrangement, arrangement}}) {}

    void add(const QStringList& names, Adding adding = Adding::replace) {
        QList<QUrl> urls;
        for (const QString& name : names)
            urls.append(url(name));
        playlist.addURLs(urls, adding, Starting::yes);
        settings.runLoop.advance(0.2);
    }
    QString current() const { return playlist.movie() ? playlist.movie()->url().fileName() : QString(); }
    std::int32_t loadedAt() const { return toolkit.scriptedPlayer.loadedAt; }
    QVariantMap quit() {
        app.applicationShouldTerminate();
        fade();
        app.applicationWillTerminate();
        return settings.disk->domain;
    }
    QVariantMap state() { return settings.defaults().dictionaryForKey(kQVSavedState); }

    QVPlaylistController& playlist = objects->playlist();
};

} // namespace

TEST(SavedState, the_list_comes_back_in_its_order_at_the_place_where_it_was_left) {
    const QStringList names{"c 100% #1.avi", "b\n?.avi", "a.avi"};
    for (const bool plays : {true, false}) {
        StateRig first;
        first.launch();
        first.add(names);
        first.playlist.play(1);
        first.playlist.setLooping(2);
        first.view.setTime(20 * 600);
        if (!plays)
            first.view.stop();
        QVariantMap left = first.quit();
        EXPECT_EQ(left.value(kQVSavedState).toMap(), (QVariantMap{{"QVSavedPlaylist", addresses(names)},
                                                                  {"QVSavedIndex", 1},
                                                                  {"QVSavedTime", 12000},
                                                                  {"QVSavedIsPlaying", plays},
                                                                  {"QVSavedLooping", 2}}));
        left.insert(kQVPlaylistDefaultArrangement, 2); // sorted, had it been opened anew
        StateRig second(left);
        second.launch();
        EXPECT_EQ(second.listed().split(' ').first(), "c");
        EXPECT_EQ(second.playlist.arrayWithURLsAsStrings(), first.playlist.arrayWithURLsAsStrings());
        EXPECT_EQ(second.events.value(2), "open b\n?.avi") << "before the others";
        EXPECT_EQ(second.current(), "b\n?.avi");
        EXPECT_EQ(second.loadedAt(), 12000) << "its beginning was to be seen";
        EXPECT_EQ(second.view.time(), 12000);
        EXPECT_EQ(second.view.isPlaying(), plays);
        EXPECT_EQ(second.playlist.looping(), 2);
        second.playlist.playCurrent();
        EXPECT_EQ(second.view.time(), 0);
    }
}

TEST(SavedState, what_is_gone_or_odd_is_left_out_without_a_word) {
    const QVariantList all = addresses({"a.avi", "b.avi", "c.avi", "d.avi"});
    struct Case {
        QVariantMap state;
        QStringList gone;
        const char* list;
        const char* current;
        int time;
    };
    const auto state = [](const QVariant& list, const QVariant& index, const QVariant& time = 600) {
        return QVariantMap{{"QVSavedPlaylist", list}, {"QVSavedIndex", index}, {"QVSavedTime", time}};
    };
    const Case cases[] = {
        {state(all, 2), {"b.avi"}, "a.avi c.avi d.avi", "c.avi", 600},
        {state(all, 1), {"a.avi", "b.avi"}, "c.avi d.avi", "c.avi", 0},
        {state(all, 3), {"d.avi"}, "a.avi b.avi c.avi", "a.avi", 0},
        {state(all, 2), {"a.avi", "b.avi", "c.avi", "d.avi"}, "", "", -1},
        {state(all, 4), {}, "a.avi b.avi c.avi d.avi", "a.avi", 0},
        {state(all, -1), {}, "a.avi b.avi c.avi d.avi", "a.avi", 0},
        {state(all, "2", "600"), {}, "a.avi b.avi c.avi d.avi", "c.avi", 600},
        {state(all, 1, 1e12), {}, "a.avi b.avi c.avi d.avi", "b.avi", 36000},
        {state(all, 1, -5), {}, "a.avi b.avi c.avi d.avi", "b.avi", 0},
        {state(all, QVariantList{1}, "soon"), {}, "a.avi b.avi c.avi d.avi", "a.avi", 0},
        {state(QVariantList{7, all[0], "", "no address", all[1], QVariantMap()}, 4), {}, "a.avi b.avi", "b.avi", 600},
        {state("a.avi", 0), {}, "", "", -1},
        {{{"QVSavedPlaylist", all}}, {}, "a.avi b.avi c.avi d.avi", "a.avi", 0},
        {{}, {}, "", "", -1},
    };
    for (const Case& c : cases) {
        StateRig rig(c.state, 0);
        for (const QString& name : c.gone)
            rig.toolkit.scripts[url(name)] = {platform::movieError::fileNotFound};
        rig.launch();
        const int number = static_cast<int>(&c - cases);
        EXPECT_EQ(rig.listed().toStdString(), c.list) << number;
        EXPECT_EQ(rig.current().toStdString(), c.current) << number;
        EXPECT_EQ(rig.loadedAt(), c.time) << number;
        EXPECT_TRUE(rig.desktop.alerts.empty()) << number;
        EXPECT_TRUE(rig.desktop.openPanelFolders.isEmpty()) << number;
        if (rig.current().isEmpty())
            EXPECT_EQ(rig.quit().value(kQVSavedState).toMap(), c.state) << "a disk may only be missing today";
        else
            EXPECT_EQ(rig.quit().value(kQVSavedState).toMap().value("QVSavedPlaylist").toList().size(),
                      rig.playlist.count());
    }
}

TEST(SavedState, titles_of_a_playlist_file_come_back_with_the_list) {
    StateRig first;
    first.launch();
    const QString list =
        writeFile(first.folder.filePath("l.m3u8"), "#EXTM3U\n#EXTINF:90,The First \xC3\x89t\xC3\xA9\na.avi\n"
                                                   "b.avi\n#EXTINF:-1,Third\nc.avi\n");
    for (const char* name : {"a.avi", "b.avi", "c.avi"})
        first.file(name);
    first.app.openFile(list);
    first.settings.runLoop.runPending();
    first.waitForSearches();
    ASSERT_EQ(first.playlist.count(), 3U);
    QVariantMap left = first.quit();
    const auto names = [](StateRig& rig) {
        QStringList said;
        for (std::uint32_t position = 0; position < rig.playlist.count(); ++position) {
            const auto movie = rig.playlist.movieAtIndex(position);
            said << movie->displayName() + u' ' + QString::number(movie->saidSeconds());
        }
        return said.join(u',');
    };
    StateRig second(left);
    second.launch();
    EXPECT_EQ(names(second), QString::fromUtf8("The First \xC3\x89t\xC3\xA9 90,b.avi -1,Third -1"));
    EXPECT_EQ(second.quit().value(kQVSavedState), left.value(kQVSavedState)) << "and again the next time";
    // Titles that are not of this list are nobody's.
    QVariantMap state = left.value(kQVSavedState).toMap();
    state["QVSavedTitles"] = QVariantList{"Another"};
    state["QVSavedSeconds"] = "soon";
    left[kQVSavedState] = state;
    StateRig third(left);
    third.launch();
    EXPECT_EQ(names(third), "a.avi -1,b.avi -1,c.avi -1");
}

TEST(SavedState, a_movie_that_comes_back_and_does_not_play_is_no_alert) {
    StateRig rig({{"QVSavedPlaylist", addresses({"a.avi", "b.avi"})}, {"QVSavedIndex", 1}}, 0);
    rig.launch();
    const auto fail = [&] {
        rig.settings.notifications.post(QVMovieFailedNotification{rig.playlist.movie()});
        rig.settings.runLoop.advance(0.1);
        return rig.desktop.alerts.size();
    };
    ASSERT_EQ(rig.current(), "b.avi");
    EXPECT_EQ(fail(), 0U);
    EXPECT_EQ(rig.current(), "b.avi");
    rig.playlist.setIndex(0);
    EXPECT_EQ(fail(), 1U) << "this one was asked for";
    rig.playlist.setIndex(1);
    EXPECT_EQ(fail(), 2U);
}

TEST(SavedState, quitting_while_it_comes_back_loses_nothing_of_it) {
    const QVariantList all = addresses({"a.avi", "b.avi", "c.avi", "d.avi", "e.avi", "f.avi", "g.avi"});
    const QVariantMap state{{"QVSavedPlaylist", all}, {"QVSavedIndex", 4}, {"QVSavedTime", 600}};
    for (const bool currentHangs : {true, false}) {
        StateRig rig(state, 0);
        rig.toolkit.hanging = {url("b.avi"), url("d.avi"), url("g.avi")};
        if (currentHangs)
            rig.toolkit.hanging.insert(url("e.avi"));
        rig.launch();
        rig.settings.runLoop.advance(5);
        EXPECT_EQ(rig.current(), currentHangs ? "" : "e.avi");
        const QVariantMap kept = rig.quit().value(kQVSavedState).toMap();
        EXPECT_EQ(kept.value("QVSavedPlaylist").toList(), all);
        EXPECT_EQ(kept.value("QVSavedIndex"), 4);
        EXPECT_EQ(kept.value("QVSavedTime"), 600);
    }
}

TEST(SavedState, what_is_opened_meanwhile_stays_the_current_movie) {
    const QVariantMap state{{"QVSavedPlaylist", addresses({"a.avi", "b.avi"})}, {"QVSavedIndex", 1}};
    for (const Adding adding : {Adding::replace, Adding::append}) {
        StateRig rig(state, 0);
        rig.toolkit.hanging = {url("b.avi")};
        rig.launch();
        rig.add({"mine.avi"}, adding);
        EXPECT_EQ(rig.current(), "mine.avi");
        rig.toolkit.answer(url("b.avi"));
        rig.settings.runLoop.advance(1);
        EXPECT_EQ(rig.current(), "mine.avi");
        EXPECT_EQ(rig.listed(), adding == Adding::replace ? "mine.avi" : "mine.avi a.avi b.avi");
        EXPECT_TRUE(rig.playlist.reportsError());
    }
}

TEST(SavedState, a_list_that_ran_out_begins_again_at_its_first_movie) {
    StateRig rig;
    rig.settings.defaults().setBool(true, kQVPlaylistAutoQuit);
    rig.settings.notifications.post(QVPreferencesChangedNotification{kQVPlaylistAutoQuit, {}});
    rig.launch();
    rig.add({"a.avi", "b.avi"});
    rig.playlist.play(1);
    rig.toolkit.scriptedPlayer.reachEnd();
    rig.settings.runLoop.advance(0.1);
    ASSERT_TRUE(rig.playlist.isFinished());
    const QVariantMap state = rig.quit().value(kQVSavedState).toMap();
    EXPECT_EQ(state.value("QVSavedIndex"), 0);
    EXPECT_EQ(state.value("QVSavedTime"), 0);
    EXPECT_EQ(state.value("QVSavedIsPlaying"), true);
}

TEST(SavedState, the_subtitles_come_back_also_where_they_are_shown_later) {
    QTemporaryDir folder;
    const QString movie = writeFile(folder.filePath("film.avi"));
    const char* cue = "1\n00:00:01,000 --> 00:00:02,000\nText\n";
    writeFile(folder.filePath("film.a.srt"), cue);
    const QString chosen = writeFile(folder.filePath("film.b.srt"), cue);
    for (const bool shown : {true, false}) {
        StateRig first;
        first.launch();
        first.app.openFile(movie);
        first.settings.runLoop.advance(0.2);
        QVSubtitlesController& subtitles = first.app.subtitles();
        subtitles.setDisplaySubtitles(true);
        ASSERT_EQ(subtitles.count(), 2U);
        subtitles.setCurrenWithIndex(subtitles.preferredSubtitles()->path() == chosen ? 0 : 1);
        const QString path = subtitles.current()->path();
        subtitles.setDisplaySubtitles(shown);
        const QVariantMap left = first.quit();
        EXPECT_EQ(left.value(kQVSavedState).toMap().value("QVSavedSubtitles"), path);
        StateRig second(left);
        second.launch();
        second.settings.runLoop.advance(0.2);
        second.app.subtitles().setDisplaySubtitles(true);
        ASSERT_TRUE(second.app.subtitles().current());
        EXPECT_EQ(second.app.subtitles().current()->path(), path);
        second.playlist.playCurrent();
        second.app.subtitles().setCurrenWithIndex(second.app.subtitles().index() == 0 ? 1 : 0);
        second.playlist.playCurrent();
        EXPECT_NE(second.app.subtitles().current()->path(), path) << "what the user chose since holds";
    }
}

TEST(SavedState, it_is_saved_as_the_movie_plays_and_not_while_it_stands) {
    StateRig rig;
    rig.launch();
    rig.add({"a.avi"});
    rig.settings.runLoop.advance(1.5);
    EXPECT_EQ(rig.state().value("QVSavedTime"), 0) << "soon after the movie changed";
    const auto play = [&](int seconds) {
        for (int second = 0; second < seconds; ++second) {
            rig.toolkit.scriptedPlayer.advance(1);
            rig.settings.runLoop.advance(1);
        }
    };
    play(29);
    EXPECT_GE(rig.state().value("QVSavedTime").toInt(), 20 * 600);
    EXPECT_EQ(rig.settings.disk->domain.value(kQVSavedState), rig.settings.defaults().objectForKey(kQVSavedState));
    // A long way at once is saved soon.
    rig.view.setTime(58 * 600);
    rig.view.stop();
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(rig.state().value("QVSavedTime"), 58 * 600);
    rig.settings.runLoop.advance(60);
    const int stores = rig.settings.disk->stores;
    rig.settings.runLoop.advance(3600);
    EXPECT_EQ(rig.settings.disk->stores, stores);
    rig.settings.defaults().setInteger(0, kQVOnLaunchDefaultAction);
    rig.settings.defaults().removeObjectForKey(kQVSavedState);
    rig.view.start();
    play(2);
    rig.view.setTime(0);
    rig.settings.runLoop.advance(60);
    EXPECT_TRUE(rig.state().isEmpty()) << "nobody wants it back";
}

TEST(SavedState, a_session_that_ends_finds_it_on_the_disk_and_the_player_goes_on) {
    StateRig rig;
    rig.launch();
    rig.add({"a.avi"});
    rig.view.setTime(600);
    rig.app.applicationSavesSession();
    EXPECT_EQ(rig.settings.disk->domain.value(kQVSavedState).toMap().value("QVSavedTime"), 600);
    EXPECT_TRUE(rig.view.isPlaying());
    rig.add({"b.avi"});
    EXPECT_EQ(rig.current(), "b.avi");
}

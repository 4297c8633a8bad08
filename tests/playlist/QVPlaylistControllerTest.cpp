// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/QVPlaylistController.h"

#include "app/context/Notifications.h"
#include "app/settings/SettingsKeys.h"
#include "app/settings/Tracing.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/PlaybackRig.h"

#include <QDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

QUrl url(const QString& name) {
    return QUrl::fromLocalFile(QStringLiteral("/movies/") + name);
}

QList<QUrl> urls(const QStringList& names) {
    QList<QUrl> list;
    for (const QString& name : names)
        list.append(url(name));
    return list;
}

struct PlaylistRig : PlaybackRig {
    explicit PlaylistRig(const QVariantMap& stored = {})
        : PlaybackRig(stored) {
        app.playlistObject = playlist.get();
    }
    bool add(const QStringList& names, Adding adding = Adding::replace, Starting starting = Starting::yes) {
        return playlist->addURLs(urls(names), adding, starting);
    }
    QString order() const {
        QStringList names;
        for (const QString& text : playlist->arrayWithURLsAsStrings())
            names.append(QUrl(text).fileName().section(u'.', 0, 0));
        return names.join(u' ');
    }
    /// Plays on to the end of the current movie and lets the playlist act on it.
    void endMovie() {
        player().reachEnd();
        settings.runLoop.runPending();
    }

    std::unique_ptr<QVPlaylistController> playlist = std::make_unique<QVPlaylistController>();
};

} // namespace

TEST(QVPlaylistController, added_movies_are_announced_and_start_to_play) {
    PlaylistRig rig;
    Posts<QVPlaylistChangedNotification> changes;
    Posts<QVPlaylistMovieChangedNotification> movies;
    EXPECT_EQ(rig.playlist->currentInfoAsString(), QStringLiteral("None"));
    EXPECT_TRUE(rig.add({QStringLiteral("a #1 100%.avi"), QStringLiteral("b.avi")}));
    EXPECT_EQ(changes.count, 1);
    EXPECT_EQ(changes.last->movies.size(), 2U);
    EXPECT_EQ(movies.count, 1);
    EXPECT_EQ(rig.view.movie(), rig.playlist->movieAtIndex(0));
    EXPECT_TRUE(rig.view.isPlaying());
    EXPECT_EQ(rig.playlist->currentInfoAsString(), QStringLiteral("a #1 100%.avi (1/2)"));
    EXPECT_EQ(QUrl(rig.playlist->arrayWithURLsAsStrings().first()), url(QStringLiteral("a #1 100%.avi")));

    rig.playlist->playNext();
    rig.playlist->setLooping(looping::all);
    rig.add({QStringLiteral("c.avi")}, Adding::append);
    EXPECT_EQ(rig.playlist->index(), 1U);
    EXPECT_EQ(rig.playlist->looping(), looping::all);
    EXPECT_EQ(rig.order(), QStringLiteral("a #1 100% b c"));
    EXPECT_EQ(movies.count, 2);
    rig.add({QStringLiteral("d.avi")}, Adding::replace, Starting::no);
    EXPECT_EQ(rig.order(), QStringLiteral("d"));
    EXPECT_EQ(rig.playlist->looping(), looping::off) << "a new list begins with the default mode";
    EXPECT_FALSE(rig.view.isPlaying());
    rig.playlist->setIndex(5);
    rig.playlist->play(1);
    EXPECT_EQ(rig.playlist->index(), 0U);
    rig.player().advance(5);
    rig.playlist->playPrevious();
    EXPECT_EQ(rig.view.time(), 0) << "the first entry begins anew";
    EXPECT_TRUE(rig.view.isPlaying());
}

TEST(QVPlaylistController, files_that_fail_are_reported_and_the_rest_plays) {
    PlaylistRig rig;
    CapturedLog log;
    rig.toolkit.setFailure(url(QStringLiteral("broken.avi")), platform::movieError::couldNotOpen);
    for (const char* name : {"kept.avi", "dropped.avi"})
        rig.toolkit.setMovie(url(QString::fromUtf8(name)), ScriptedToolkit::plainMovie({}),
                             platform::movieError::cannotPlay);
    rig.toolkit.setMovie(url(QStringLiteral("odd.avi")), ScriptedToolkit::plainMovie({}), -2010);
    rig.desktop.alertAnswers = {1, 1, -1};
    const QStringList names{QStringLiteral("broken.avi"), QStringLiteral("kept.avi"), QStringLiteral("dropped.avi"),
                            QStringLiteral("odd.avi"), QStringLiteral("good.avi")};
    EXPECT_TRUE(rig.add(names));
    EXPECT_EQ(rig.order(), QStringLiteral("kept odd good"));
    ASSERT_EQ(rig.desktop.alerts.size(), 3U);
    EXPECT_TRUE(rig.desktop.alerts[0].title.contains(QStringLiteral("broken.avi")));
    EXPECT_TRUE(rig.desktop.alerts[0].message.contains(QStringLiteral("-2000")));
    EXPECT_TRUE(rig.desktop.alerts[0].otherButton.isEmpty());
    EXPECT_TRUE(rig.desktop.alerts[2].message.contains(QStringLiteral("-2008")));
    EXPECT_FALSE(rig.desktop.alerts[2].otherButton.isEmpty());
    EXPECT_EQ(log.count(QStringLiteral("ERROR: QVPlaylistController: QT failed to open movie.")), 1);
    EXPECT_EQ(log.count(QStringLiteral("ERROR: QVPlaylistController: QT sticky error: -2008.")), 2);
    EXPECT_EQ(log.count(QStringLiteral("ERROR: QVPlaylistController: Cancelled effort to open movie.")), 1);

    rig.desktop.alerts.clear();
    rig.playlist->setReportsError(false);
    EXPECT_TRUE(rig.add(names));
    EXPECT_TRUE(rig.desktop.alerts.empty());
    EXPECT_EQ(rig.order(), QStringLiteral("kept dropped odd good"));
    rig.add({QStringLiteral("broken.avi")});
    EXPECT_TRUE(rig.desktop.alerts.empty()) << "a list that is there stays";
    EXPECT_EQ(rig.playlist->count(), 4U);
}

TEST(QVPlaylistController, an_empty_list_leads_to_the_open_panel) {
    PlaylistRig rig;
    EXPECT_FALSE(rig.add({}));
    EXPECT_TRUE(rig.desktop.alerts.empty());
    EXPECT_EQ(rig.app.opens, 0) << "not before the call has returned";
    rig.settings.runLoop.runPending();
    EXPECT_EQ(rig.app.opens, 1);

    rig.toolkit.setFailure(url(QStringLiteral("broken.avi")), platform::movieError::couldNotOpen);
    rig.desktop.alertAnswers = {1, 1, 0};
    EXPECT_FALSE(rig.add({QStringLiteral("broken.avi")}));
    rig.playlist->setReportsError(false);
    EXPECT_FALSE(rig.add({QStringLiteral("broken.avi")}));
    EXPECT_EQ(rig.desktop.alerts.size(), 3U) << "that nothing can be played is said in any case";
    rig.settings.runLoop.runPending();
    EXPECT_EQ(rig.app.opens, 2) << "the last alert was cancelled";
    EXPECT_EQ(rig.playlist->index(), NSNotFound);
}

TEST(QVPlaylistController, an_add_during_an_add_is_carried_out_after_it) {
    PlaylistRig rig;
    rig.toolkit.whileOpening = [&](const QUrl& opening) {
        if (opening == url(QStringLiteral("slow.avi"))) {
            EXPECT_FALSE(rig.add({QStringLiteral("b.avi"), QStringLiteral("c.avi")}, Adding::append));
            EXPECT_FALSE(rig.add({QStringLiteral("d.avi")}, Adding::append));
        }
    };
    EXPECT_TRUE(rig.add({QStringLiteral("slow.avi"), QStringLiteral("a.avi")}));
    EXPECT_EQ(rig.order(), QStringLiteral("slow a b c d"));
    EXPECT_EQ(rig.playlist->index(), 0U);
    rig.toolkit.whileOpening = nullptr;
    EXPECT_TRUE(rig.add({QStringLiteral("e.avi")}));
}

TEST(QVPlaylistController, it_may_end_while_a_movie_is_opened_or_an_end_is_waiting) {
    PlaylistRig rig;
    rig.add({QStringLiteral("a.avi"), QStringLiteral("b.avi")});
    rig.player().reachEnd();
    rig.toolkit.whileOpening = [&](const QUrl&) {
        rig.app.playlistObject = nullptr;
        rig.playlist.reset();
    };
    EXPECT_FALSE(rig.add({QStringLiteral("c.avi"), QStringLiteral("d.avi")}));
    rig.settings.runLoop.runPending();
    EXPECT_EQ(rig.toolkit.opened.last(), url(QStringLiteral("c.avi")));
}

TEST(QVPlaylistController, the_current_movie_stays_current_when_the_list_is_arranged) {
    PlaylistRig rig;
    rig.settings.defaults().setInteger(Arrangement::sorted, kQVPlaylistDefaultArrangement);
    rig.add({QStringLiteral("Ep10.avi"), QStringLiteral("ep9.avi"), QStringLiteral("Ep1.avi")});
    EXPECT_EQ(rig.order(), QStringLiteral("Ep1 ep9 Ep10"));
    EXPECT_EQ(rig.playlist->index(), 0U) << "a new list starts at its first entry";
    rig.playlist->play(2);
    const auto current = rig.playlist->movie();
    rig.settings.defaults().setBool(false, kQVSortNumerically);
    platform::NotificationCenter::defaultCenter().post(QVPreferencesChangedNotification{kQVSortNumerically});
    EXPECT_EQ(rig.order(), QStringLiteral("Ep1 Ep10 ep9"));
    EXPECT_EQ(rig.playlist->index(), 1U);

    rig.settings.defaults().setInteger(Arrangement::shuffled, kQVPlaylistDefaultArrangement);
    QStringList many;
    for (int i = 0; i < 50; ++i)
        many.append(QStringLiteral("%1.avi").arg(i));
    rig.add(many, Adding::append);
    EXPECT_EQ(rig.playlist->count(), 53U);
    EXPECT_FALSE(rig.order().startsWith(QStringLiteral("Ep1 Ep10 ep9 0 1 2")));
    EXPECT_EQ(rig.playlist->movie(), current);
    EXPECT_EQ(rig.view.movie(), current);
}

TEST(QVPlaylistController, the_end_of_a_movie_is_acted_on_a_pass_later) {
    const struct {
        std::int32_t mode;
        bool next, quit;
        std::uint32_t start;
        std::uint32_t then; // the position afterwards
        bool plays;
        bool quits;
    } cases[] = {
        {looping::one, true, true, 1, 1, true, false},   {looping::off, true, false, 0, 1, true, false},
        {looping::off, true, false, 1, 1, false, false}, {looping::off, false, true, 0, 0, false, false},
        {looping::off, false, true, 1, 1, false, true},  {looping::all, true, true, 1, 0, true, false},
        {looping::all, false, false, 1, 0, true, false}, {looping::all, false, false, 0, 0, false, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.mode << c.next << c.quit << " at " << c.start);
        PlaylistRig rig({{kQVPlaylistDefaultLooping, c.mode}, {kQVPlaylistAutoQuit, c.quit}});
        rig.settings.defaults().setBool(c.next, kQVPlaylistAutoNext);
        platform::NotificationCenter::defaultCenter().post(QVPreferencesChangedNotification{kQVPlaylistAutoNext});
        rig.add({QStringLiteral("a.avi"), QStringLiteral("b.avi")});
        rig.playlist->play(c.start);
        rig.player().reachEnd();
        EXPECT_FALSE(rig.view.isPlaying());
        rig.settings.runLoop.runPending();
        EXPECT_EQ(rig.playlist->index(), c.then);
        EXPECT_EQ(rig.view.isPlaying(), c.plays);
        EXPECT_EQ(rig.view.time(), c.plays ? 0 : 36000);
        EXPECT_EQ(rig.playlist->isFinished(), c.quits);
        EXPECT_EQ(rig.app.actions.size(), c.quits ? 1U : 0U);
    }
}

TEST(QVPlaylistController, a_movie_loops_for_as_long_as_it_is_left_to) {
    PlaylistRig rig({{kQVPlaylistDefaultLooping, looping::one}});
    rig.add({QStringLiteral("a.avi"), QStringLiteral("b.avi")});
    for (int i = 0; i < 3; ++i)
        rig.endMovie();
    EXPECT_EQ(rig.playlist->index(), 0U);
    EXPECT_TRUE(rig.view.isPlaying());
    EXPECT_EQ(rig.player().loads, 1) << "the movie is not opened again";
    rig.playlist->setLooping(looping::off);
    rig.endMovie();
    EXPECT_EQ(rig.playlist->index(), 1U);
}

TEST(QVPlaylistController, looping_modes_go_round_and_are_announced_once) {
    PlaylistRig rig;
    Posts<QVPlaylistLoopingChangedNotification> posts;
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        rig.playlist->toggleLooping(1);
        texts.append(rig.playlist->loopingInfoAsString());
    }
    EXPECT_EQ(texts,
              (QStringList{QStringLiteral("Loop: One"), QStringLiteral("Loop: All"), QStringLiteral("Loop: Off")}));
    rig.playlist->toggleLooping(-1);
    EXPECT_EQ(rig.playlist->looping(), looping::all);
    EXPECT_EQ(posts.count, 4);
    for (const std::int32_t mode : {looping::all, 3, -1})
        rig.playlist->setLooping(mode);
    EXPECT_EQ(posts.count, 4);
    rig.settings.defaults().setInteger(looping::one, kQVPlaylistDefaultLooping);
    platform::NotificationCenter::defaultCenter().post(QVPreferencesChangedNotification{kQVPlaylistDefaultLooping});
    EXPECT_EQ(rig.playlist->looping(), looping::one);
}

TEST(QVPlaylistController, the_folder_of_the_last_movie_is_where_the_next_open_panel_starts) {
    PlaylistRig rig;
    const auto folderAfter = [&](const QList<QUrl>& list) {
        rig.playlist->addURLs(list, Adding::append, Starting::no);
        return rig.settings.defaults().stringForKey(kNSNavLastRootDirectory);
    };
    EXPECT_EQ(folderAfter({url(QStringLiteral("a.avi")),
                           QUrl::fromLocalFile(QDir::homePath() + QStringLiteral("/Films/b.avi"))}),
              QStringLiteral("~/Films"));
    EXPECT_EQ(folderAfter({QUrl::fromLocalFile(QDir::homePath() + QStringLiteral("/b.avi"))}), QStringLiteral("~"));
    EXPECT_EQ(folderAfter({QUrl(QStringLiteral("http://host/videos/c.avi"))}), QStringLiteral("~"));
    EXPECT_EQ(folderAfter({QUrl::fromLocalFile(QDir::homePath() + QStringLiteral("x/b.avi"))}),
              QDir::homePath() + u'x');
    EXPECT_EQ(folderAfter({QUrl::fromLocalFile(QStringLiteral("/b.avi"))}), QStringLiteral("/"));
}

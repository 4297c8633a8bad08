// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "tests/playlist/PlaylistRig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// A list of 120 movies, of which the first 100 are opened with it.
struct LongRig : PlaylistRig {
    using PlaylistRig::PlaylistRig;
    void addMany(const QStringList& broken = {}, std::int16_t error = platform::movieError::invalidMovie,
                 bool opens = false) {
        for (const QString& name : broken)
            toolkit.scripts[url(name)] = {error, opens};
        toolkit.whileOpening = [this](const QUrl& address) { opened << address.fileName(); };
        QStringList names;
        for (int i = 0; i < 120; ++i)
            names << QStringLiteral("%1.avi").arg(i);
        add(names);
        opened.clear();
    }
    /// Where the list stands and what the view shows.
    QString shown() const {
        return view.movie() ? fileName(view.movie()->url()) + (view.isPlaying() ? " plays" : "") : QString();
    }
    void go(std::uint32_t index) {
        playlist.play(index);
        settings.runLoop.advance(0.1);
    }
    static QString fileName(const QUrl& url) { return url.fileName(); }
    QStringList opened;
};

} // namespace

TEST(LongList, movies_far_down_are_opened_when_they_are_reached) {
    LongRig rig;
    rig.addMany();
    EXPECT_EQ(rig.playlist.count(), 120U);
    rig.go(98);
    EXPECT_EQ(rig.opened, QStringList());
    rig.go(99);
    EXPECT_EQ(rig.opened, QStringList("100.avi")) << "the next one, ahead";
    rig.playlist.playNext();
    EXPECT_EQ(rig.shown(), "100.avi plays") << "at once";
    rig.settings.runLoop.advance(0.1);
    rig.opened.clear();

    rig.toolkit.hanging = {url("110.avi")};
    rig.playlist.play(110);
    EXPECT_EQ(rig.playlist.currentInfoAsString(), "110.avi (111/120)");
    rig.player().reachEnd();
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(rig.playlist.index(), 110U) << "the end of the movie before leads nowhere else";
    EXPECT_EQ(rig.shown(), "100.avi");
    EXPECT_EQ(rig.confirmations.last, platform::localizedFormat("Loading: %@", {"110.avi"}));
    rig.toolkit.answer(url("110.avi"));
    rig.settings.runLoop.advance(0.1);
    EXPECT_EQ(rig.shown(), "110.avi plays");
    EXPECT_EQ(rig.opened, (QStringList{"110.avi", "111.avi"}));
    // Whoever chooses another one meanwhile gets that.
    rig.toolkit.hanging = {url("115.avi")};
    rig.playlist.play(115);
    rig.go(3);
    EXPECT_EQ(rig.toolkit.waiting(), 0);
    EXPECT_EQ(rig.shown(), "3.avi plays");
    // Without playing.
    rig.view.stop();
    rig.playlist.setIndex(118);
    rig.settings.runLoop.advance(0.1);
    EXPECT_EQ(rig.shown(), "118.avi");
}

TEST(LongList, what_cannot_be_opened_is_passed_over_and_reported_when_it_is_reached) {
    LongRig rig;
    rig.addMany({"105.avi", "106.avi", "119.avi"});
    EXPECT_TRUE(rig.desktop.alerts.empty());
    rig.go(104);
    rig.playlist.playNext();
    rig.settings.runLoop.advance(0.1);
    EXPECT_EQ(rig.shown(), "107.avi plays");
    EXPECT_EQ(rig.playlist.currentInfoAsString(), "107.avi (106/118)");
    ASSERT_EQ(rig.desktop.alerts.size(), 1U) << "one for both";
    EXPECT_TRUE(rig.desktop.alerts[0].message.contains("105.avi"));
    EXPECT_TRUE(rig.desktop.alerts[0].message.contains("106.avi"));
    // At the end of the list.
    rig.go(116);
    rig.playlist.playNext();
    rig.settings.runLoop.advance(0.1);
    EXPECT_EQ(rig.playlist.currentInfoAsString(), "118.avi (117/117)");
    EXPECT_EQ(rig.desktop.alerts.size(), 2U);

    LongRig back;
    back.addMany({"105.avi", "104.avi"});
    back.go(106);
    back.playlist.playPrevious();
    back.settings.runLoop.advance(0.1);
    EXPECT_EQ(back.shown(), "103.avi plays") << "in the direction of the step";

    LongRig silent;
    silent.playlist.setReportsError(false);
    silent.addMany({"110.avi"});
    silent.go(110);
    EXPECT_EQ(silent.shown(), "111.avi plays");
    EXPECT_TRUE(silent.desktop.alerts.empty());
}

TEST(LongList, one_that_may_not_play_is_asked_for_when_it_is_reached) {
    for (const bool isKept : {true, false}) {
        LongRig rig;
        rig.addMany({"110.avi"}, platform::movieError::cannotPlay, true);
        rig.desktop.alertAnswers = {isKept ? 1 : -1};
        rig.desktop.whileAlertIsUp = [&rig] { EXPECT_EQ(rig.shown(), "0.avi plays"); };
        rig.go(110);
        ASSERT_EQ(rig.desktop.alerts.size(), 1U);
        EXPECT_EQ(rig.shown(), isKept ? "110.avi plays" : "111.avi plays");
        EXPECT_EQ(rig.playlist.count(), isKept ? 120U : 119U);
    }
}

TEST(LongList, nothing_playable_at_all_leads_to_the_open_panel) {
    LongRig rig;
    QStringList all;
    for (int i = 0; i < 120; ++i)
        all << QStringLiteral("%1.avi").arg(i);
    rig.desktop.alertAnswers = {1, 1, 1};
    rig.addMany(all);
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(rig.playlist.count(), 0U);
    EXPECT_EQ(rig.playlist.currentInfoAsString(), platform::localizedString("None"));
    EXPECT_EQ(rig.desktop.alerts.size(), 3U);
    EXPECT_EQ(rig.openPanel.opens, 1);
}

TEST(LongList, movies_that_are_still_looked_for_join_the_list_as_they_are_found) {
    const auto sources = [](int from, int count) {
        QList<MovieSource> movies;
        for (int i = from; i < from + count; ++i)
            movies.append({url(QStringLiteral("%1.avi").arg(i)), i == 1 ? QStringLiteral("Eins") : QString(), -1});
        return movies;
    };
    for (const std::int32_t arrangement : {Arrangement::asAdded, Arrangement::shuffled, Arrangement::sorted}) {
        PlaylistRig rig({{kQVPlaylistDefaultArrangement, arrangement}, {kQVSortNumerically, true}});
        rig.add({"old.avi"});
        auto parts = rig.playlist.addInParts(Adding::replace, Starting::yes);
        rig.settings.runLoop.advance(1);
        EXPECT_EQ(rig.order(), "old");
        parts->add(sources(0, 50));
        rig.settings.runLoop.advance(1);
        EXPECT_EQ(rig.playlist.count(), 50U);
        const auto current = rig.playlist.movie();
        EXPECT_EQ(rig.view.movie(), current);
        const QString first = rig.order();
        parts->add(sources(50, 5000));
        rig.settings.runLoop.advance(1);
        parts->end({});
        rig.settings.runLoop.advance(1);
        EXPECT_EQ(rig.playlist.count(), 5050U);
        EXPECT_EQ(rig.playlist.movie(), current);
        EXPECT_EQ(rig.playlist.index(), 0U);
        QStringList names = rig.order().split(' ');
        const bool isInOrder = std::ranges::is_sorted(names, {}, [](const QString& name) { return name.toInt(); });
        EXPECT_EQ(isInOrder, arrangement != Arrangement::shuffled);
        EXPECT_EQ(rig.order().startsWith(first), arrangement != Arrangement::shuffled)
            << "what has not been played is shuffled as a whole";
        rig.playlist.play(1);
        if (arrangement == Arrangement::asAdded) {
            EXPECT_EQ(rig.playlist.currentInfoAsString(), "Eins (2/5050)") << "by its title";
        }
    }
    // Letting go of a search that found nothing says nothing.
    PlaylistRig rig;
    rig.playlist.addInParts(Adding::replace, Starting::yes).reset();
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(rig.openPanel.opens, 0);
    EXPECT_TRUE(rig.desktop.alerts.empty());
}

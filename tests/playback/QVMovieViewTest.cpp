// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/QVMovieView.h"

#include "context/Notifications.h"
#include "settings/SettingsKeys.h"
#include "tests/support/PlaybackRig.h"

#include <gtest/gtest.h>

using Recalculation = QVMovieView::Recalculation;

TEST(QVMovieView, a_new_movie_keeps_volume_and_size_and_starts_at_its_beginning) {
    PlaybackRig rig;
    rig.view.setMovieSize(movieSize::fitWidth, Recalculation::ifChanged);
    const auto first = rig.show();
    rig.view.setVolume(0.3F);
    rig.view.start();
    rig.player().advance(5);
    rig.commands.isForceMuted = true;
    Posts<QVMovieVolumeChangedNotification> volumes(rig.settings.notifications);
    const auto second = rig.open("file:///b.mp4");
    rig.post(QVPlaylistMovieChangedNotification{second});
    EXPECT_EQ(rig.view.movie(), second);
    EXPECT_FALSE(rig.view.isPlaying());
    EXPECT_FALSE(rig.commands.isForceMuted);
    EXPECT_FLOAT_EQ(rig.view.volume(), 0.3F);
    EXPECT_EQ(volumes.count, 1);
    EXPECT_EQ(rig.view.movieSize(), movieSize::fitWidth);
    EXPECT_EQ(rig.view.frame(), platform::Rect(0, -90, 1440, 1080));
    EXPECT_EQ(rig.view.time(), 0);

    // The same movie again begins anew without being loaded anew.
    rig.view.start();
    rig.player().advance(5);
    const int loads = rig.player().loads;
    rig.post(QVPlaylistMovieChangedNotification{second});
    EXPECT_EQ(rig.view.time(), 0);
    EXPECT_EQ(rig.player().loads, loads);
}

TEST(QVMovieView, size_codes_lay_the_view_out_and_are_kept) {
    PlaybackRig rig;
    rig.show();
    Posts<QVMovieViewSizeChangedNotification> posts(rig.settings.notifications);
    rig.view.setMovieSize(movieSize::normal, Recalculation::ifChanged);
    EXPECT_EQ(rig.view.frame(), platform::Rect(400, 210, 640, 480));
    rig.view.setMovieSize(movieSize::bigger, Recalculation::ifChanged);
    rig.view.setMovieSize(movieSize::bigger, Recalculation::ifChanged);
    EXPECT_EQ(posts.count, 3);
    EXPECT_EQ(rig.view.movieSize(), movieSize::custom);
    EXPECT_EQ(rig.settings.defaults().integerForKey(kQVDefaultMovieSize), movieSize::custom);
    EXPECT_FLOAT_EQ(rig.settings.defaults().floatForKey(kQVMovieCustomScale), 1.2F);
    rig.settings.defaults().setInteger(movieSize::half, kQVDefaultMovieSize);
    rig.changePreference(kQVDefaultMovieSize);
    EXPECT_EQ(rig.view.frame().size(), QSizeF(320, 240));
    rig.view.toggleController();
    EXPECT_TRUE(rig.settings.defaults().boolForKey(kQVControllerVisible));
    EXPECT_EQ(rig.view.frame().size(), QSizeF(320, 256)) << "the bar below the picture";
    rig.settings.defaults().setBool(false, kQVControllerVisible);
    rig.changePreference(kQVControllerVisible);
    EXPECT_EQ(rig.view.frame().size(), QSizeF(320, 240));
}

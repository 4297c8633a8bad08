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
    EXPECT_EQ(rig.desktop.userActiveChanges, 0) << "nothing has played yet";
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

    // Back at the one before: it is loaded at its beginning, not where it was left.
    const std::int32_t left = first->time();
    EXPECT_GT(left, 0);
    rig.post(QVPlaylistMovieChangedNotification{first});
    EXPECT_EQ(rig.player().loadedAt, 0);
    rig.post(QVPlaylistMovieChangedNotification{second});

    // The same movie again begins anew without being loaded anew.
    rig.view.start();
    rig.player().advance(5);
    const int loads = rig.player().loads;
    rig.post(QVPlaylistMovieChangedNotification{second});
    EXPECT_EQ(rig.view.time(), 0);
    EXPECT_EQ(rig.player().loads, loads);
}

TEST(QVMovieView, starting_at_normal_speed_ends_the_silence_of_fast_motion) {
    PlaybackRig rig;
    rig.show();
    rig.commands.isForceMuted = true;
    rig.view.setRate(2.0F);
    EXPECT_TRUE(rig.commands.isForceMuted) << "it moves fast";
    rig.player().reachEnd();
    EXPECT_TRUE(rig.commands.isForceMuted);
    rig.view.start();
    EXPECT_FALSE(rig.commands.isForceMuted);
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

TEST(QVMovieView, sound_without_a_picture_has_its_bar_where_a_movie_that_fills_the_screen_has_it) {
    PlaybackRig rig;
    platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///a.mp3"));
    info.hasVideo = false;
    info.naturalSize = QSizeF();
    rig.view.setMovie(std::make_shared<QVMovie>(rig.settings.environment, rig.movies, info));
    EXPECT_EQ(rig.view.frame(), platform::Rect(0, 0, 1440, 0));
    rig.view.toggleController();
    for (const std::int32_t code : {movieSize::fitScreen, movieSize::half, movieSize::smaller, movieSize::bigger}) {
        rig.view.setMovieSize(code, Recalculation::forced);
        EXPECT_EQ(rig.view.frame(), platform::Rect(0, 0, 1440, 16)) << code;
    }
    rig.show();
    rig.view.setMovieSize(movieSize::normal, Recalculation::forced);
    EXPECT_EQ(rig.view.frame(), platform::Rect(400, 202, 640, 496)) << "no step was kept for the next movie";
}

TEST(QVMovieView, without_a_movie_a_size_is_only_remembered) {
    PlaybackRig rig;
    Posts<QVMovieViewSizeChangedNotification> posts(rig.settings.notifications);
    for (const std::int32_t code : {movieSize::smaller, movieSize::bigger}) {
        rig.view.setMovieSize(code, Recalculation::ifChanged);
        EXPECT_EQ(rig.view.movieSize(), movieSize::custom) << "a step must not be taken from the empty view";
    }
    rig.view.setMovieSize(movieSize::twice, Recalculation::ifChanged);
    EXPECT_EQ(posts.count, 0);
    EXPECT_EQ(rig.view.sizeForFitScreen(movieSize::fitScreen), QSizeF(0, 0));
    EXPECT_EQ(rig.view.magnification(), 0);
    EXPECT_EQ(rig.view.aspectRatio(), 0);
    rig.view.jump(1, 10);
    rig.view.restoreMovieState();
    EXPECT_FALSE(rig.view.isPlaying());
    rig.show();
    EXPECT_EQ(rig.view.frame().size(), QSizeF(1280, 960));
    EXPECT_FLOAT_EQ(rig.view.aspectRatio(), 4.0F / 3);
}

TEST(QVMovieView, edge_panning_runs_until_the_edge_or_until_its_area_is_left) {
    PlaybackRig rig;
    const auto advance = [&](double seconds) { rig.settings.runLoop.advance(seconds); };
    rig.view.setMovieSize(movieSize::fitWidth, Recalculation::ifChanged);
    rig.show(); // 2.25 times as large: 9 points a step, 90 points hidden at the top and at the bottom
    rig.view.startAutoscroll(panDirection::left);
    advance(1);
    EXPECT_EQ(rig.view.frame().y(), -90) << "nothing is hidden at the sides";
    rig.view.startAutoscroll(panDirection::top);
    advance(0.1);
    EXPECT_EQ(rig.view.frame().y(), -108);
    rig.view.stopAutoscroll(panDirection::top | panDirection::left);
    advance(0.05);
    EXPECT_EQ(rig.view.frame().y(), -117) << "another area's end does not stop it";
    rig.view.stopAutoscroll(panDirection::top);
    advance(1);
    EXPECT_EQ(rig.view.frame().y(), -117);
    rig.view.startAutoscroll(panDirection::bottom);
    advance(10);
    EXPECT_EQ(rig.view.frame().y(), 0);

    platform::MouseEvent drag;
    drag.button = platform::MouseButton::left;
    drag.deltaY = 50;
    EXPECT_TRUE(rig.view.mouseDragged(drag));
    EXPECT_EQ(rig.view.frame().y(), -50);
    for (const platform::MouseButton button : {platform::MouseButton::right, platform::MouseButton::other}) {
        drag.button = button;
        EXPECT_FALSE(rig.view.mouseDragged(drag));
        EXPECT_EQ(rig.view.frame().y(), -50);
    }
}

TEST(QVMovieView, keys_that_the_commands_leave_step_and_play_the_movie_and_beep_without_one) {
    PlaybackRig rig;
    const auto press = [&](char16_t character) {
        platform::KeyEvent event;
        event.charactersIgnoringModifiers = QChar(character);
        return rig.view.keyDown(event);
    };
    EXPECT_TRUE(press(u' '));
    EXPECT_EQ(rig.desktop.beeps, 1);
    EXPECT_FALSE(press(u'x'));
    EXPECT_EQ(rig.desktop.beeps, 1);
    rig.show();
    const struct {
        char16_t character;
        const char* text;
    } cases[] = {{u' ', "Movie: Play"},
                 {u' ', "Movie: Pause"},
                 {platform::functionKey::left, "Step Backward"},
                 {platform::functionKey::right, "Step Forward"}};
    for (const auto& c : cases) {
        EXPECT_TRUE(press(c.character));
        EXPECT_EQ(rig.confirmations.last, c.text);
    }
    EXPECT_EQ(rig.player().steps, (std::vector<int>{-1, 1}));
    EXPECT_FALSE(press(u'x'));
    EXPECT_EQ(rig.desktop.beeps, 1);
}

TEST(QVMovieView, volume_texts_round_to_whole_percents) {
    PlaybackRig rig;
    for (const auto& [volume, text] :
         {std::pair{0.996F, "Volume: 100%"}, {0.0F, "Volume: 0%"}, {0.01F, "Volume: 1%"}}) {
        rig.view.setVolume(volume);
        EXPECT_EQ(rig.view.volumeInfoAsString(), text);
    }
    EXPECT_EQ(rig.view.mutedInfoAsString(), "Mute: Off");
    rig.view.setMuted(true);
    EXPECT_EQ(rig.view.volumeInfoAsString(), "Volume: Muted");
    EXPECT_EQ(rig.view.mutedInfoAsString(), "Mute: On");
}

TEST(QVMovieView, a_wait_is_said_until_the_movie_goes_on_and_so_is_a_stall) {
    PlaybackRig rig;
    using Wait = platform::MoviePlayer::Wait;
    const auto movie = rig.show();
    const auto saidAfter = [&](double seconds) {
        rig.confirmations.last.clear();
        rig.settings.runLoop.advance(seconds);
        return rig.confirmations.last;
    };
    rig.player().wait({Wait::What::beginning, 0});
    EXPECT_EQ(saidAfter(0.6), "Loading: a.mp4");
    rig.player().wait({Wait::What::more, 40});
    EXPECT_EQ(saidAfter(3.9), "Buffering: 40 %");
    EXPECT_EQ(saidAfter(1), "Stalled: no data from the server");
    rig.player().wait({Wait::What::more, 41});
    EXPECT_EQ(saidAfter(3.9), "Buffering: 41 %");
    rig.player().wait({Wait::What::connection, 0});
    EXPECT_EQ(saidAfter(9), "Reconnecting...") << "as long as it lasts";
    rig.player().wait({Wait::What::lostConnection, 0});
    EXPECT_EQ(rig.confirmations.last, "Connection Lost");
    EXPECT_EQ(saidAfter(10), "");
    rig.player().wait({});
    EXPECT_EQ(saidAfter(10), "");

    Posts<QVMovieFailedNotification> failures(rig.settings.notifications);
    rig.player().fail();
    ASSERT_EQ(failures.count, 1);
    EXPECT_EQ(failures.last->movie, movie);
}

TEST(QVMovieView, a_saved_state_is_played_on) {
    PlaybackRig rig;
    rig.show();
    for (const float rate : {2.0F, 0.0F, 1.0F}) {
        rig.view.setRate(rate);
        rig.view.saveMovieState();
        rig.view.setRate(rate == 0 ? 1 : 0);
        rig.view.restoreMovieState();
        EXPECT_EQ(rig.view.rate(), rate);
    }
}

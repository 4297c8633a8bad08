// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/control/ControllerFixture.h"

namespace {

class MovieController : public ControllerFixture {};

namespace key = platform::functionKey;
namespace held = platform::modifier;

} // namespace

TEST_F(MovieController, Play_or_pause_first_leaves_fast_motion_and_brings_the_sound_back) {
    addMovies(1);
    controller->performAction(action::playPause, Feedback::yes);
    EXPECT_TRUE(view.isPlaying());
    EXPECT_EQ(posted(), text("Movie: Play"));
    controller->performAction(action::fastForward, Feedback::yes);
    controller->performAction(action::fastForward, Feedback::yes);
    EXPECT_EQ(view.rate(), 4.0F);
    EXPECT_TRUE(view.isMuted());
    EXPECT_TRUE(controller->forceMuted());
    EXPECT_EQ(posted(), text("Fast Forward x%d", {QStringLiteral("4")}));

    controller->performAction(action::playPause, Feedback::yes);
    EXPECT_EQ(view.rate(), 1.0F);
    EXPECT_FALSE(view.isMuted());
    EXPECT_FALSE(controller->forceMuted());
    EXPECT_EQ(posted(), text("Movie: Play"));
    EXPECT_EQ(app.cursorHides, 2);

    controller->performAction(action::playPause, Feedback::yes);
    EXPECT_FALSE(view.isPlaying());
    EXPECT_EQ(posted(), text("Movie: Pause"));
    EXPECT_EQ(app.cursorHides, 2);
}

TEST_F(MovieController, Sound_comes_back_with_a_new_movie_but_not_where_it_was_off_before_fast_motion) {
    addMovies(2);
    view.start();
    controller->performAction(action::fastForward, Feedback::no);
    playlist.playNext();
    EXPECT_FALSE(controller->forceMuted() || view.isMuted()) << "a new movie is heard";
    view.start();
    view.setMuted(true);
    controller->performAction(action::fastRewind, Feedback::no);
    EXPECT_EQ(view.rate(), -2.0F);
    EXPECT_FALSE(controller->forceMuted());
    controller->performAction(action::playPause, Feedback::no);
    EXPECT_TRUE(view.isMuted());
}

TEST_F(MovieController, Fast_rewind_starts_a_stopped_movie_backwards_except_at_its_beginning) {
    addMovies(1);
    controller->performAction(action::fastRewind, Feedback::yes);
    EXPECT_EQ(view.rate(), 0.0F);
    EXPECT_EQ(posted(), text("Fast Rewind x%d", {QStringLiteral("0")}));
    view.setTime(6000);
    controller->performAction(action::fastRewind, Feedback::yes);
    EXPECT_EQ(view.rate(), -2.0F);
    EXPECT_EQ(posted(), text("Fast Rewind x%d", {QStringLiteral("2")}));
}

TEST_F(MovieController, Volume_commands_unmute_first_and_only_then_change_the_volume) {
    addMovies(1);
    view.setVolume(0.5F);
    const struct {
        std::int32_t control;
        bool muted;
        float volume;
    } cases[] = {
        {4, true, 0.5F},  {0, false, 0.5F}, {0, false, 0.6F}, {4, true, 0.6F}, {3, false, 0.6F},
        {3, false, 0.0F}, {2, false, 1.0F}, {1, false, 0.9F}, {4, true, 0.9F}, {4, false, 0.9F},
    };
    for (const auto& c : cases) {
        platform::MenuItem item;
        item.action = QStringLiteral("changeVolume");
        item.tag = c.control;
        controller->performMenuItem(item);
        EXPECT_EQ(view.isMuted(), c.muted) << c.control;
        EXPECT_FLOAT_EQ(view.volume(), c.volume) << c.control;
        const QString expected = c.control == 4 ? view.mutedInfoAsString() : view.volumeInfoAsString();
        EXPECT_EQ(posted(), expected.toStdString());
    }
}

TEST_F(MovieController, Jumps_go_by_the_interval_of_the_settings_and_steps_always_confirm) {
    addMovies(1);
    view.setTime(30 * 600);
    settings.defaults().setInteger(7, kQVJumpInterval);
    controller->performAction(action::jumpBackward, Feedback::yes);
    EXPECT_EQ(view.time(), 23 * 600);
    EXPECT_EQ(posted(), text("Jump Backward %d s", {QStringLiteral("7")}));
    controller->performAction(action::jumpForward, Feedback::no);
    EXPECT_EQ(view.time(), 30 * 600);
    EXPECT_EQ(posted(), text("Jump Backward %d s", {QStringLiteral("7")}));
    controller->performAction(action::stepForward, Feedback::no);
    EXPECT_EQ(posted(), text("Step Forward"));
    controller->performAction(action::stepBackward, Feedback::no);
    EXPECT_EQ(player().steps, (std::vector{1, -1}));
}

TEST_F(MovieController, Codes_without_an_action_do_nothing) {
    addMovies(1);
    view.start();
    const std::size_t pending = settings.runLoop.pendingCount();
    for (std::int32_t code = -1; code <= 40; ++code) {
        const bool hasAction = (code >= 0 && code <= 6) || code == 19 || code == 20 || code == 24 || code == 25 ||
                               (code >= 29 && code <= 32);
        if (hasAction)
            continue;
        controller->performAction(code, Feedback::yes);
        EXPECT_EQ(posted(), "") << code;
    }
    EXPECT_EQ(view.rate(), 1.0F);
    EXPECT_EQ(settings.runLoop.pendingCount(), pending);
}

TEST_F(MovieController, A_held_key_repeats_its_action_at_once_and_then_in_its_interval_until_any_key_is_released) {
    addMovies(1);
    view.setVolume(1.0F);
    EXPECT_TRUE(press(key::up));
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
    for (int repeat = 0; repeat < 4; ++repeat)
        EXPECT_TRUE(press(key::up, 0, true));
    EXPECT_FLOAT_EQ(view.volume(), 1.1F) << "the system's repeats add nothing";
    settings.runLoop.advance(0.41);
    EXPECT_FLOAT_EQ(view.volume(), 1.3F);

    EXPECT_TRUE(press(key::down)); // in place of the other
    settings.runLoop.advance(0.21);
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
    EXPECT_TRUE(release(u'x'));
    settings.runLoop.advance(5);
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
}

TEST_F(MovieController, A_repeated_action_may_end_the_repetition_and_ends_with_the_controller) {
    addMovies(1);
    view.setVolume(1.0F);
    auto stop = platform::NotificationCenter::defaultCenter().observe<QVMovieVolumeChangedNotification>(
        [this](const auto&) { controller->stopRepeatingAction(); });
    controller->startRepeatingAction(action::volumeUp, 0.2, Feedback::no);
    settings.runLoop.advance(1);
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);

    stop.reset();
    controller->startRepeatingAction(action::volumeUp, 0.2, Feedback::no);
    controller->performAction(action::quit, Feedback::yes);
    app.controllerObject = nullptr;
    controller.reset();
    settings.runLoop.advance(1);
    EXPECT_FLOAT_EQ(view.volume(), 1.2F);
    EXPECT_EQ(desktop.terminations, 0) << "what was put off went with the controller";
}

TEST_F(MovieController, A_held_arrow_doubles_the_rate_every_0_8_seconds_up_to_128) {
    addMovies(1);
    view.setTime(300 * 24);
    EXPECT_FALSE(press(key::left)) << "stopped: the view steps";
    view.start();
    EXPECT_TRUE(press(key::left, 0, true)) << "a repeat before any press";
    EXPECT_EQ(view.rate(), 1.0F);
    EXPECT_TRUE(press(key::left));
    EXPECT_EQ(view.rate(), -2.0F);
    for (const float expected : {-4.0F, -8.0F, -16.0F, -32.0F, -64.0F, -128.0F, -128.0F}) {
        settings.runLoop.advance(0.6);
        EXPECT_TRUE(press(key::left, 0, true));
        EXPECT_GT(view.rate(), expected - 0.5F) << "not yet";
        settings.runLoop.advance(0.25);
        EXPECT_TRUE(press(key::left, 0, true));
        EXPECT_EQ(view.rate(), expected);
    }
    EXPECT_TRUE(press(key::right, 0, true));
    EXPECT_EQ(view.rate(), -128.0F) << "the other arrow has not been pressed yet";
    EXPECT_TRUE(press(key::right));
    EXPECT_EQ(view.rate(), 2.0F);
}

TEST_F(MovieController, Held_movie_keys_go_back_through_the_list_but_one_movie_forward_only) {
    addMovies(4);
    EXPECT_TRUE(press(key::right, held::command));
    EXPECT_TRUE(press(key::right, held::command, true));
    EXPECT_EQ(playlist.index(), 1U);
    EXPECT_EQ(posted(), text("Next: %@", {playlist.currentInfoAsString()}));
    playlist.setIndex(3);
    EXPECT_TRUE(press(key::left, held::command));
    EXPECT_TRUE(press(key::left, held::command, true));
    EXPECT_EQ(playlist.index(), 1U);
    EXPECT_EQ(posted(), text("Previous: %@", {playlist.currentInfoAsString()}));
}

TEST_F(MovieController, The_next_movie_after_the_last_quits_when_the_settings_say_so) {
    settings.defaults().setBool(true, kQVPlaylistAutoQuit);
    platform::NotificationCenter::defaultCenter().post(QVPreferencesChangedNotification{kQVPlaylistAutoQuit});
    addMovies(1);
    EXPECT_TRUE(press(key::right, held::command));
    EXPECT_TRUE(playlist.isFinished());
    EXPECT_EQ(desktop.terminations, 0);
    settings.runLoop.advance(5);
    EXPECT_EQ(desktop.terminations, 1);
}

TEST_F(MovieController, Changing_screens_hides_the_window_and_moves_it_when_it_has_faded) {
    controller->performAction(action::previousScreen, Feedback::yes);
    settings.runLoop.advance(5);
    EXPECT_TRUE(mainWindow.calls.isEmpty()) << "there is no other screen";
    EXPECT_EQ(posted(), "");
    desktop.screenList.push_back({QRectF(1440, 0, 800, 600), false, 2, QStringLiteral("Tablet")});
    desktop.screenList.push_back({QRectF(2240, 0, 1024, 768), true, 3, QStringLiteral("Beamer")});
    EXPECT_TRUE(press(key::tab));
    EXPECT_EQ(posted(), text("Screen: Next"));
    EXPECT_EQ(settings.defaults().integerForKey(kQVMainWindowScreen), 2);
    const double reading = feedback().fadingInInterval() + feedback().fadingDelayInterval() + 0.1;
    settings.runLoop.advance(reading - 0.01);
    EXPECT_TRUE(mainWindow.calls.isEmpty());
    settings.runLoop.advance(0.02);
    EXPECT_EQ(mainWindow.calls, QStringList{QStringLiteral("hide")});
    settings.runLoop.advance(0.5);
    EXPECT_EQ(mainWindow.calls.size(), 2);
    EXPECT_EQ(mainWindow.adopted.number, 3U);
}

TEST_F(MovieController, Sleep_waits_for_its_confirmation_and_closing_the_window_quits) {
    controller->performAction(action::sleep, Feedback::no);
    EXPECT_EQ(desktop.sleeps, 0);
    EXPECT_FALSE(controller->windowShouldClose(window));
    settings.runLoop.advance(feedback().fadingInInterval() + feedback().fadingDelayInterval());
    EXPECT_EQ(desktop.sleeps, 1);
    EXPECT_EQ(desktop.terminations, 1);
}

TEST_F(MovieController, A_resized_main_window_gets_new_edge_areas_and_a_new_picture_size) {
    addMovies(1);
    view.setMovieSize(movieSize::fitWidth, QVMovieView::Recalculation::ifChanged);
    window.setDelegate(controller.get());
    window.setFrame(QRectF(0, 0, 720, 900));
    EXPECT_EQ(mainWindow.calls, (QStringList{QStringLiteral("remove"), QStringLiteral("add")}));
    EXPECT_EQ(view.frame().width(), 720);
    platform::Window other(QRectF(0, 0, 10, 10));
    controller->windowDidResize(other);
    EXPECT_EQ(mainWindow.calls.size(), 2);
    window.setKey(true);
    window.setKey(false);
    EXPECT_EQ(app.becameKey, 1);
    EXPECT_EQ(app.resignedKey, 1);
    window.setDelegate(nullptr);
}

TEST_F(MovieController, Commands_without_the_objects_they_act_on_are_left_out) {
    app.movieViewObject = nullptr;
    app.playlistObject = nullptr;
    app.subtitlesObject = nullptr;
    app.windowObject = nullptr;
    app.mainWindowObject = nullptr;
    app.playlistMenuObject = nullptr;
    app.subtitlesMenuObject = nullptr;
    controller = std::make_unique<QVMovieController>();
    app.controllerObject = controller.get();
    for (std::int32_t code = 0; code < action::sleep; ++code)
        controller->performAction(code, Feedback::yes);
    for (const char16_t character : u"0+sdclm\t \xF700\xF701\xF702\xF703") {
        for (const std::uint32_t modifiers : {0U, held::command, held::option, held::control})
            press(character, modifiers);
    }
    controller->setForceMuted(true);
    platform::NotificationCenter::defaultCenter().post(QVPlaylistChangedNotification{});
    settings.runLoop.advance(1);
    EXPECT_TRUE(controller->forceMuted());
}

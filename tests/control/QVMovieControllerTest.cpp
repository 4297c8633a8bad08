// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/QVMovieController.h"
#include "tests/control/MovieControllerRig.h"

namespace {

namespace key = platform::functionKey;
namespace held = platform::modifier;

class MovieController : public MovieControllerRig {
protected:
    qsizetype sleeps() const { return std::ranges::count(desktop.computer.commands, platform::PowerCommand::sleep); }
};

} // namespace

TEST_F(MovieController, Codes_act_and_confirm_as_asked_and_other_codes_do_nothing) {
    addMovies(1);
    const std::string volume = "Volume: ";
    const struct {
        std::int32_t code;
        const char* does;
        std::string confirms;
        bool always = false; // whatever the feedback says
    } cases[] = {
        {0, "rate 1", text("Movie: Play")},
        {1, "rate -2 muted", text("Fast Rewind x%d", {"2"})},
        {2, "rate 2 muted", text("Fast Forward x%d", {"2"})},
        {3, "step -1", text("Step Backward"), true},
        {4, "step 1", text("Step Forward"), true},
        {5, "time 6000", text("Jump Backward %d s", {"10"})},
        {6, "time 18000", text("Jump Forward %d s", {"10"})},
        {19, "volume 110", text("Volume: %@", {text("%d%%", {"110"}).c_str()})},
        {20, "volume 90", text("Volume: %@", {text("%d%%", {"90"}).c_str()})},
        {24, "cycle 1", "Subtitles: these"},
        {25, "cycle -1", "Subtitles: these"},
        {29, "hide", text("Screen: Next")},
        {30, "hide", text("Screen: Previous")},
        {31, "sleep", text("Sleep")},
        {32, "quit", text("Quit")},
    };
    desktop.screenList.push_back({platform::Rect(1440, 0, 1024, 768), true, 2, "Beamer"});
    const auto doneBy = [this](std::int32_t code, Feedback wanted) {
        player().steps.clear();
        subtitles.calls.clear();
        mainWindow.calls.clear();
        desktop.computer.commands.clear();
        desktop.terminations = 0;
        controller.setForceMuted(false);
        view.setRate(0);
        view.setTime(12000);
        view.setVolume(1);
        confirmations.last.clear();
        controller.performAction(code, wanted);
        QStringList done = subtitles.calls;
        if (view.rate() != 0)
            done << QString("rate %1").arg(view.rate());
        if (view.isMuted())
            done << "muted";
        if (!player().steps.empty())
            done << QString("step %1").arg(player().steps.front());
        else if (view.time() != 12000)
            done << QString("time %1").arg(view.time());
        if (view.volume() != 1)
            done << QString("volume %1").arg(qRound(view.volume() * 100));
        view.setRate(0);
        settings.runLoop.advance(confirmations.readingTime() + 0.11);
        done << mainWindow.calls;
        done << QStringList(sleeps(), "sleep") << QStringList(desktop.terminations, "quit");
        settings.runLoop.advance(1);
        return done.join(u' ').toStdString();
    };
    for (const auto& c : cases) {
        EXPECT_EQ(doneBy(c.code, Feedback::yes), c.does) << c.code;
        EXPECT_EQ(posted(), c.confirms) << c.code;
        EXPECT_EQ(doneBy(c.code, Feedback::no), c.does) << c.code;
        EXPECT_EQ(posted(), c.always ? c.confirms : "") << c.code;
    }
    for (const std::int32_t code : {-1, 7, 18, 21, 22, 23, 26, 28, 33}) {
        EXPECT_EQ(doneBy(code, Feedback::yes), "") << code;
        EXPECT_EQ(posted(), "") << code;
    }
}

TEST_F(MovieController, Keys_size_the_picture_and_say_so_and_menu_items_do_it_silently) {
    addMovies(1);
    const struct {
        char16_t character;
        std::int32_t code, size; // asked for, and then held by the view
        const char* says;
    } cases[] = {
        {u'0', 0, 0, "Size: Half"},    {u'1', 1, 1, "Size: Normal"},    {u'2', 2, 2, "Size: Double"},
        {u'3', 3, 3, "Size: Full"},    {u'4', 4, 4, "Size: Fit Width"}, {u'5', 5, 5, "Size: Fit Height"},
        {u'+', -2, 6, "Size: Bigger"}, {u'-', -3, 6, "Size: Smaller"},
    };
    for (const auto& c : cases) {
        const auto sizedBy = [&](auto&& act) {
            view.setMovieSize(c.size == 1 ? movieSize::half : movieSize::normal, QVMovieView::Recalculation::ifChanged);
            const double before = view.frame().width();
            confirmations.last.clear();
            act();
            EXPECT_EQ(view.movieSize(), c.size) << c.says;
            EXPECT_EQ(view.frame().width() > before, c.code != 0 && c.code != -3) << c.says;
        };
        sizedBy([&] { EXPECT_TRUE(press(c.character)); });
        EXPECT_EQ(posted(), text(c.says));
        sizedBy([&] { perform("changeSize", c.code); });
        EXPECT_EQ(posted(), "") << c.says;
    }
}

TEST_F(MovieController, Keys_walk_through_looping_displays_and_subtitles_in_both_directions) {
    EXPECT_TRUE(press(u'l'));
    EXPECT_EQ(playlist.looping(), looping::one);
    EXPECT_EQ(posted(), playlist.loopingInfoAsString().toStdString());
    EXPECT_TRUE(press(u'l', held::shift));
    EXPECT_EQ(playlist.looping(), looping::off);
    EXPECT_EQ(posted(), playlist.loopingInfoAsString().toStdString());
    EXPECT_TRUE(press(u'd') && press(u'd', held::shift));
    EXPECT_EQ(services.calls, (QStringList{"display 1", "display -1"}));
    EXPECT_TRUE(press(u's') && press(u's', held::shift));
    EXPECT_EQ(subtitles.calls, (QStringList{"cycle 1", "cycle -1"}));
    EXPECT_EQ(posted(), "Subtitles: these");
}

TEST_F(MovieController, The_controller_bar_is_confirmed_by_key_but_not_in_the_menu) {
    addMovies(1);
    EXPECT_TRUE(press(u'c'));
    EXPECT_TRUE(view.isControllerVisible());
    EXPECT_EQ(posted(), text("Controller: On"));
    EXPECT_TRUE(press(u'c'));
    EXPECT_FALSE(view.isControllerVisible());
    EXPECT_EQ(posted(), text("Controller: Off"));
    perform("toggleController", 0);
    EXPECT_TRUE(view.isControllerVisible());
    EXPECT_EQ(posted(), text("Controller: Off")) << "nothing new";
}

TEST_F(MovieController, The_space_bar_only_brings_fast_motion_back_to_normal_speed) {
    addMovies(1);
    EXPECT_FALSE(press(key::space));
    view.start();
    EXPECT_FALSE(press(key::space));
    controller.performAction(action::fastForward, Feedback::yes);
    EXPECT_TRUE(press(key::space, 0, true));
    EXPECT_EQ(view.rate(), 2.0F);
    EXPECT_TRUE(press(key::space));
    EXPECT_EQ(view.rate(), 1.0F);
    EXPECT_FALSE(view.isMuted());
    EXPECT_EQ(posted(), text("Movie: Play"));
}

TEST_F(MovieController, Keys_with_modifiers_jump_and_go_to_the_ends_of_the_movie) {
    addMovies(1);
    view.setTime(12000);
    const struct {
        char16_t character;
        std::uint32_t modifiers;
        std::int32_t time;
        std::string says;
    } cases[] = {
        {key::left, held::control, 6000, text("Jump Backward %d s", {"10"})},
        {key::right, held::control, 12000, text("Jump Forward %d s", {"10"})},
        {key::right, held::option, view.movie()->duration(), text("Movie: End")},
        {key::left, held::option, 0, text("Movie: Beginning")},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(press(c.character, c.modifiers));
        EXPECT_EQ(view.time(), c.time) << c.says;
        EXPECT_EQ(posted(), c.says);
    }
    view.setVolume(1);
    EXPECT_TRUE(press(key::up, held::option) && press(key::down, held::option));
    EXPECT_EQ(view.volume(), 1.0F) << "consumed without effect";
}

TEST_F(MovieController, What_is_the_applications_is_asked_of_it) {
    perform("doOpen", 0);
    perform("doOpenFolder", 0);
    perform("doOpenURL", 1);
    perform("showHelp", 0);
    perform("showPreferences", 0);
    perform("showInformation", 0);
    perform("donate", 0);
    perform("cycleDisplays", -1);
    controller.windowDidBecomeKey(window);
    controller.windowDidResignKey(window);
    EXPECT_EQ(services.calls, (QStringList{"open", "open folder", "open URL 1", "help", "preferences", "information",
                                           "donate", "display -1", "became key", "resigned key"}));
    for (const bool hasPage : {true, false}) {
        services.hasDonationPage = hasPage;
        platform::MenuItem item;
        item.action = "donate";
        EXPECT_EQ(controller.validateMenuItem(item), hasPage);
        EXPECT_EQ(item.hidden, !hasPage);
    }
}

TEST_F(MovieController, Play_or_pause_first_leaves_fast_motion_and_brings_the_sound_back) {
    view.setMuted(true);
    addMovies(2);
    EXPECT_TRUE(view.isMuted()) << "a movie that comes brings back only what fast motion took";
    view.setMuted(false);
    controller.performAction(action::playPause, Feedback::no);
    EXPECT_EQ(pointer.cursorHides, 1);
    controller.performAction(action::fastForward, Feedback::yes);
    controller.performAction(action::fastForward, Feedback::yes);
    EXPECT_EQ(view.rate(), 4.0F);
    EXPECT_TRUE(view.isMuted());
    EXPECT_EQ(posted(), text("Fast Forward x%d", {"4"}));
    controller.performAction(action::playPause, Feedback::yes);
    EXPECT_EQ(view.rate(), 1.0F);
    EXPECT_FALSE(view.isMuted());
    EXPECT_EQ(posted(), text("Movie: Play"));
    controller.performAction(action::playPause, Feedback::yes);
    EXPECT_FALSE(view.isPlaying());
    EXPECT_EQ(pointer.cursorHides, 2) << "hidden when it plays on, not when it pauses";

    view.start();
    controller.performAction(action::fastForward, Feedback::no);
    playlist.playNext();
    EXPECT_FALSE(controller.forceMuted() || view.isMuted()) << "a new movie is heard";
    view.start();
    view.setMuted(true);
    controller.performAction(action::fastRewind, Feedback::no);
    EXPECT_EQ(view.rate(), -2.0F);
    controller.performAction(action::playPause, Feedback::no);
    EXPECT_TRUE(view.isMuted()) << "it was off before";
}

TEST_F(MovieController, Fast_rewind_starts_a_stopped_movie_backwards_except_at_its_beginning) {
    addMovies(1);
    controller.performAction(action::fastRewind, Feedback::yes);
    EXPECT_EQ(view.rate(), 0.0F);
    view.setTime(6000);
    controller.performAction(action::fastRewind, Feedback::yes);
    EXPECT_EQ(view.rate(), -2.0F);
    EXPECT_EQ(posted(), text("Fast Rewind x%d", {"2"}));
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
        perform("changeVolume", c.control);
        EXPECT_EQ(view.isMuted(), c.muted) << c.control;
        EXPECT_FLOAT_EQ(view.volume(), c.volume) << c.control;
        const QString expected = c.control == 4 ? view.mutedInfoAsString() : view.volumeInfoAsString();
        EXPECT_EQ(posted(), expected.toStdString());
    }
}

TEST_F(MovieController, A_held_key_repeats_its_action_at_once_and_then_in_its_interval_until_any_key_is_released) {
    addMovies(1);
    view.setVolume(1.0F);
    EXPECT_TRUE(press(key::up));
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
    EXPECT_TRUE(press(key::up, 0, true));
    EXPECT_FLOAT_EQ(view.volume(), 1.1F) << "the system's repeats add nothing";
    settings.runLoop.advance(0.41);
    EXPECT_FLOAT_EQ(view.volume(), 1.3F);
    EXPECT_TRUE(press(key::down)); // in place of the other
    settings.runLoop.advance(0.21);
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
    platform::KeyEvent release;
    release.type = platform::KeyEvent::Type::up;
    EXPECT_TRUE(controller.processKeyboardEvent(release));
    settings.runLoop.advance(5);
    EXPECT_FLOAT_EQ(view.volume(), 1.1F);
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
        const float before = view.rate();
        settings.runLoop.advance(0.75);
        EXPECT_TRUE(press(key::left, 0, true));
        EXPECT_EQ(view.rate(), before) << "not yet";
        settings.runLoop.advance(0.1);
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
    playlist.setIndex(3);
    EXPECT_TRUE(press(key::left, held::command));
    EXPECT_TRUE(press(key::left, held::command, true));
    EXPECT_EQ(playlist.index(), 1U);
    EXPECT_EQ(posted(), text("Previous: %@", {playlist.currentInfoAsString()}));
}

TEST_F(MovieController, Changing_screens_hides_the_window_and_moves_it_when_it_has_faded) {
    controller.performAction(action::previousScreen, Feedback::yes);
    settings.runLoop.advance(5);
    EXPECT_TRUE(mainWindow.calls.isEmpty()) << "there is no other screen";
    EXPECT_EQ(posted(), "");
    desktop.screenList.push_back({platform::Rect(1440, 0, 800, 600), false, 2, "Tablet"});
    desktop.screenList.push_back({platform::Rect(2240, 0, 1024, 768), true, 3, "Beamer"});
    EXPECT_TRUE(press(key::tab));
    EXPECT_EQ(posted(), text("Screen: Next"));
    EXPECT_EQ(settings.defaults().integerForKey(kQVMainWindowScreen), 2);
    settings.runLoop.advance(confirmations.readingTime() + 0.09);
    EXPECT_TRUE(mainWindow.calls.isEmpty()) << "the confirmation is being read";
    settings.runLoop.advance(0.02);
    EXPECT_EQ(mainWindow.calls, QStringList{"hide"});
    settings.runLoop.advance(0.45);
    EXPECT_EQ(mainWindow.adopted.number, 0U);
    settings.runLoop.advance(0.5);
    EXPECT_EQ(mainWindow.adopted.number, 3U);
}

TEST_F(MovieController, Sleep_and_quit_wait_until_their_confirmation_is_read_and_closing_the_window_quits_at_once) {
    const double reading = confirmations.readingTime();
    controller.performAction(action::sleep, Feedback::no);
    controller.performAction(action::quit, Feedback::yes);
    settings.runLoop.advance(reading - 0.01);
    EXPECT_EQ(sleeps(), 0);
    EXPECT_EQ(desktop.terminations, 0);
    settings.runLoop.advance(0.02);
    EXPECT_EQ(sleeps(), 1);
    EXPECT_EQ(desktop.terminations, 1);
    EXPECT_FALSE(controller.windowShouldClose(window));
    settings.runLoop.runPending();
    EXPECT_EQ(desktop.terminations, 2);
}

TEST_F(MovieController, A_resized_main_window_gets_new_edge_areas_and_a_new_picture_size) {
    addMovies(1);
    view.setMovieSize(movieSize::fitWidth, QVMovieView::Recalculation::ifChanged);
    window.setDelegate(&controller);
    window.setFrame(platform::Rect(0, 0, 720, 900));
    EXPECT_EQ(mainWindow.calls, (QStringList{"remove", "add"}));
    EXPECT_EQ(view.frame().width(), 720);
    window.setDelegate(nullptr);
}

TEST_F(MovieController, Exactly_the_item_of_the_present_size_looping_and_movie_is_checked) {
    addMovies(3);
    playlist.setIndex(1);
    playlist.setLooping(looping::one);
    view.setMovieSize(movieSize::fitWidth, QVMovieView::Recalculation::ifChanged);
    for (const auto& [action, checked] :
         {std::pair{"changeSize", movieSize::fitWidth}, {"changeLooping", looping::one}, {"changeMovie", 1}}) {
        for (int tag = -3; tag <= 6; ++tag) {
            platform::MenuItem validated = item(action, tag);
            EXPECT_TRUE(controller.validateMenuItem(validated));
            EXPECT_EQ(validated.state, tag == checked) << action << tag;
        }
    }
    const auto isEnabled = [this](const char* action, int tag) {
        platform::MenuItem validated = item(action, tag);
        return controller.validateMenuItem(validated);
    };
    EXPECT_TRUE(isEnabled("playPrevNext", -1) && isEnabled("playPrevNext", 1));
    playlist.setIndex(2);
    EXPECT_FALSE(isEnabled("playPrevNext", 1)) << "nothing follows the last movie";
    EXPECT_TRUE(isEnabled("playPrevNext", -1));
    playlist.setIndex(0);
    EXPECT_FALSE(isEnabled("playPrevNext", -1)) << "nothing precedes the first";
    EXPECT_TRUE(isEnabled("playPrevNext", 1) && isEnabled("playPrevNext", 0));
    platform::MenuItem none = item("changeSubtitles", -1);
    EXPECT_FALSE(controller.validateMenuItem(none) || none.state) << "no tracks";
    const auto movie = open("file:///movies/a.mp4");
    movie->addSubtitleFile("German English");
    post(QVPlaylistMovieChangedNotification{movie});
    for (const int tag : {-1, 0, 1, 2}) {
        platform::MenuItem track = item("changeSubtitles", tag);
        EXPECT_TRUE(controller.validateMenuItem(track));
        EXPECT_EQ(track.state, track.tag == static_cast<int>(subtitles.index())) << tag;
    }
    EXPECT_EQ(subtitles.index(), 0U);
    EXPECT_TRUE(isEnabled("jump", 1) && isEnabled("noSuchAction", 0));
}

TEST_F(MovieController, Play_and_motion_items_are_named_after_what_they_would_do) {
    addMovies(1);
    const auto title = [this](const char* action, int tag) {
        platform::MenuItem validated = item(action, tag);
        controller.validateMenuItem(validated);
        return validated.title.toStdString();
    };
    const struct {
        float rate;
        const char *play, *forward, *backward;
    } cases[] = {{0, "Play", "Step Forward", "Step Backward"},
                 {1, "Pause", "Fast Forward", "Rewind"},
                 {-2, "Play", "Fast Forward", "Rewind"}};
    for (const auto& c : cases) {
        view.setRate(c.rate);
        EXPECT_EQ(title("startStop", 0), text(c.play)) << c.rate;
        EXPECT_EQ(title("fastForwardRewind", 1), text(c.forward)) << c.rate;
        EXPECT_EQ(title("fastForwardRewind", -1), text(c.backward)) << c.rate;
    }
}

TEST_F(MovieController, Items_carry_their_tag_to_what_they_act_on) {
    addMovies(3);
    perform("fastForwardRewind", -1);
    EXPECT_EQ(player().steps, std::vector{-1});
    perform("startStop", 0);
    perform("fastForwardRewind", 1);
    EXPECT_EQ(view.rate(), 2.0F);
    perform("changeMovie", 2);
    EXPECT_EQ(playlist.index(), 2U);
    perform("playPrevNext", -1);
    EXPECT_EQ(playlist.index(), 1U);
    perform("changeLooping", looping::all);
    EXPECT_EQ(playlist.looping(), looping::all);
    perform("changeSize", movieSize::half);
    EXPECT_EQ(view.movieSize(), movieSize::half);
    EXPECT_EQ(posted(), text("Previous: %@", {playlist.currentInfoAsString()}));
    perform("jump", 1);
    EXPECT_EQ(view.time(), 10 * 600);
    EXPECT_EQ(posted(), text("Jump Forward %d s", {"10"}));
    perform("changeSubtitles", 3);
    EXPECT_EQ(subtitles.calls, QStringList{"track 3"});
    perform("beginningEnd", 1);
    EXPECT_EQ(view.time(), view.movie()->duration());
    perform("beginningEnd", -1);
    EXPECT_EQ(view.time(), 0);
}

TEST_F(MovieController, The_playlist_menu_lists_the_file_names_as_it_opens) {
    playlistMenu.addItem("old", QString(), 0);
    add({QUrl::fromLocalFile("/a/50% & #1 \u00e4.mp4"), QUrl("http://host/dir/b%20c.mkv?x=/y"),
         QUrl("http://host/live/")});
    playlistMenu.willOpen();
    EXPECT_EQ(titles(playlistMenu), "50% & #1 \u00e4.mp4|b c.mkv|live|-|" + text("More..."));
    EXPECT_EQ(playlistMenu.itemAt(2).tag, 2);
    EXPECT_EQ(playlistMenu.itemAt(2).action, "changeMovie");
    // Arranged while the menu is open: what was chosen is the movie that the item named.
    add({QUrl::fromLocalFile("/a/a.mp4")});
    settings.defaults().setInteger(Arrangement::sorted, kQVPlaylistDefaultArrangement);
    playlist.rearrange();
    perform("changeMovie", 0);
    EXPECT_EQ(playlist.currentInfoAsString(), "50% & #1 \u00e4.mp4 (1/4)");
    perform("changeMovie", 1);
    EXPECT_EQ(playlist.currentInfoAsString(), "b c.mkv (3/4)");
    playlistMenu.willOpen();
    EXPECT_EQ(titles(playlistMenu), "50% & #1 \u00e4.mp4|a.mp4|b c.mkv|live|-|" + text("More..."));
}

TEST_F(MovieController, The_playlist_menu_shows_the_neighbourhood_of_the_current_movie) {
    addMovies(1000);
    settings.runLoop.advance(1); // long lists come in parts
    const struct {
        std::uint32_t current;
        int first, last;
    } cases[] = {{500, 490, 510}, {3, 0, 20}, {999, 979, 999}};
    for (const auto& c : cases) {
        playlist.setIndex(c.current);
        playlistMenu.willOpen();
        ASSERT_EQ(playlistMenu.count(), 23);
        EXPECT_EQ(playlistMenu.itemAt(0).tag, c.first);
        EXPECT_EQ(playlistMenu.itemAt(20).tag, c.last);
        EXPECT_EQ(playlistMenu.itemAt(20).title, QString("movie %1.mp4").arg(c.last + 1));
    }
    controller.performMenuItem(playlistMenu.itemAt(22));
    EXPECT_EQ(services.calls, QStringList{"playlist"});

    add({QUrl::fromLocalFile("/a/" + QString(50, 'a') + "\U0001F3AC" + QString(100, 'b') + "part 2.mp4")});
    settings.runLoop.advance(1);
    playlist.setIndex(1000);
    playlistMenu.willOpen();
    const QString title = playlistMenu.itemAt(20).title;
    EXPECT_LE(title.size(), 60);
    EXPECT_TRUE(title.startsWith("aaa") && title.contains(QChar(0x2026)) && title.endsWith("part 2.mp4"))
        << title.toStdString();
}

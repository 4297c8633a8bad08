// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QVAppController.h"

#include "overlays/QVOSDOverlay.h"
#include "playback/QVMovie.h"
#include "settings/OverlayStyle.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "tests/app/AppRig.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

/// Nothing happens by itself at launch.
QVariantMap quiet(QVariantMap settings = {}) {
    settings.insert(kQVOnLaunchDefaultAction, settings.value(kQVOnLaunchDefaultAction, 0));
    return settings;
}

} // namespace

// Launch

TEST(AppController, the_launch_shows_the_window_and_then_goes_through_its_steps_before_the_files) {
    AppRig rig({{kQVVolumeSave, true},
                {kQVVolumeSavedLevel, 0.5},
                {kQVForceScreenBrightness, true},
                {kQVScreenBrightness, 0.75},
                {kQVOSDStateSave, true},
                {kQVOSDStateSavedType, 1}});
    rig.desktop.brightnessLevels[1] = 0.25F;
    rig.steps.checksVersion = true;
    EXPECT_TRUE(rig.app.openFile(rig.file("a.mp4")));
    rig.app.applicationWillFinishLaunching();
    EXPECT_EQ(rig.toolkit.entered, 1);
    EXPECT_TRUE(rig.window.isOrderedIn());
    EXPECT_EQ(rig.window.firstResponder(), &rig.view);
    EXPECT_NE(rig.window.delegate(), nullptr);
    EXPECT_FLOAT_EQ(rig.view.volume(), 0.5F);
    EXPECT_FLOAT_EQ(rig.desktop.brightnessLevels[1], 0.75F);
    rig.app.applicationDidFinishLaunching();
    EXPECT_TRUE(rig.events.isEmpty());

    rig.fade();
    EXPECT_GT(rig.window.alphaValue(), 0.9F);
    EXPECT_EQ(rig.events.join(u' ').toStdString(), "configure donation version open a.mp4");
    EXPECT_TRUE(rig.desktop.openPanelFolders.isEmpty()) << "with a file the launch action does not run";
    EXPECT_FALSE(rig.app.isLaunching());
    EXPECT_TRUE(rig.view.isPlaying());
    EXPECT_EQ(rig.objects->display().displayType(), 1);

    rig.app.applicationShouldTerminate();
    EXPECT_FLOAT_EQ(rig.desktop.brightnessLevels[1], 0.25F) << "the screen gets back the brightness found at launch";
}

TEST(AppController, what_the_settings_do_not_keep_stays_as_it_is_found_at_launch) {
    AppRig rig(quiet({{kQVVolumeSave, false},
                      {kQVVolumeSavedLevel, 0.5},
                      {kQVForceScreenBrightness, false},
                      {kQVScreenBrightness, 0.75},
                      {kQVOSDStateSave, false},
                      {kQVOSDStateSavedType, 3}}));
    rig.desktop.brightnessLevels[1] = 0.25F;
    const float volume = rig.view.volume();
    rig.launch();
    EXPECT_EQ(rig.view.volume(), volume);
    EXPECT_EQ(rig.desktop.brightnessLevels[1], 0.25F);
    EXPECT_EQ(rig.objects->display().displayType(), 0);

    // A screen that comes only later was never asked: it ends at full brightness.
    AppRig alone(quiet());
    const auto later = std::exchange(alone.desktop.screenList, {});
    alone.launch();
    alone.desktop.screenList = later;
    alone.desktop.brightnessLevels[1] = 0.25F;
    alone.app.applicationShouldTerminate();
    EXPECT_EQ(alone.desktop.brightnessLevels[1], 1);
}

TEST(AppController, a_changed_brightness_is_on_the_screen_at_once) {
    AppRig rig({{kQVScreenBrightness, 0.75}});
    rig.desktop.brightnessLevels[1] = 0.25F;
    const auto change = [&](const QString& key, const QVariant& value) {
        rig.settings.defaults().setObject(value, key);
        rig.settings.notifications.post(QVPreferencesChangedNotification{key, {}});
        return rig.desktop.brightnessLevels.value(1);
    };
    EXPECT_EQ(change(kQVForceScreenBrightness, true), 0.25F) << "not before the launch";
    change(kQVForceScreenBrightness, false);
    rig.launch();
    EXPECT_EQ(change(kQVScreenBrightness, 0.5), 0.25F) << "it is not forced";
    EXPECT_EQ(change(kQVForceScreenBrightness, true), 0.5F);
    EXPECT_EQ(change(kQVScreenBrightness, 0.9), 0.9F);
    EXPECT_EQ(change(kQVForceScreenBrightness, false), 0.25F) << "as it was found";
    change(kQVForceScreenBrightness, true);
    rig.app.applicationShouldTerminate();
    EXPECT_EQ(rig.desktop.brightnessLevels[1], 0.25F);
    EXPECT_EQ(change(kQVScreenBrightness, 0.4), 0.25F) << "it has ended";
    // One that cannot be read is left alone when it is no longer forced.
    AppRig unknown;
    unknown.launch();
    unknown.settings.notifications.post(QVPreferencesChangedNotification{kQVForceScreenBrightness, {}});
    EXPECT_TRUE(unknown.desktop.brightnessLevels.isEmpty());
}

TEST(AppController, tracing_follows_its_setting_from_the_launch_on) {
    for (const bool on : {true, false}) {
        AppRig rig(quiet({{kQVEnableTrace, on}}));
        EXPECT_EQ(gTracingEnabled, on);
        rig.settings.defaults().setBool(!on, kQVEnableTrace);
        rig.settings.notifications.post(QVPreferencesChangedNotification{kQVJumpInterval, {}});
        EXPECT_EQ(gTracingEnabled, on) << "another setting";
        rig.settings.notifications.post(QVPreferencesChangedNotification{kQVEnableTrace, {}});
        EXPECT_EQ(gTracingEnabled, !on);
    }
    gTracingEnabled = false;
}

TEST(AppController, without_files_the_launch_does_what_the_settings_say) {
    struct Case {
        int launchAction;
        const char* events;
        int panels;
    };
    for (const Case& c : {Case{0, "configure donation", 0}, Case{1, "configure donation open a.avi", 0},
                          Case{2, "configure donation open b.avi", 1}, Case{7, "configure donation", 0}}) {
        AppRig rig({{kQVOnLaunchDefaultAction, c.launchAction},
                    {kNSNavLastRootDirectory, "~/movies"},
                    {kQVSavedState, QVariantMap{{"QVSavedPlaylist", QVariantList{"file:///movies/a.avi"}}}}});
        rig.desktop.openPanelAnswers.push_back({rig.file("b.avi")});
        rig.launch();
        EXPECT_EQ(rig.events.join(u' ').toStdString(), c.events) << c.launchAction;
        EXPECT_EQ(rig.desktop.openPanelFolders, QStringList(c.panels, QDir::homePath() + "/movies"));
    }
}

// Files handed over

TEST(AppController, files_that_arrive_together_are_one_batch_appended_where_option_was_held_at_the_first) {
    AppRig rig(quiet());
    rig.launch();
    const QString a = rig.file("a.mp4"), b = rig.file("b.mp4");
    const auto handOver = [&](std::uint32_t first, std::uint32_t second) {
        const Posts<QVPlaylistChangedNotification> adds(rig.settings.notifications);
        rig.desktop.heldModifiers = first;
        rig.app.openFile(a);
        rig.desktop.heldModifiers = second;
        rig.app.openFile("http://example.org/4%20x.mp4");
        rig.desktop.heldModifiers = 0;
        EXPECT_EQ(adds.count, 0);
        rig.settings.runLoop.runPending();
        EXPECT_EQ(adds.count, 1);
        return rig.listed().toStdString();
    };
    using namespace platform::modifier;
    EXPECT_EQ(handOver(0, option), "a.mp4 4 x.mp4");
    EXPECT_EQ(handOver(option | shift, 0), "a.mp4 4 x.mp4 a.mp4 4 x.mp4");
    EXPECT_EQ(handOver(shift | command, 0), "a.mp4 4 x.mp4");
    // The panel asks when it has been answered.
    rig.desktop.openPanelAnswers = {{b}, {a}};
    rig.desktop.heldModifiers = option;
    rig.app.doOpen();
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4 4 x.mp4 b.mp4");
    rig.desktop.heldModifiers = 0;
    rig.app.doOpen();
    rig.app.doOpen();
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4") << "a cancelled panel adds nothing";
}

TEST(AppController, files_handed_over_while_the_first_ones_are_reported_are_not_lost) {
    for (const bool launching : {true, false}) {
        AppRig rig(quiet());
        const QString broken = rig.file("broken.mp4");
        rig.toolkit.scripts[QUrl::fromLocalFile(broken)] = {platform::movieError::couldNotOpen};
        if (!launching)
            rig.launch();
        rig.desktop.whileAlertIsUp = [&rig] {
            rig.desktop.whileAlertIsUp = nullptr;
            rig.app.openFile(rig.file("later.mp4"));
            rig.settings.runLoop.advance(0.02);
        };
        rig.app.openFile(broken);
        rig.app.openFile(rig.file("good.mp4"));
        if (launching)
            rig.launch();
        EXPECT_EQ(rig.listed().toStdString(), "later.mp4") << launching;
    }
}

// The pointer

TEST(AppController, the_pointer_hides_after_the_delay_and_mouse_moves_put_it_off) {
    AppRig rig(quiet({{kQVCursorAutohideDelay, 10}}));
    rig.launch();
    platform::MouseEvent move;
    move.locationInWindow = QPointF(700, 450);
    rig.window.dispatchMouseMoved(move);
    rig.settings.runLoop.advance(9);
    rig.window.dispatchMouseMoved(move);
    rig.settings.runLoop.advance(9);
    rig.window.dispatchMouseUp(move);
    rig.settings.runLoop.advance(9.9);
    EXPECT_FALSE(rig.host.pointerHidden);
    rig.settings.runLoop.advance(0.1);
    EXPECT_TRUE(rig.host.pointerHidden);

    rig.window.setKey(true);
    rig.window.setKey(false);
    EXPECT_FALSE(rig.host.pointerHidden) << "the pointer belongs to another window";
    rig.app.applicationDidBecomeActive();
    rig.settings.runLoop.advance(10);
    EXPECT_TRUE(rig.host.pointerHidden);

    rig.window.setKey(true);
    rig.window.setKey(false);
    rig.settings.defaults().setInteger(11, kQVCursorAutohideDelay);
    rig.settings.runLoop.advance(1000);
    EXPECT_FALSE(rig.host.pointerHidden) << "never was chosen meanwhile";
    rig.window.setKey(true);
    rig.window.setKey(false);
    rig.app.applicationDidBecomeActive();
    rig.settings.runLoop.advance(1000);
    EXPECT_FALSE(rig.host.pointerHidden) << "more than ten seconds is never";
    rig.settings.defaults().setInteger(10, kQVCursorAutohideDelay);
    rig.window.setKey(true);
    rig.window.setHost(nullptr);
    rig.settings.runLoop.advance(10); // nobody to hide the pointer
}

// Activation

TEST(AppController, losing_the_keyboard_pauses_and_getting_it_back_restores_what_was) {
    struct Case {
        bool pauses, plays;
        bool playsMeanwhile, playsAfter;
    };
    for (const Case& c :
         {Case{true, true, false, true}, Case{true, false, false, false}, Case{false, true, true, true}}) {
        AppRig rig(quiet({{kQVPauseOnDeactivate, c.pauses}, {kQVMainWindowLayer, 5}}));
        rig.app.openFile(rig.file("a.mp4"));
        rig.launch();
        rig.view.stop();
        rig.window.setKey(true);
        EXPECT_FALSE(rig.view.isPlaying()) << "nothing was paused yet";
        if (c.plays)
            rig.view.setRate(2);
        else
            rig.view.stop();
        rig.window.setKey(false);
        EXPECT_EQ(rig.view.isPlaying(), c.playsMeanwhile);
        EXPECT_EQ(rig.window.level(), platform::windowLevel::normal);
        rig.window.setKey(true);
        EXPECT_EQ(rig.view.isPlaying(), c.playsAfter);
        EXPECT_EQ(rig.view.rate(), c.playsAfter ? 2.0F : 0.0F);
        EXPECT_EQ(rig.window.level(), 5);
        // What was paused is put back once.
        rig.view.stop();
        rig.window.setKey(false);
        rig.settings.defaults().setBool(false, kQVPauseOnDeactivate);
        rig.window.setKey(true);
        EXPECT_FALSE(rig.view.isPlaying());
    }
}

TEST(AppController, an_inactive_application_lowers_its_window_and_may_hide_it) {
    for (const bool hides : {true, false}) {
        AppRig rig(quiet({{kQVHideOnDeactivate, hides}, {kQVMainWindowLayer, 5}}));
        rig.launch();
        const float shown = rig.window.alphaValue();
        rig.window.hide();
        rig.fade();
        rig.app.applicationWillBecomeActive();
        rig.fade();
        EXPECT_EQ(rig.window.alphaValue(), 0.0F) << "what another one hid stays hidden";
        rig.window.show();
        rig.fade();
        rig.host.changes.clear();
        rig.app.applicationWillResignActive();
        rig.fade();
        EXPECT_EQ(rig.host.changes.count("level"), 1) << "the native window's level follows";
        EXPECT_EQ(rig.window.level(), platform::windowLevel::normal);
        EXPECT_EQ(rig.window.alphaValue(), hides ? 0.0F : shown);
        EXPECT_TRUE(rig.desktop.terminationReplies.empty());
        rig.app.applicationWillBecomeActive();
        rig.fade();
        EXPECT_EQ(rig.window.level(), 5);
        EXPECT_EQ(rig.host.changes.count("level"), 2);
        EXPECT_EQ(rig.window.alphaValue(), shown);
    }
}

TEST(AppController, a_hidden_window_is_minimised_until_the_application_is_active_again) {
    AppRig rig(quiet({{kQVHideOnDeactivate, true}}));
    rig.launch();
    EXPECT_FALSE(rig.window.minimizesWhenHidden());
    rig.app.applicationWillResignActive();
    EXPECT_TRUE(rig.window.minimizesWhenHidden());
    rig.app.applicationWillBecomeActive();
    EXPECT_FALSE(rig.window.minimizesWhenHidden());
}

TEST(AppController, a_movie_change_drops_the_forced_pause) {
    AppRig rig(quiet({{kQVPauseOnDeactivate, true}, {kQVPlaylistAutoPlay, false}}));
    rig.app.openFile(rig.file("a.mp4"));
    rig.app.openFile(rig.file("b.mp4"));
    rig.launch();
    rig.window.setKey(true);
    rig.view.setRate(2);
    rig.window.setKey(false);
    rig.objects->playlist().playNext();
    rig.window.setKey(true);
    EXPECT_NE(rig.view.rate(), 2) << "that was the movie before";
}

TEST(AppController, the_mouse_plays_changes_the_volume_and_goes_through_the_list) {
    AppRig rig(quiet({{kQVPlaylistAutoPlay, false}, {kQVPlaylistDefaultArrangement, 0}}));
    rig.app.openFile(rig.file("a.mp4"));
    rig.app.openFile(rig.file("b.mp4"));
    rig.launch();
    using platform::MouseButton;
    const auto press = [&](MouseButton button, int clicks = 1) {
        platform::MouseEvent event;
        event.locationInWindow = rig.window.contentView().bounds().center();
        event.button = button;
        event.clickCount = clicks;
        rig.window.dispatchMouseDown(event);
        rig.window.dispatchMouseUp(event);
    };
    press(MouseButton::left);
    EXPECT_FALSE(rig.view.isPlaying()) << "one click begins a drag";
    press(MouseButton::left, 2);
    EXPECT_TRUE(rig.view.isPlaying());
    press(MouseButton::left, 2);
    EXPECT_FALSE(rig.view.isPlaying());
    press(MouseButton::middle);
    EXPECT_TRUE(rig.view.isMuted());
    press(MouseButton::middle, 2);
    EXPECT_TRUE(rig.view.isMuted()) << "a double click has told its second press already";
    press(MouseButton::middle);
    EXPECT_FALSE(rig.view.isMuted());
    press(MouseButton::forward);
    EXPECT_EQ(rig.view.movie()->url().fileName(), "b.mp4");
    press(MouseButton::back);
    EXPECT_EQ(rig.view.movie()->url().fileName(), "a.mp4");
    press(MouseButton::other);
    const float volume = rig.view.volume();
    rig.window.dispatchWheel(-3);
    const float softer = rig.view.volume();
    EXPECT_LT(softer, volume);
    rig.window.dispatchWheel(3);
    EXPECT_NEAR(rig.view.volume(), volume, 0.01F);
    rig.window.dispatchWheel(-100);
    EXPECT_GT(rig.view.volume(), 0) << "a wheel that spins freely";
    EXPECT_LT(rig.view.volume(), softer);
}

TEST(AppController, the_window_stands_on_the_chosen_screen_and_follows_its_size) {
    const platform::Screen main{platform::Rect(0, 0, 1440, 900), true, 1, "Main"};
    platform::Screen second{platform::Rect(1440, 100, 1920, 1080), true, 2, "Second"};
    struct Case {
        int index;
        bool isScreen;
        platform::Rect frame;
    };
    for (const Case& c : {Case{1, true, second.frame}, Case{1, false, main.frame}, Case{2, true, main.frame},
                          Case{-1, true, main.frame}}) {
        AppRig rig({{kQVMainWindowScreen, c.index}}, {main, {second.frame, c.isScreen, 2, "Second"}});
        EXPECT_EQ(rig.window.frame(), c.frame) << c.index;
    }

    AppRig rig(quiet());
    rig.launch();
    rig.desktop.screenList = {main, second};
    rig.window.adoptScreen(second);
    second.frame = platform::Rect(1440, 0, 2560, 1440);
    rig.desktop.screenList = {main, second};
    rig.app.applicationDidChangeScreenParameters();
    EXPECT_EQ(rig.window.frame(), second.frame);
    rig.desktop.screenList = {main};
    rig.app.applicationDidChangeScreenParameters();
    EXPECT_EQ(rig.window.frame(), main.frame) << "its screen went away";
    rig.desktop.screenList = {};
    rig.app.applicationDidChangeScreenParameters();
    EXPECT_EQ(rig.window.frame(), main.frame);
}

TEST(AppController, the_window_never_rests_shown_where_it_could_not_be_seen) {
    for (const double largest : {0.0, 0.1, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        AppRig rig(quiet(
            {{kQVOverlayStyles, QVariantMap{{"Full Screen", QVariantMap{{kMinAlpha, 0.0}, {kMaxAlpha, largest}}}}}}));
        rig.launch();
        EXPECT_EQ(rig.window.alphaValue(), 0.2F) << largest;
        rig.window.setMaxAlpha(0.05F);
        EXPECT_EQ(rig.window.alphaValue(), 0.2F) << "changed from " << largest;
        rig.window.hide();
        rig.fade();
        EXPECT_EQ(rig.window.alphaValue(), 0);
    }
}

TEST(AppController, an_empty_player_says_by_which_keys_a_movie_is_opened_until_there_is_one) {
    AppRig rig(quiet());
    rig.launch();
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(rig.objects->backdrop().title(), "Press Ctrl+O to open a movie");
    EXPECT_TRUE(rig.objects->backdrop().detail().contains("F1"));
    rig.app.openFile(rig.file("a.mp4"));
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(rig.objects->backdrop().title(), "");
}

// Dragging

TEST(AppController, what_is_dragged_in_is_taken_as_its_source_allows) {
    using namespace platform::dragOperation;
    AppRig rig(quiet());
    rig.launch();
    platform::DraggingInfo info;
    info.sourceOperationMask = generic | copy;
    EXPECT_EQ(rig.view.draggingEntered(info), none) << "neither files nor a URL";
    info.offersFileNames = true;
    for (const auto& [allowed, answer] : {std::pair{generic | copy, generic}, {copy, copy}, {none, none}}) {
        info.sourceOperationMask = allowed;
        EXPECT_EQ(rig.view.draggingEntered(info), answer);
        EXPECT_EQ(rig.view.draggingUpdated(info), answer);
    }

    info.fileNames = {rig.file("a.mp4"), rig.file("notes.txt")};
    info.sourceOperationMask = generic | copy;
    EXPECT_TRUE(rig.view.performDragOperation(info));
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4");
    info.fileNames = {rig.file("folder/b.mp4")};
    info.sourceOperationMask = copy;
    EXPECT_TRUE(rig.view.performDragOperation(info));
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4 b.mp4");
    info.offersFileNames = false;
    info.offersURL = true;
    info.urlStrings = {"http://example.org/c.mp4", QString()};
    info.sourceOperationMask = generic;
    EXPECT_TRUE(rig.view.performDragOperation(info));
    EXPECT_EQ(rig.listed().toStdString(), "c.mp4");
}

// Menus and keys

TEST(AppController, escape_quits_and_other_keys_that_reach_the_window_do_nothing) {
    AppRig rig(quiet());
    rig.launch();
    EXPECT_TRUE(rig.window.dispatchKey({.charactersIgnoringModifiers = " "})) << "the view's";
    EXPECT_FALSE(rig.window.dispatchKey({.charactersIgnoringModifiers = "y"}));
    rig.settings.runLoop.advance(5);
    EXPECT_EQ(rig.desktop.terminations, 0);
    EXPECT_TRUE(rig.window.dispatchKey({.charactersIgnoringModifiers = QChar(platform::functionKey::escape),
                                        .modifierFlags = platform::modifier::shift}));
    rig.settings.runLoop.advance(5);
    EXPECT_EQ(rig.desktop.terminations, 1);
}

TEST(AppController, a_changed_layer_acts_at_once) {
    AppRig rig(quiet());
    rig.settings.defaults().setInteger(7, kQVMainWindowLayer);
    rig.settings.notifications.post(QVPreferencesChangedNotification{kQVJumpInterval, {}});
    EXPECT_NE(rig.window.level(), 7) << "another setting";
    EXPECT_TRUE(rig.window.preferencesChanged({kQVMainWindowLayer, {}}));
    EXPECT_EQ(rig.window.level(), 7);
}

TEST(AppController, menu_items_reach_those_who_act_on_them) {
    AppRig rig(quiet());
    rig.app.openFile(rig.file("a.mp4"));
    rig.launch();
    rig.events.clear();
    const auto choose = [&](const char* action, int tag = 0) {
        platform::Menu menu;
        platform::MenuItem& item = menu.addItem(QString(), action, tag);
        EXPECT_TRUE(rig.objects->controller().validateMenuItem(item)) << action;
        rig.objects->controller().performMenuItem(item);
    };
    choose("startStop");
    EXPECT_FALSE(rig.view.isPlaying());
    choose("showHelp");
    choose("showPreferences");
    choose("showInformation");
    EXPECT_EQ(rig.events, (QStringList{"help", "preferences", "information"}));
    EXPECT_EQ(rig.steps.closedPanels, 0);
    rig.objects->display().setDisplayType(2);
    choose("cycleDisplays", 1);
    EXPECT_EQ(rig.objects->display().displayType(), 3);
    choose("startStop");
    EXPECT_TRUE(rig.view.isPlaying());
    choose("quit");
    rig.settings.runLoop.advance(5);
    EXPECT_EQ(rig.desktop.terminations, 1);
}

TEST(AppController, the_display_shows_what_plays) {
    AppRig rig(quiet());
    const auto shown = [&rig](int type) {
        rig.objects->display().setDisplayType(type);
        return QVOSDOverlay::sharedOSDOverlay().text().toStdString();
    };
    rig.launch();
    EXPECT_EQ(shown(1), "Time: 0:00:00/0:00:00") << "without a movie";
    rig.app.openFile(rig.file("a.mp4"));
    rig.settings.runLoop.runPending();
    rig.view.setTime(2 * 600);
    EXPECT_EQ(shown(1), "Time: 0:00:02/0:01:00");
    EXPECT_EQ(shown(2), "Movie: a.mp4 (1/1)");
    EXPECT_EQ(shown(4), "Loop: Off");
}

// Termination

TEST(AppController, quitting_stops_the_movie_hides_the_window_and_keeps_what_is_to_be_kept) {
    for (const bool keeps : {true, false}) {
        AppRig rig({{kQVVolumeSave, keeps}, {kQVOSDStateSave, keeps}, {kQVOnLaunchDefaultAction, keeps ? 1 : 0}});
        rig.app.openFile(rig.file("a.mp4"));
        rig.launch();
        rig.events.clear();
        rig.view.setVolume(0.25F);
        rig.objects->display().setDisplayType(4);
        EXPECT_EQ(rig.app.applicationShouldTerminate(), platform::ApplicationDelegate::TerminateReply::later);
        EXPECT_FALSE(rig.view.isPlaying());
        EXPECT_EQ(rig.desktop.terminationReplies.empty(), rig.window.fadingOutInterval() >= 0.05)
            << "the process ends when the window has vanished, not before";
        rig.fade();
        EXPECT_EQ(rig.window.alphaValue(), 0.0F);
        EXPECT_EQ(rig.desktop.terminationReplies, std::vector<bool>{true});
        EXPECT_EQ(rig.events, QStringList());

        rig.app.applicationWillTerminate();
        const QVariantMap& kept = rig.settings.disk->domain;
        EXPECT_EQ(kept.value(kQVVolumeSavedLevel).toFloat(), keeps ? 0.25F : 0);
        EXPECT_EQ(kept.value(kQVOSDStateSavedType).toInt(), keeps ? 4 : 0);
        EXPECT_EQ(kept.contains(kQVSavedState), keeps);
        EXPECT_EQ(rig.toolkit.exited, 1);
        rig.objects.reset();
        EXPECT_EQ(rig.settings.runLoop.pendingCount(), 0U);
        EXPECT_EQ(gAppController, nullptr);
    }
}

TEST(AppController, without_a_screen_it_keeps_the_same_and_draws_nothing) {
    AppRig rig({{kQVVolumeSave, true}, {kQVOSDStateSave, true}, {kQVOnLaunchDefaultAction, 1}});
    rig.app.openFile(rig.file("a.mp4"));
    rig.launch();
    rig.events.clear();
    rig.view.setVolume(0.25F);
    rig.objects->display().setDisplayType(4);
    for (int time = 0; time < 2; ++time) {
        rig.app.applicationLostDisplay();
        EXPECT_EQ(rig.settings.disk->domain.contains(kQVSavedState), time == 0) << "kept twice";
        rig.settings.defaults().removeObjectForKey(kQVSavedState);
        EXPECT_EQ(rig.settings.disk->domain.value(kQVVolumeSavedLevel).toFloat(), 0.25F);
        EXPECT_EQ(rig.settings.disk->domain.value(kQVOSDStateSavedType).toInt(), 4);
        EXPECT_EQ(rig.window.alphaValue(), 1.0F);
    }
}

TEST(AppController, told_to_end_during_the_launch_it_opens_nothing_more_and_keeps_what_was_kept) {
    struct Case {
        const char* step; // in which it waits for the user
        bool answered;    // the user still answers, while the window fades out
        const char* events;
        int displayType;
    };
    for (const Case& c :
         {Case{"configure", false, "configure", 3}, Case{"configure", true, "configure", 3},
          Case{"donation", false, "configure donation", 3}, Case{"version", true, "configure donation version", 3},
          Case{"panel", false, "configure donation version", 3}, Case{"panel", true, "configure donation version", 3},
          Case{"none", false, "configure donation version", 4}}) {
        const QString step = c.step;
        AppRig rig(
            {{kQVOnLaunchDefaultAction, step == "panel" ? 2 : 1}, {kQVOSDStateSave, true}, {kQVOSDStateSavedType, 3}});
        rig.steps.checksVersion = true;
        rig.steps.waitingStep = step;
        rig.steps.whileWaiting = rig.desktop.whileOpenPanelIsUp = [&rig] {
            rig.app.openFile(rig.file("early.mp4"));
            rig.app.applicationShouldTerminate();
            rig.app.openFile(rig.file("late.mp4"));
            rig.fade();
        };
        if (c.answered)
            rig.desktop.openPanelAnswers.push_back({rig.file("chosen.mp4")});
        rig.launch();
        rig.settings.runLoop.advance(1);
        if (step == "none") {
            rig.objects->display().setDisplayType(4);
            rig.app.applicationShouldTerminate();
        }
        EXPECT_EQ(rig.events.join(u' ').toStdString(), c.events) << c.step;
        EXPECT_EQ(rig.listed().toStdString(), "") << c.step;
        rig.app.applicationWillTerminate();
        EXPECT_EQ(rig.settings.disk->domain.value(kQVOSDStateSavedType).toInt(), c.displayType) << c.step;
    }
}

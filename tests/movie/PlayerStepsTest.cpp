// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/movie/PlayerScript.h"

#include <gtest/gtest.h>

using namespace platform::playerEvent;
using platform::CoreEnd;
using platform::PlayerTimer;
using enum platform::MoviePlayer::JumpReport;

TEST(PlayerSteps, a_step_pauses_and_its_frame_is_a_jump) {
    PlayerScript player = PlayerScript::showing();
    player(Play{});
    EXPECT_EQ(player(Step{1}), "pause, step 1, arm step 2 | state");
    EXPECT_EQ(player(TimeChanged{0.04}), "cancel step | state, jump");
    EXPECT_EQ(player.time(), 4);
    EXPECT_EQ(player(TimeChanged{0.08}), "| state, frame 8");
    EXPECT_EQ(player(Step{-1}), "step -1, arm step 2");
    // Playing on before the frame came is no jump.
    EXPECT_EQ(player(Play{}), "cancel step, go | state");
    EXPECT_EQ(player(TimeChanged{0.12}), "| state, frame 12");
    EXPECT_EQ(player.time(), 12);
}

TEST(PlayerSteps, steps_wait_for_the_one_under_way) {
    PlayerScript player = PlayerScript::showing();
    player(Step{-1});
    for (const int direction : {1, 1, -1, 1})
        EXPECT_EQ(player(Step{direction}), "");
    EXPECT_EQ(player(TimeChanged{0.02}), "| state, jump") << "where a step back looks for its frame";
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel step, step 1, arm step 2");
    EXPECT_EQ(player(PlaybackRestarted{}), "");
    EXPECT_EQ(player(TimeChanged{0.04}), "cancel step, step 1, arm step 2 | state, jump");
    // At the last frame, and where nothing came at all.
    EXPECT_EQ(player(Step{1}), "");
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "cancel step");
    EXPECT_EQ(player(Step{1}), "");
    EXPECT_EQ(player(Step{-1}), "step -1, arm step 2");
    player(EndChanged{CoreEnd::no});
    player(Step{1});
    EXPECT_EQ(player(TimerFired{PlayerTimer::step, 0}), "cancel step, step 1, arm step 2");

    // A key held down, and let go.
    PlayerScript held = PlayerScript::showing();
    for (int i = 0; i < 100; ++i)
        held(Step{-1});
    EXPECT_EQ(held.state().stepsWaiting, -8);
}

TEST(PlayerSteps, whatever_ends_a_step_forward_stops_the_core) {
    const struct {
        platform::PlayerEvent ends;
        const char* effects;
    } cases[] = {{Seek{300, silent}, "pause, cancel step, seek 3 keyframe | state"},
                 {Play{}, "pause, cancel step, go | state"},
                 {Load{}, "pause, cancel step, cancel all, stop | frame"},
                 {Reload{3}, "cancel all, pause, cancel step, load 3 | jump, state"}};
    for (const auto& c : cases) {
        PlayerScript player = PlayerScript::showing();
        player(Step{1});
        EXPECT_EQ(player(c.ends), c.effects);
    }
}

TEST(PlayerSteps, steps_during_a_seek_are_sent_after_it) {
    PlayerScript player = PlayerScript::showing();
    player(Seek{250, silent});
    for (const int direction : {1, 1, -1, 1})
        EXPECT_EQ(player(Step{direction}), "");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 2.5 exact");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, step 1, arm step 2");
    EXPECT_EQ(player(PlaybackRestarted{}), "") << "once";
    EXPECT_EQ(player(TimeChanged{2.54}), "cancel step, step 1, arm step 2 | state, jump");
    EXPECT_EQ(player(TimeChanged{2.58}), "cancel step | state, jump");

    const struct {
        platform::PlayerEvent forgets;
        const char* after;
    } cases[] = {{Seek{0, silent}, "cancel keyframe, seek 0 exact"}, {SetRate{1, 0}, "cancel keyframe, seek 3 exact"}};
    for (const auto& c : cases) {
        PlayerScript stepped = PlayerScript::showing();
        stepped(Seek{300, silent});
        stepped(Step{1});
        stepped(c.forgets);
        stepped(FrameDue{});
        EXPECT_EQ(stepped(PlaybackRestarted{}), c.after);
        EXPECT_EQ(stepped.state().stepsWaiting, 0);
    }
}

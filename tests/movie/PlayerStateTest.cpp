// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/movie/PlayerScript.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace platform::playerEvent;
using platform::CoreEnd;
using platform::LoadedMovie;
using platform::PlayerTimer;
using enum platform::MoviePlayer::JumpReport;

namespace {

constexpr LoadedMovie sound{1000, 100, LoadedMovie::Content::sound};
constexpr LoadedMovie live{0, 100, LoadedMovie::Content::frames};

const TimerFired keyframeTimeout{PlayerTimer::keyframe, 0};
const TimerFired failureTimeout{PlayerTimer::failure, 0};

/// Seeks to the time and lets the core do it.
void moveTo(PlayerScript& player, std::int32_t time) {
    player(Seek{time, silent});
    while (player.state().seeks.isBusy()) {
        player(FrameDue{});
        player(PlaybackRestarted{});
    }
}

} // namespace

// Loading

TEST(PlayerState, what_is_asked_before_the_core_stands_is_kept_for_it) {
    PlayerScript player;
    EXPECT_EQ(player(SetVolume{0.125F}), "| state");
    EXPECT_EQ(player(SetMuted{true}), "| state");
    EXPECT_EQ(player(Load{tenSeconds, 250}), "cancel all | frame");
    EXPECT_EQ(player(SetRate{2, 0}), "| state");
    EXPECT_EQ(player.rate(), 2);
    EXPECT_EQ(player.time(), 250);
    EXPECT_EQ(player(Seek{300, reported}), "| jump, state");
    EXPECT_EQ(player.time(), 300);
    EXPECT_EQ(player(FileStarted{1}), "");
    EXPECT_EQ(player(CoreReady{}), "volume 50, mute, speed 2, go, load 3");
    EXPECT_EQ(player.time(), 300);
}

TEST(PlayerState, a_core_without_a_movie_is_told_volume_and_mute_only) {
    PlayerScript player;
    EXPECT_EQ(player(CoreReady{}), "volume 100, unmute");
    EXPECT_EQ(player(SetVolume{8}), "volume 144.225 | state") << "three times as loud at most";
    EXPECT_EQ(player.state().volume, 3);
    EXPECT_EQ(player(SetVolume{-1}), "volume 0 | state");
    EXPECT_EQ(player(SetVolume{std::nanf("")}), "");
    EXPECT_EQ(player.state().volume, 0);
    EXPECT_EQ(player(SetMuted{true}), "mute | state");
    EXPECT_TRUE(player.state().muted);
    for (const platform::PlayerEvent& event : std::initializer_list<platform::PlayerEvent>{
             Play{}, SetRate{2, 0}, Seek{100, reported}, Step{1}, PlaybackRestarted{}, TimeChanged{1},
             EndChanged{CoreEnd::ofMovie}, FileFailed{0, -1}, TimerFired{PlayerTimer::scrub, 1}, failureTimeout})
        EXPECT_EQ(player(event), "") << event.index();
}

TEST(PlayerState, a_movie_is_loaded_paused_and_shown_with_its_first_frame) {
    PlayerScript player;
    player(CoreReady{});
    player(SetVolume{0.125F});
    EXPECT_EQ(player(Load{tenSeconds, 250}), "cancel all, load 2.5 | frame");
    EXPECT_EQ(player.time(), 250);
    EXPECT_EQ(player(FileStarted{1}), "");
    EXPECT_EQ(player(TimeChanged{2.6}), "") << "no frame yet";
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame | frame");
    EXPECT_EQ(player(TimeChanged{2.52}), "") << "it rests where it was asked to";
    EXPECT_EQ(player.time(), 250);
    EXPECT_EQ(player(PlaybackRestarted{}), "") << "the first frame comes once";

    // Another one in its place while it plays fast: everything is as at first but the volume.
    player(SetRate{2, 0});
    EXPECT_EQ(player(Load{tenSeconds, 0}), "cancel all, speed 1, pause, load 0 | frame");
    EXPECT_EQ(player.rate(), 0);
    EXPECT_EQ(player.state().volume, 0.125F);
    EXPECT_EQ(player(PlaybackRestarted{}), "") << "of the one before";
    EXPECT_EQ(player(FrameDue{}), "skip frame") << "taken, so that the core goes on, and not shown";
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "");
    EXPECT_EQ(player.state().end, CoreEnd::no);
    player(FileStarted{2});
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame | frame");

    EXPECT_EQ(player(Load{}), "cancel all, stop | frame");
    EXPECT_FALSE(player.state().movie);
    EXPECT_EQ(player(PlaybackRestarted{}), "");
    EXPECT_EQ(player(CoreDropped{}), "cancel all");
    EXPECT_EQ(player(Load{tenSeconds, 0}), "cancel all | frame");
}

TEST(PlayerState, the_place_asked_for_while_loading_is_sought_once_it_is_loaded) {
    PlayerScript player;
    player(CoreReady{});
    player(Load{tenSeconds, 0});
    player(FileStarted{1});
    EXPECT_EQ(player(Seek{100, silent}), "| state");
    EXPECT_EQ(player(Play{}), "go | state");
    EXPECT_EQ(player(Seek{200, silent}), "| state");
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame, pause, seek 2 keyframe | frame");
    EXPECT_EQ(player(TimeChanged{0.04}), "");
    EXPECT_EQ(player.time(), 200);
}

// Playing

TEST(PlayerState, plays_and_pauses_and_reports_the_frames_times) {
    PlayerScript player = PlayerScript::showing();
    EXPECT_EQ(player(Play{}), "go | state");
    EXPECT_EQ(player.rate(), 1);
    EXPECT_EQ(player(Play{}), "") << "it does";
    EXPECT_EQ(player(TimeChanged{0.0449}), "| state, frame 4");
    EXPECT_EQ(player(TimeChanged{-0.5}), "| state, frame 0");
    EXPECT_EQ(player(TimeChanged{12}), "| state, frame 1000") << "never beyond the end";
    EXPECT_EQ(player(TimeChanged{5}), "| state, frame 500");
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(SetRate{0, 0}), "pause | state");
    EXPECT_EQ(player(TimeChanged{5.04}), "| state, frame 504") << "the frame under way";

    PlayerScript stream = PlayerScript::showing(live);
    stream(Play{});
    EXPECT_EQ(stream(TimeChanged{12}), "| state, frame 1200");
    EXPECT_EQ(stream(TimeChanged{1e12}), "| state, frame 2147483647");
}

TEST(PlayerState, rates_up_to_four_are_the_cores_and_others_a_run_of_keyframes) {
    const struct {
        float rate;
        const char* effects;
        float kept;
    } cases[] = {
        {1, "go | state", 1},
        {2, "speed 2, go | state", 2},
        {0.5F, "speed 0.5, go | state", 0.5F},
        {4, "speed 4, go | state", 4},
        {4.5F, "arm scrub 0.0833333 | state", 4.5F},
        {-0.5F, "arm scrub 0.0833333 | state", -0.5F},
        {0, "", 0},
        {std::nanf(""), "", 0},
    };
    for (const auto& c : cases) {
        PlayerScript player = PlayerScript::showing(tenSeconds, 500);
        EXPECT_EQ(player(SetRate{c.rate, 0}), c.effects) << c.rate;
        EXPECT_EQ(player.rate(), c.kept);
    }
    PlayerScript player = PlayerScript::showing();
    player(SetRate{2, 0});
    EXPECT_EQ(player(SetRate{0, 0}), "speed 1, pause | state");
    EXPECT_EQ(player(SetRate{-1, 0}), "| state") << "nothing is before the beginning";
    EXPECT_EQ(player.rate(), 0);
}

TEST(PlayerState, the_speed_is_a_factor_of_every_rate_and_stays_from_movie_to_movie) {
    PlayerScript player = PlayerScript::showing(tenSeconds, 500);
    EXPECT_EQ(player(SetSpeed{1.25, 0}), "| state") << "it rests";
    EXPECT_EQ(player(Play{}), "speed 1.25, go | state");
    EXPECT_EQ(player.rate(), 1) << "so that the space bar pauses";
    EXPECT_EQ(player(SetSpeed{3, 0}), "speed 3 | state");
    EXPECT_EQ(player(SetRate{2, 1}), "arm scrub 0.0833333, speed 1, pause | state") << "six times";
    EXPECT_EQ(player(SetSpeed{1.5, 1.5}), "seek 8 keyframe, cancel scrub, speed 3 | state, frame 800, state, state");
    const struct { double asked, kept; } cases[] = {{0.1, 0.25}, {9, 4}, {0.5, 0.5}, {std::nan(""), 0.5}};
    for (const auto& c : cases) {
        player(SetSpeed{c.asked, 0});
        EXPECT_EQ(player.state().speed, c.kept) << c.asked;
    }
    player(Load{tenSeconds, 0});
    EXPECT_EQ(player(Play{}), "speed 0.5, go | state");
}

TEST(PlayerState, a_section_is_repeated_until_its_movie_goes) {
    const auto section = platform::MoviePlayer::Section{100, 250};
    PlayerScript player;
    EXPECT_EQ(player(Repeat{section}), "") << "of no movie";
    player(Load{tenSeconds, 150});
    EXPECT_EQ(player(Repeat{section}), "");
    EXPECT_EQ(player(CoreReady{}), "volume 100, unmute, repeat 1 to 2.5, load 1.5");
    EXPECT_EQ(player(Repeat{section}), "") << "as it is";
    EXPECT_EQ(player(Repeat{}), "repeat nothing");
    player(Repeat{section});
    EXPECT_EQ(player(Load{tenSeconds, 0}), "cancel all, repeat nothing, load 0 | frame");
    EXPECT_FALSE(player.state().repeated);
    for (const std::int32_t outside : {99, 250}) {
        PlayerScript standing = PlayerScript::showing(tenSeconds, outside);
        EXPECT_EQ(standing(Repeat{section}), "repeat 1 to 2.5, seek 1 keyframe | jump, state");
    }
}

// Seeks

TEST(PlayerState, a_seek_shows_the_keyframe_first_and_holds_the_time_asked_for) {
    PlayerScript player = PlayerScript::showing();
    EXPECT_EQ(player(Seek{250, reported}), "seek 2.5 keyframe | jump, state");
    EXPECT_EQ(player.time(), 250);
    EXPECT_EQ(player(TimeChanged{2}), "") << "the keyframe's place";
    // The frame may be due before the core says that it plays again, or after.
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 2.5 exact");
    EXPECT_EQ(player(PlaybackRestarted{}), "arm keyframe 0.1");
    EXPECT_EQ(player(PlaybackRestarted{}), "arm keyframe 0.1");
    EXPECT_EQ(player(FrameDue{}), "arm keyframe 0 | due");
    EXPECT_TRUE(player.state().seeks.isBusy());
    EXPECT_EQ(player(keyframeTimeout), "");
    EXPECT_FALSE(player.state().seeks.isBusy());
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(TimeChanged{2.48}), "");
    EXPECT_EQ(player.time(), 250);

    // A frame that does not come is not waited for.
    EXPECT_EQ(player(Seek{300, silent}), "seek 3 keyframe | state");
    EXPECT_EQ(player(PlaybackRestarted{}), "arm keyframe 0.1");
    EXPECT_EQ(player(keyframeTimeout), "seek 3 exact");
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe");

    EXPECT_EQ(player(Seek{0, silent}), "seek 0 exact | state");
    moveTo(player, 700);
    EXPECT_EQ(player.time(), 700);

    // Also where it had played before.
    player(Play{});
    player(TimeChanged{7.04});
    player(SetRate{0, 0});
    moveTo(player, 200);
    EXPECT_EQ(player(TimeChanged{1.96}), "");
    EXPECT_EQ(player.time(), 200);
}

TEST(PlayerState, the_first_exact_frame_that_needs_others_has_the_decoder_made_anew) {
    LoadedMovie movie = tenSeconds;
    movie.seeking = LoadedMovie::Seeking::withMoreThreads;
    PlayerScript player = PlayerScript::showing(movie);
    EXPECT_EQ(player(Seek{0, silent}), "seek 0 exact | state");
    player(PlaybackRestarted{});
    player(keyframeTimeout);
    EXPECT_EQ(player(Seek{250, silent}), "seek 2.5 keyframe | state");
    player(PlaybackRestarted{});
    EXPECT_EQ(player(keyframeTimeout), "more threads, seek 2.5 exact");
    player(PlaybackRestarted{});
    player(keyframeTimeout);
    player(Seek{300, silent});
    player(PlaybackRestarted{});
    EXPECT_EQ(player(keyframeTimeout), "seek 3 exact") << "it stays so";
}

TEST(PlayerState, a_seek_keeps_within_the_movie) {
    const struct {
        LoadedMovie movie;
        std::int32_t asked, kept;
        const char* effects;
    } cases[] = {
        {tenSeconds, 1001, 1000, "seek 10 keyframe | state"}, {tenSeconds, -1, 0, "seek 0 exact | state"},
        {live, 5000, 5000, "seek 50 keyframe | state"},       {live, -1, 0, "seek 0 exact | state"},
        {sound, 250, 250, "seek 2.5 exact | state"},
    };
    for (const auto& c : cases) {
        PlayerScript player = PlayerScript::showing(c.movie);
        EXPECT_EQ(player(Seek{c.asked, silent}), c.effects);
        EXPECT_EQ(player.time(), c.kept);
    }
}

TEST(PlayerState, seeks_that_follow_fast_leave_out_those_between) {
    PlayerScript player = PlayerScript::showing();
    player(Play{});
    EXPECT_EQ(player(Seek{100, silent}), "pause, seek 1 keyframe | state")
        << "nothing is heard of the keyframe's place";
    EXPECT_EQ(player(Seek{200, silent}), "| state");
    EXPECT_EQ(player(Seek{300, silent}), "| state");
    EXPECT_EQ(player.time(), 300);
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 3 keyframe");
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 3 exact");
    EXPECT_EQ(player(TimeChanged{2.9}), "");
    EXPECT_EQ(player(FrameDue{}), "| due");
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, go");
    EXPECT_EQ(player(TimeChanged{3.04}), "| state, frame 304");
}

TEST(PlayerState, a_movie_of_sound_waits_for_no_frame) {
    PlayerScript player = PlayerScript::showing(sound);
    player(Play{});
    EXPECT_EQ(player(Seek{250, silent}), "pause, seek 2.5 exact | state");
    EXPECT_EQ(player(PlaybackRestarted{}), "go");
    EXPECT_EQ(player(TimeChanged{2.6}), "| state, frame 260");
    EXPECT_EQ(player(Step{1}), "");
    EXPECT_EQ(player.rate(), 1);
}

// Scrubbing

TEST(PlayerState, scrubbing_shows_a_keyframe_every_twelfth_of_a_second) {
    PlayerScript player = PlayerScript::showing(tenSeconds, 100);
    EXPECT_EQ(player(SetRate{8, 50}), "arm scrub 0.0833333 | state");
    EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 50.25}), "seek 3 keyframe | state, frame 300");
    EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 50.5}), "| state, frame 500") << "the core is not there yet";
    EXPECT_EQ(player(TimeChanged{2.9}), "");
    EXPECT_EQ(player(PlaybackRestarted{}), "arm keyframe 0.1");
    EXPECT_EQ(player(keyframeTimeout), "seek 5 keyframe");
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "") << "the end is that of our clock";
    EXPECT_EQ(player(SetRate{-8, 50.5}), "| state") << "on from there";
    EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 50.75}), "| state, frame 300");
    EXPECT_EQ(player(Seek{900, silent}), "| state");
    EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 51}), "| state, frame 700") << "on from where the seek led";
    EXPECT_EQ(player(SetRate{2, 51}), "cancel scrub, speed 2 | state, state");
    EXPECT_EQ(player.time(), 700);
    EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 52}), "");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 7 keyframe");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 7 exact");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, go");
    EXPECT_EQ(player(TimeChanged{7.04}), "| state, frame 704");
}

TEST(PlayerState, scrubbing_stops_at_both_ends) {
    const struct {
        std::int32_t from;
        float rate;
        double seconds;
        const char* effects;
        std::int32_t time;
    } cases[] = {
        {500, 8, 0.5, "seek 9 keyframe | state, frame 900", 900},
        {500, 8, 0.625, "cancel scrub, seek 10 keyframe | state, state, end", 1000},
        {500, 8, 1, "cancel scrub, seek 10 keyframe | state, state, end", 1000},
        {500, -8, 0.5, "seek 1 keyframe | state, frame 100", 100},
        {500, -8, 0.625, "cancel scrub, seek 0 exact | state, state, frame 0", 0},
        {500, -8, 1, "cancel scrub, seek 0 exact | state, state, frame 0", 0},
    };
    for (const auto& c : cases) {
        PlayerScript player = PlayerScript::showing(tenSeconds, c.from);
        player(SetRate{c.rate, 1});
        EXPECT_EQ(player(TimerFired{PlayerTimer::scrub, 1 + c.seconds}), c.effects) << c.seconds;
        EXPECT_EQ(player.time(), c.time);
        const bool stopped = c.time == 0 || c.time == 1000;
        EXPECT_EQ(player.rate() == 0, stopped);
        EXPECT_EQ(player.state().scrub.has_value(), !stopped);
    }
}

TEST(PlayerState, pausing_from_scrubbing_moves_to_the_exact_frame) {
    PlayerScript player = PlayerScript::showing(tenSeconds, 500);
    player(SetRate{-2, 0});
    EXPECT_EQ(player(SetRate{0, 0.1}), "cancel scrub, seek 5 keyframe | state, state");
    moveTo(player, 500);
    player(SetRate{-2, 1});
    EXPECT_EQ(player(Step{-1}), "cancel scrub, seek 5 keyframe | state, state");
    EXPECT_EQ(player.state().stepsWaiting, -1);
}

// The end

TEST(PlayerState, reaches_the_end_once_and_begins_again_from_the_start) {
    PlayerScript player = PlayerScript::showing();
    player(SetRate{2, 0});
    player(TimeChanged{9.96});
    EXPECT_EQ(player(EndChanged{CoreEnd::no}), "");
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "speed 1 | state, end") << "the core paused itself";
    EXPECT_EQ(player.time(), 1000);
    EXPECT_EQ(player.rate(), 0);
    EXPECT_EQ(player(TimeChanged{9.96}), "");
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "");
    EXPECT_EQ(player(SetRate{1, 0}), "| state") << "there is nothing more";
    EXPECT_EQ(player.rate(), 0);
    EXPECT_EQ(player(Play{}), "seek 0 exact | jump, state, state");
    EXPECT_EQ(player.time(), 0);
    EXPECT_EQ(player.rate(), 1);
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, go");

    // The core's end may come before the time of the duration, or the duration is not known.
    PlayerScript stream = PlayerScript::showing(live);
    stream(Play{});
    stream(TimeChanged{3});
    EXPECT_EQ(stream(EndChanged{CoreEnd::ofMovie}), "| state, end");
    EXPECT_EQ(stream.time(), 300);
    EXPECT_EQ(stream(Play{}), "seek 0 exact | jump, state, state");
}

TEST(PlayerState, what_has_arrived_of_a_growing_file_is_no_end_while_it_plays) {
    PlayerScript player = PlayerScript::showing();
    player(Play{});
    player(TimeChanged{9.96});
    EXPECT_EQ(player(EndChanged{CoreEnd::ofArrived}), "arm growth 0.5");
    EXPECT_EQ(player.rate(), 1);
    EXPECT_EQ(player(TimerFired{PlayerTimer::growth, 0}), "seek 9.96 exact");
    EXPECT_EQ(player(EndChanged{CoreEnd::no}), "");
    EXPECT_EQ(player(DurationGrew{9}), "") << "it never shrinks";
    EXPECT_EQ(player(DurationGrew{12.5}), "| lasts 1250, state");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, go");
    EXPECT_EQ(player(TimeChanged{12}), "| state, frame 1200");

    // Started by hand it goes on from there, too; and nothing arrives any more.
    EXPECT_EQ(player(EndChanged{CoreEnd::ofArrived}), "arm growth 0.5");
    EXPECT_EQ(player(SetRate{0, 0}), "| state");
    EXPECT_EQ(player(TimerFired{PlayerTimer::growth, 0}), "") << "not while it is paused";
    EXPECT_EQ(player(Play{}), "seek 12 exact | state");
    player(FrameDue{});
    player(PlaybackRestarted{});
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "| state, end");
    EXPECT_EQ(player.time(), 1250);

    PlayerScript stream = PlayerScript::showing(live);
    EXPECT_EQ(stream(DurationGrew{12.5}), "") << "where no end is known none is made up";
}

TEST(PlayerState, a_live_movie_goes_on_where_it_cannot_be_sent_and_when_it_is_loaded_anew) {
    PlayerScript player = PlayerScript::showing(live);
    player(Play{});
    player(TimeChanged{30});
    EXPECT_EQ(player(SeekFailed{}), "") << "nothing was asked for";
    EXPECT_EQ(player(Seek{500, silent}), "pause, seek 5 keyframe | state");
    EXPECT_EQ(player(SeekFailed{}), "cancel keyframe, go | state");
    EXPECT_EQ(player.time(), 3000);
    EXPECT_EQ(player(TimeChanged{30.04}), "| state, frame 3004");

    EXPECT_EQ(player(Seek{500, silent}), "pause, seek 5 keyframe | state");
    EXPECT_EQ(player(Reload{0}), "cancel all, go, load 0 | jump, state");
    EXPECT_EQ(player.time(), 0);
    EXPECT_EQ(player(TimeChanged{30.2}), "") << "of the load before";
    EXPECT_EQ(player(FrameDue{}), "skip frame");
    player(FileStarted{2});
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame | frame");
    EXPECT_EQ(player(TimeChanged{0.2}), "| state, frame 20") << "it plays as it did";
}

TEST(PlayerState, playing_from_the_end_of_the_duration_begins_again_also_where_it_was_sought) {
    for (const auto& [time, startsOver] : {std::pair{999, false}, {1000, true}}) {
        PlayerScript player = PlayerScript::showing();
        moveTo(player, time);
        EXPECT_EQ(player(Play{}), startsOver ? "seek 0 exact | jump, state, state" : "go | state");
    }
    PlayerScript stream = PlayerScript::showing(live);
    EXPECT_EQ(stream(Play{}), "go | state") << "no duration is no end";
}

TEST(PlayerState, an_end_during_a_seek_counts_once_that_is_done) {
    PlayerScript player = PlayerScript::showing();
    player(Play{});
    player(Seek{990, silent});
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "");
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, seek 9.9 exact");
    EXPECT_EQ(player.state().end, CoreEnd::no) << "the seek led away from it";
    EXPECT_EQ(player(EndChanged{CoreEnd::ofMovie}), "");
    EXPECT_EQ(player(SetRate{2, 0}), "speed 2 | state") << "may be asked for meanwhile";
    EXPECT_EQ(player(TimeChanged{9.8}), "") << "still on the way";
    player(FrameDue{});
    EXPECT_EQ(player(PlaybackRestarted{}), "cancel keyframe, speed 1 | state, end");

    // Paused, it is no end.
    PlayerScript paused = PlayerScript::showing();
    paused(Seek{990, silent});
    EXPECT_EQ(paused(EndChanged{CoreEnd::ofMovie}), "");
    EXPECT_EQ(paused(SetRate{-1, 0}), "arm scrub 0.0833333 | state") << "backwards there is more";
    moveTo(paused, 990);
    EXPECT_EQ(paused(EndChanged{CoreEnd::ofMovie}), "");

    for (const bool plays : {false, true}) {
        PlayerScript exact = PlayerScript::showing();
        exact(Seek{0, silent});
        exact(EndChanged{CoreEnd::ofMovie});
        exact(SetRate{plays ? 1.0F : 0.0F, 0});
        exact(FrameDue{});
        EXPECT_EQ(exact(PlaybackRestarted{}), plays ? "cancel keyframe | state, end" : "cancel keyframe");
    }
}

TEST(PlayerState, a_movie_that_fails_ends_after_a_moment_each_time_it_is_started) {
    PlayerScript player;
    player(CoreReady{});
    player(Load{tenSeconds, 0});
    player(FileStarted{1});
    EXPECT_EQ(player(FileFailed{0, -13}), "") << "that was another one";
    EXPECT_EQ(player(FileFailed{1, -13}), "drop frame | frame, failed -13");
    EXPECT_EQ(player(Play{}), "go, arm failure 0.25 | state");
    EXPECT_EQ(player(failureTimeout), "pause | state, end");
    EXPECT_EQ(player.rate(), 0);
    EXPECT_EQ(player(failureTimeout), "");
    EXPECT_EQ(player(Play{}), "go, arm failure 0.25 | jump, state, state");
    EXPECT_EQ(player(SetRate{0, 0}), "pause | state");
    EXPECT_EQ(player(failureTimeout), "") << "not while it is paused";
    EXPECT_EQ(player(SetRate{-1, 0}), "| state");
    moveTo(player, 0);
    EXPECT_EQ(player(SetRate{8, 0}), "arm scrub 0.0833333, arm failure 0.25 | state");
    EXPECT_EQ(player(failureTimeout), "cancel scrub | state, end");
    EXPECT_FALSE(player.state().scrub);

    player(Load{tenSeconds, 0});
    player(Play{});
    EXPECT_EQ(player(FileFailed{2, -13}), "drop frame, arm failure 0.25 | frame, failed -13") << "it was to play";
    EXPECT_EQ(player(Load{tenSeconds, 0}), "cancel all, pause, load 0 | frame");
    EXPECT_EQ(player(Play{}), "go | state");
}

// Tracks

TEST(PlayerState, tracks_are_those_of_the_load_and_what_changes_meanwhile_is_told_when_it_is_there) {
    using platform::TrackSelection;
    PlayerScript player;
    EXPECT_EQ(player(Select{{.audio = 2}}), "") << "no movie";
    player(CoreReady{});
    EXPECT_EQ(player(Load{tenSeconds, 0, {.audio = 2, .subtitles = 1, .audioDelay = 0.5}}),
              "cancel all, delays 0.5 0, load 0 | frame");
    EXPECT_EQ(player(Select{{.audio = 4, .subtitles = 1, .audioDelay = 0.5}}), "load 0") << "not begun with yet";
    player(FileStarted{2});
    EXPECT_EQ(player(Select{{.audio = 3, .subtitles = 1, .audioDelay = 0.5}}), "") << "begun with: it is told later";
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame, audio 3 | frame");
    EXPECT_EQ(player(Select{{.audio = 3, .subtitles = 2, .audioDelay = 0.5}}), "subtitles 2, arm text 0.2")
        << "it rests, and a resting core reads no text";
    EXPECT_EQ(player(TimerFired{PlayerTimer::text, 0}), "seek 0 exact");
    player(FrameDue{});
    player(PlaybackRestarted{});
    EXPECT_EQ(player(Play{}), "go | state");
    EXPECT_EQ(player(Select{{.audio = 3, .subtitles = 1, .audioDelay = 0.5}}), "subtitles 1");
    EXPECT_EQ(player(Select{{.video = 2, .audio = 4, .subtitles = 1, .audioDelay = 0.5}}), "video 2, audio 4");
    EXPECT_EQ(player(Select{{.audio = 3, .subtitles = 1, .audioDelay = 0.5}}), "video -1, audio 3");
    const struct {
        TrackSelection tracks;
        const char* told;
    } cases[] = {
        {{.audio = 3, .subtitles = 1, .audioDelay = 0.5}, ""},
        {{.audio = 3, .subtitles = 1, .drawn = TrackSelection::Drawn::inPicture}, "subtitles 1 drawn, delays 0 0"},
        {{.subtitles = 1, .drawn = TrackSelection::Drawn::inPicture, .subtitleDelay = -2}, "audio -1, delays 0 -2"},
        {{.subtitles = 1, .drawn = TrackSelection::Drawn::inPicture, .subtitleDelay = -2, .subtitleSpeed = 1.5},
         "delays 0 -2 x 1.5"},
        {{}, "subtitles 0, delays 0 0"},
        {{.secondSubtitles = 3}, "second 3"},
        {{.subtitleFile = QStringLiteral(" a.ass")}, "subtitles 0 a.ass, second 0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(player(Select{c.tracks}), c.told);
    EXPECT_EQ(player(TimerFired{PlayerTimer::text, 0}), "") << "it plays, and has no text";
    // The next movie begins with its own; a file is added once it is there.
    EXPECT_EQ(player(Load{tenSeconds, 0, {.subtitleFile = QStringLiteral(" b.ass"), .audioDelay = 1}}),
              "cancel all, pause, delays 1 0, load 0 | frame");
    player(FileStarted{3});
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame, subtitles 0 b.ass | frame");
    EXPECT_EQ(player(Load{tenSeconds, 100}), "cancel all, delays 0 0, load 1 | frame");
    player(FileStarted{4});
    player(Select{{.subtitles = 4, .drawn = TrackSelection::Drawn::inPicture}});
    EXPECT_EQ(player(PlaybackRestarted{}), "use frame, subtitles 4 drawn, arm text 0.2 | frame");
    EXPECT_EQ(player(CoreDropped{}), "cancel all");
    EXPECT_EQ(player(Select{{.audio = 1}}), "") << "kept for the next core";
    EXPECT_EQ(player.state().tracks.audio, 1);
}

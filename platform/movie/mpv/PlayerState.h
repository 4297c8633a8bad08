// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/PlayerEvents.h"
#include "platform/movie/mpv/SeekPlanner.h"

#include <cstdint>
#include <optional>

namespace platform {

/// Where the player is: what is wanted of it, and how far the core has got with it. A value without clocks, timers or
/// libraries; transition() says how events change it.
struct PlayerState {
    // Wanted, and answered at once.
    std::optional<LoadedMovie> movie;
    float rate = 0;
    double speed = 1.0; ///< Of rate 1: what the core is to play at is the product.
    std::optional<MoviePlayer::Section> repeated;
    float volume = 1.0F;
    bool muted = false;
    std::int32_t time = 0;
    TrackSelection tracks;

    /// The core as it was told to be.
    struct Core {
        bool paused = true;
        double speed = 1.0;
        std::int64_t entriesSent = 0; // loads sent: the core numbers its entries alike
        std::int64_t entryStarted = 0;
        TrackSelection tracks;
    };
    std::optional<Core> core;

    enum class File { loading, shown, failed };
    File file = File::loading;
    CoreEnd end = CoreEnd::no; // where the core is

    SeekPlanner seeks;
    /// How far the seek under way is: sent, sent and a frame was due since, or done but for the frame.
    enum class SeekStage { none, sent, shown, restarted };
    SeekStage seekStage = SeekStage::none;
    int stepUnderWay = 0;   // +1 forward, -1 back
    int stepsWaiting = 0;   // for the seek or the step under way
    double coreSeconds = 0; // where the core was last before a seek

    /// What `time` is: what was asked for, until frames move on from there; about to be that of the frame stepped
    /// to; or that of the core's frames.
    enum class TimeSource { asked, step, core };
    TimeSource timeSource = TimeSource::asked;

    /// Rates that the core cannot play are shown as a run of keyframes on a clock of our own.
    struct Scrub {
        double last;     // the moment of the last tick
        double position; // seconds of the movie
    };
    std::optional<Scrub> scrub;
};

/// Whether what the core says is about the movie loaded last.
bool isOfMovie(const PlayerState& state);

/// What an event leads to. The effects are carried out first, then the reports are made, each list in its order:
/// whoever is told finds the player, and the core, as the event left them, and may ask for more.
struct PlayerTransition {
    PlayerState state;
    ShortList<PlayerEffect> effects;
    ShortList<PlayerReport> reports;
};

/// Pure. Events that no longer concern the movie loaded last change nothing.
PlayerTransition transition(const PlayerState& state, const PlayerEvent& event);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

/// How the times of a track lie to those of its movie, where they were written for another cut or another speed. Times
/// are milliseconds.
struct CueShift {
    /// Later, or below 0 earlier.
    std::int32_t delay = 0;
    /// Of the movie's time for a time of the track.
    double speed = 1;

    bool operator==(const CueShift&) const = default;
    bool isNone() const { return *this == CueShift(); }
    double movieTime(double cueTime) const { return cueTime * speed + delay; }
    double cueTime(double movieTime) const { return (movieTime - delay) / speed; }

    /// That which brings two times of a track to two of the movie. None where they are the same time, or lie so that
    /// nobody can have meant it: more than twice as fast or as slow.
    static std::optional<CueShift> through(double firstCue, double firstMovie, double lastCue, double lastMovie);
    /// As it was stored; none that could not be one.
    static std::optional<CueShift> from(std::int64_t delay, double speed);
};

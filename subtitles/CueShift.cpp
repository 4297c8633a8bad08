// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueShift.h"

#include <cmath>

namespace {

constexpr double slowest = 0.5;
constexpr double fastest = 2;
/// A day. Milliseconds.
constexpr double maximumDelay = 24.0 * 3600 * 1000;

std::optional<CueShift> possible(double delay, double speed) {
    // Written so that what is no number is none.
    if (!(speed >= slowest && speed <= fastest && std::abs(delay) <= maximumDelay))
        return std::nullopt;
    return CueShift{static_cast<std::int32_t>(std::lround(delay)), speed};
}

} // namespace

std::optional<CueShift> CueShift::through(double firstCue, double firstMovie, double lastCue, double lastMovie) {
    const double speed = (lastMovie - firstMovie) / (lastCue - firstCue);
    return possible(firstMovie - firstCue * speed, speed);
}

std::optional<CueShift> CueShift::from(std::int64_t delay, double speed) {
    return possible(static_cast<double>(delay), speed);
}

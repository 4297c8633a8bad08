// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueTiming.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr float sFrameRateList[] = {0.0F, 23.976F, 24.0F, 25.0F, 29.97F, 30.0F};
/// For a movie without a rate of its own.
constexpr float usualFrameRate = 25.0F;

} // namespace

namespace CueTiming {

std::int32_t truncated(float value) {
    // The first value that does not fit; the largest that does is no float.
    constexpr float tooMuch = 2147483648.0F;
    if (std::isnan(value))
        return 0;
    if (value >= tooMuch)
        return std::numeric_limits<std::int32_t>::max();
    if (value <= -tooMuch)
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

std::int32_t nearest(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value))
        return 0;
    return static_cast<std::int32_t>(std::round(std::clamp<double>(value, Limits::min(), Limits::max())));
}

float frameRate(std::int32_t choice, float movieRate) {
    if (choice >= 1 && choice < static_cast<std::int32_t>(std::size(sFrameRateList)))
        return sFrameRateList[choice];
    return std::isfinite(movieRate) && movieRate > 0 ? movieRate : usualFrameRate;
}

} // namespace CueTiming

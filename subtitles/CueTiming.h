// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// How the times of cues are reckoned: in single precision, as files were always timed, unless they are repaired.
namespace CueTiming {

/// Towards zero, clamped to 32 bits; what is not a number is 0.
std::int32_t truncated(float value);

/// Rounded to the nearest, clamped to 32 bits; what is not a number is 0.
std::int32_t nearest(double value);

/// How long a cue is shown at most whose file does not say when it ends.
inline constexpr std::int32_t guessedMilliseconds = 5000;

/// Frames a second for a choice of the settings: 1 to 5 are 23.976, 24, 25, 29.97 and 30; every other choice is the
/// movie's rate, or 25 where that is none.
float frameRate(std::int32_t choice, float movieRate);

} // namespace CueTiming

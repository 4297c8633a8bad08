// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

/// Clamped to 32 bits.
constexpr std::int32_t clampedTo32Bits(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// A time in milliseconds, clamped to 32 bits. The parts may have any sign and size.
constexpr std::int32_t milliseconds(std::int32_t hours, std::int32_t minutes, std::int32_t seconds, std::int32_t rest) {
    return clampedTo32Bits(std::int64_t{hours} * 3'600'000 + std::int64_t{minutes} * 60'000 +
                           std::int64_t{seconds} * 1'000 + rest);
}

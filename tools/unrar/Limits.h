// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// What an archive may cost. A DVD's subtitles take some 10 MB.
namespace limits {

inline constexpr double secondsToList = 10;
inline constexpr double secondsToExtract = 50;
inline constexpr std::uint64_t memory = std::uint64_t{1} << 30U;
inline constexpr std::uint64_t bytes = std::uint64_t{2} << 30U;
inline constexpr std::uint64_t entries = 10'000;
/// Of folders within one another; a tree of thousands would keep the extraction busy for long.
inline constexpr int depth = 32;

} // namespace limits

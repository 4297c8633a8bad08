// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Where the cursor of a track goes, one cue at a time, over the ends of its cues in the file's order.
namespace CueSearch {

/// The first cue after `index` that ends after the time; the last cue when there is none.
std::size_t forward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time);

/// The end of the cue before one; 0 for the first.
double endBefore(std::span<const std::int32_t> ends, std::size_t index);

/// The nearest cue before `index` whose predecessor does not end after the time; the first cue when there is none.
std::size_t backward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time);

} // namespace CueSearch

// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueCursor.h"

#include <limits>

namespace {

/// The first cue after `index` that ends after the time; the last cue when there is none.
std::size_t forward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time) {
    while (index + 1 < ends.size()) {
        ++index;
        if (time < ends[index])
            break;
    }
    return index;
}

/// The nearest cue before `index` whose predecessor does not end after the time; the first cue when there is none.
std::size_t backward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time) {
    while (index > 0) {
        --index;
        if (index == 0 || ends[index - 1] <= time)
            break;
    }
    return index;
}

} // namespace

void CueCursor::place(std::span<const std::int32_t> ends, std::size_t index) {
    _index = static_cast<std::uint32_t>(index);
    _prevEnd = index == 0 ? 0.0 : ends[index - 1];
}

void CueCursor::placeInDisorder(std::size_t index) {
    _index = static_cast<std::uint32_t>(index);
    _prevEnd = std::numeric_limits<double>::infinity();
}

void CueCursor::clear() {
    *this = CueCursor();
}

bool CueCursor::staysFor(std::int32_t time, std::int32_t start, std::int32_t end) const {
    return end >= time && _prevEnd <= time && !(time < start && isAtEndBefore(time));
}

void CueCursor::move(std::span<const std::int32_t> ends, std::int32_t time) {
    if (ends[_index] < time)
        place(ends, forward(ends, _index, time));
    else if (_prevEnd > time)
        place(ends, backward(ends, _index, time));
}

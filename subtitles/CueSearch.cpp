// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueSearch.h"

namespace CueSearch {

std::size_t forward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time) {
    while (index + 1 < ends.size()) {
        ++index;
        if (time < ends[index])
            break;
    }
    return index;
}

double endBefore(std::span<const std::int32_t> ends, std::size_t index) {
    return index == 0 ? 0.0 : ends[index - 1];
}

std::size_t backward(std::span<const std::int32_t> ends, std::size_t index, std::int32_t time) {
    while (index > 0) {
        --index;
        if (index == 0 || ends[index - 1] <= time)
            break;
    }
    return index;
}

} // namespace CueSearch

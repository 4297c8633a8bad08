// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/input/ReadingMode.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// When a cue of a SubRip file starts and ends, milliseconds.
struct SubRipTiming {
    std::int32_t start = 0;
    std::int32_t end = 0;

    /// What a timing line says, none for other lines. Strictly "%d:%d:%d,%d --> %d:%d:%d,%d". Repairing, a full stop
    /// may stand for a comma, milliseconds may be missing, blanks may stand between any two parts; and where the end is
    /// before the start the cue lasts for CueTiming::guessedMilliseconds.
    static std::optional<SubRipTiming> scan(std::string_view line, ReadingMode mode);
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/input/ReadingMode.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// When a cue of a MicroDVD file starts and ends, in frames.
struct MicroDVDFrames {
    std::int32_t start = 0;
    std::int32_t end = 0;
    /// The line gives no end, or none that can be used: the one here is a guess, until the next cue starts.
    bool endUndefined = false;
    /// Where the line goes on behind its frames.
    std::size_t consumed = 0;
};

namespace MicroDVDLine {

/// The frames that a line begins with; none for other lines. Repairing, an end before the start is none.
std::optional<MicroDVDFrames> scanFrames(std::string_view line, ReadingMode mode);

/// A text without its codes of a letter, a colon and a value in braces ("{y:i}", "{c:$0000ff}"), wherever they stand.
std::string withoutCodes(std::string_view text);

/// Frames a second, if that is what a text says, and all it says.
std::optional<double> frameRate(std::string_view text);

} // namespace MicroDVDLine

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

/// A cue of a file before it is one of a movie: cues of a file may stand at once, and in any order.
struct TimedCue {
    /// Milliseconds; an end before the start is not known.
    std::int64_t start = 0;
    std::int64_t end = -1;
    /// Lines end in line feeds. Markup is that of SubtitleMarkup.
    QString text;
    /// Where it asks to stand, 1 to 9 as the keys of a number pad lie; 0 where it does not say.
    int place = 0;

    bool operator==(const TimedCue&) const = default;
};

/// The cues for a view that shows one at a time: by their starts, none before the last one's end. While several stand
/// at once, their texts stand in one cue, those that came later above, so that what stands stays where it is. A cue
/// without an end lasts until the next one starts, but no longer than five seconds. `left` counts the cues of which
/// something had to be left out: more than a screen holds at once, or than memory does.
std::vector<TimedCue> oneAtATime(std::vector<TimedCue> cues, std::size_t& left);

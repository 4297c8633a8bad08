// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// When the cues of a track start and end, in the file's order; as many starts as ends.
struct CueTimes {
    std::span<const std::int32_t> starts;
    std::span<const std::int32_t> ends;
};

/// The place in a track's cues where the last search ended. The next one goes on from there, a cue at a time, so that
/// playing forward is a comparison. In a gap the cursor stays on the later cue; before the first cue it stays on the
/// first, after the last on the last.
class CueCursor {
public:
    /// Puts the cursor on one of the cues; before that, and after clear(), it must not be asked for anything.
    void place(const CueTimes& times, std::size_t index);
    void clear();
    std::size_t index() const { return _index; }

    /// Whether the cue at the cursor, with this start and end, is still the one to look at. The cheap question before
    /// a search; it needs none of the other cues.
    bool staysFor(std::int32_t time, std::int32_t start, std::int32_t end) const;
    void search(const CueTimes& times, std::int32_t time);

private:
    static constexpr std::uint32_t noIndex = 0x7FFFFFFF;

    /// At the last moment of the cue before a gap: a seek finds that cue as playing does, from both sides.
    bool isAtEndBefore(std::int32_t time, std::int32_t start) const {
        return time < start && _index > 0 && _prevEnd == time;
    }

    std::uint32_t _index = noIndex;
    /// Of the cue before the cursor; 0 for the first.
    double _prevEnd = 0;
};

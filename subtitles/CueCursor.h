// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// The place in a track's cues where the last search ended. The next one goes on from there, a cue at a time, so that
/// playing forward is a comparison. In a gap the cursor stays on the later cue; before the first cue it stays on the
/// first, after the last on the last.
class CueCursor {
public:
    /// Puts the cursor on one of the cues; before that, and after clear(), it must not be asked for anything.
    void place(std::span<const std::int32_t> ends, std::size_t index);
    /// The same among cues that stand in no order: the cursor stays for no time, and search() is not for it.
    void placeInDisorder(std::size_t index);
    void clear();
    std::size_t index() const { return _index; }

    /// Whether the cue at the cursor, with this start and end, is still the one to look at. The cheap question before
    /// a search; it needs none of the other cues.
    bool staysFor(std::int32_t time, std::int32_t start, std::int32_t end) const;
    /// Over the ends of the cues, in the file's order, which is that of the ends. The start of a cue is asked for once
    /// at most.
    template <class StartOf>
    void search(std::span<const std::int32_t> ends, std::int32_t time, const StartOf& startOf) {
        move(ends, time);
        // The last moment of a cue before a gap: a seek finds that cue as playing does, from both sides.
        if (isAtEndBefore(time) && time < startOf(_index))
            place(ends, _index - 1);
    }

private:
    static constexpr std::uint32_t noIndex = 0x7FFFFFFF;

    void move(std::span<const std::int32_t> ends, std::int32_t time);
    bool isAtEndBefore(std::int32_t time) const { return _index > 0 && _prevEnd == time; }

    std::uint32_t _index = noIndex;
    /// Of the cue before the cursor; 0 for the first.
    double _prevEnd = 0;
};

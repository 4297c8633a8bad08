// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// When a cue shows: start <= time <= end. One that ends before it starts never does.
struct CueSpan {
    std::int32_t start = 0;
    std::int32_t end = 0;
};

/// Finds the cue of a time among cues that stand in no order and may overlap: those of a file whose end was written by
/// another hand than its beginning, say. A file in order needs none of this: CueCursor goes along it.
class CueOrder {
public:
    CueOrder() = default;
    /// The cues in the file's order; at least one when it is to be searched.
    explicit CueOrder(std::span<const CueSpan> cues);

    /// Of the cues that show at the time the one that started last, and of those the last of the file. In a gap the
    /// cue that starts next; after all of them the one that started last.
    std::size_t indexFor(std::int32_t time) const;

private:
    struct Entry {
        CueSpan span;
        std::size_t index = 0;
        /// The latest end up to here: whether it is worth looking further back.
        std::int32_t latestEnd = 0;
    };
    /// By start.
    std::vector<Entry> _entries;
};

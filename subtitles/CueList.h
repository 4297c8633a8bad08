// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/CueOrder.h"
#include "subtitles/QVSubtitle.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

/// The cues of a loaded track in the file's order, and beside them their ends, which a search walks over. Not locked:
/// a track that a worker fills guards it.
class CueList {
public:
    /// With memory for a short file; throws std::bad_alloc.
    CueList();

    /// Reading this cue may have changed the end of the one before it, and of no other.
    void append(std::shared_ptr<QVSubtitle> subtitle);
    /// Multiplies all times: those of another frame rate.
    void scaleTimes(float ratio);

    std::size_t count() const { return _subtitles.size(); }
    const std::vector<std::shared_ptr<QVSubtitle>>& subtitles() const { return _subtitles; }
    std::span<const std::int32_t> ends() const { return _ends; }

    /// Whether each cue ends before the next one of the file begins, and ends. Only then a cursor may walk along the
    /// ends.
    bool isInOrder() const;
    /// The place of the cue of a time, whatever order the cues are in; not without cues.
    std::size_t indexFor(std::int32_t time);

private:
    std::vector<std::shared_ptr<QVSubtitle>> _subtitles;
    std::vector<std::int32_t> _ends;
    /// Of all cues but the last one, whose end may still change.
    bool _isSettledInOrder = true;
    /// Made for a search, until the cues change.
    std::optional<CueOrder> _order;
};

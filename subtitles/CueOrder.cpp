// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueOrder.h"

#include <algorithm>

CueOrder::CueOrder(std::span<const CueSpan> cues) {
    _entries.reserve(cues.size());
    for (const CueSpan& span : cues)
        _entries.push_back({span, _entries.size(), span.end});
    std::ranges::stable_sort(_entries, {}, [](const Entry& entry) { return entry.span.start; });
    for (std::size_t at = 1; at < _entries.size(); ++at)
        _entries[at].latestEnd = std::max(_entries[at].latestEnd, _entries[at - 1].latestEnd);
}

std::size_t CueOrder::indexFor(std::int32_t time) const {
    const auto next = std::ranges::upper_bound(_entries, time, {}, [](const Entry& entry) { return entry.span.start; });
    for (auto entry = next; entry != _entries.begin() && std::prev(entry)->latestEnd >= time; --entry) {
        if (std::prev(entry)->span.end >= time)
            return std::prev(entry)->index;
    }
    return next == _entries.end() ? _entries.back().index : next->index;
}

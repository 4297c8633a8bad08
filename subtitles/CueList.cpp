// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/CueList.h"

#include "subtitles/CueTiming.h"

#include <utility>

CueList::CueList() {
    constexpr std::size_t usualCount = 100;
    _subtitles.reserve(usualCount);
    _ends.reserve(usualCount);
}

void CueList::append(std::shared_ptr<QVSubtitle> subtitle) {
    if (!_ends.empty()) {
        _ends.back() = _subtitles.back()->end();
        _isSettledInOrder = isInOrder();
    }
    _ends.push_back(subtitle->end());
    _subtitles.push_back(std::move(subtitle));
    _order.reset();
}

bool CueList::isInOrder() const {
    if (!_isSettledInOrder || _ends.size() < 2)
        return _isSettledInOrder;
    const std::int32_t before = _ends[_ends.size() - 2];
    return before <= _ends.back() && before <= _subtitles.back()->start();
}

std::size_t CueList::indexFor(std::int32_t time) {
    if (!_order) {
        std::vector<CueSpan> spans;
        spans.reserve(_subtitles.size());
        for (const std::shared_ptr<QVSubtitle>& subtitle : _subtitles)
            spans.push_back({subtitle->start(), subtitle->end()});
        _order.emplace(spans);
    }
    return _order->indexFor(time);
}

void CueList::scaleTimes(float ratio) {
    for (std::size_t index = 0; index < _subtitles.size(); ++index) {
        QVSubtitle& subtitle = *_subtitles[index];
        subtitle.setStart(CueTiming::truncated(static_cast<float>(subtitle.start()) * ratio));
        subtitle.setEnd(CueTiming::truncated(static_cast<float>(subtitle.end()) * ratio));
        _ends[index] = subtitle.end();
    }
    _order.reset();
}

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
    if (!_ends.empty())
        _ends.back() = _subtitles.back()->end();
    _ends.push_back(subtitle->end());
    _subtitles.push_back(std::move(subtitle));
}

void CueList::scaleTimes(float ratio) {
    for (std::size_t index = 0; index < _subtitles.size(); ++index) {
        QVSubtitle& subtitle = *_subtitles[index];
        subtitle.setStart(CueTiming::truncated(static_cast<float>(subtitle.start()) * ratio));
        subtitle.setEnd(CueTiming::truncated(static_cast<float>(subtitle.end()) * ratio));
        _ends[index] = subtitle.end();
    }
}

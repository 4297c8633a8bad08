// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/TimedCue.h"

#include "subtitles/CueTiming.h"

#include <algorithm>
#include <utility>

namespace {

/// What stands at once beyond that would not fit on the screen.
constexpr std::size_t maximumAtOnce = 8;
/// Characters of all texts that are put together. What needs more is no film's.
constexpr qsizetype maximumJoined = 32 * 1024 * 1024;

void setEnds(std::vector<TimedCue>& cues) {
    for (std::size_t at = 0; at < cues.size(); ++at) {
        TimedCue& cue = cues[at];
        if (cue.end >= cue.start)
            continue;
        cue.end = cue.start + CueTiming::guessedMilliseconds;
        if (at + 1 < cues.size())
            cue.end = std::min(cue.end, cues[at + 1].start);
    }
}

/// Codes last until others are set: they end with their cue.
QString joined(const QString& above, const QString& below) {
    const bool mayLast = above.contains(u'{') || above.contains(u'<');
    return above + (mayLast ? QStringLiteral("\n{\\r}") : QStringLiteral("\n")) + below;
}

/// Walks along the starts and ends of cues in order, and puts down what stands between two of them.
class Sweep {
public:
    explicit Sweep(std::size_t& left)
        : _left(left) {}

    void take(TimedCue& cue) {
        putUntil(cue.start);
        // The one that ends first goes.
        if (_standing.size() >= maximumAtOnce) {
            std::erase(_standing, *std::ranges::min_element(_standing, {}, &TimedCue::end));
            ++_left;
        }
        _standing.push_back(&cue);
        _now = cue.start;
    }
    std::vector<TimedCue> finish() {
        while (!_standing.empty())
            putUntil((*std::ranges::max_element(_standing, {}, &TimedCue::end))->end);
        return std::move(_cues);
    }

private:
    void putUntil(std::int64_t time) {
        while (!_standing.empty()) {
            const std::int64_t next = std::min(time, (*std::ranges::min_element(_standing, {}, &TimedCue::end))->end);
            if (next > _now)
                put(next);
            _now = std::max(_now, next);
            std::erase_if(_standing, [this](const TimedCue* cue) { return cue->end <= _now; });
            if (next >= time)
                break;
        }
    }

    void put(std::int64_t end) {
        TimedCue cue{_now, end, {}, _standing.front()->place};
        for (const TimedCue* standing : _standing) {
            if (_standing.size() == 1) {
                cue.text = standing->text;
            } else if (_joined >= maximumJoined) {
                ++_left;
            } else {
                const bool isLater = standing->start > _standing.front()->start && !cue.text.isEmpty();
                const bool isFirst = cue.text.isEmpty();
                cue.text = isFirst   ? standing->text
                           : isLater ? joined(standing->text, cue.text)
                                     : joined(cue.text, standing->text);
                _joined += cue.text.size();
            }
            // Two places for one text: it stands where texts stand.
            if (standing->place != cue.place)
                cue.place = 0;
        }
        _cues.push_back(std::move(cue));
    }

    std::size_t& _left;
    std::vector<TimedCue*> _standing; // by their starts
    std::int64_t _now = 0;
    qsizetype _joined = 0;
    std::vector<TimedCue> _cues;
};

} // namespace

std::vector<TimedCue> oneAtATime(std::vector<TimedCue> cues, std::size_t& left) {
    std::ranges::stable_sort(cues, {}, &TimedCue::start);
    setEnds(cues);
    const auto standsTooLong = [](const TimedCue& cue, const TimedCue& next) { return cue.end > next.start; };
    if (std::ranges::adjacent_find(cues, standsTooLong) == cues.end())
        return cues;
    Sweep sweep(left);
    for (TimedCue& cue : cues)
        sweep.take(cue);
    return sweep.finish();
}

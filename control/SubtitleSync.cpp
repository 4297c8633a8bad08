// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/SubtitleSync.h"

#include "control/DelayText.h"
#include "overlays/SubtitleMarkup.h"
#include "platform/base/Localization.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "subtitles/QVSubtitlesController.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

using platform::localizedFormat;
using platform::localizedString;

namespace {

/// Of a line that is quoted.
constexpr qsizetype maximumQuoted = 40;

/// The delay, and the speed where it is another one.
QString shiftText(const CueShift& shift) {
    const QString delay = localizedFormat(QStringLiteral("Subtitle delay: %@"), {delayText(shift.delay)});
    if (shift.speed == 1)
        return delay;
    const QString percent = QLocale().toString(shift.speed * 100, 'f', 2) + QStringLiteral(" %");
    return delay + QStringLiteral(", ") + percent;
}

QString quoted(const QVSubtitle& cue) {
    const QString text = SubtitleMarkup::read(cue.beginningOfText(SubtitleMarkup::maximumRead)).text.text;
    const QString line = text.section(u'\n', 0, 0);
    return line.size() <= maximumQuoted ? line : line.left(maximumQuoted) + u'\u2026';
}

} // namespace

QString SubtitleSync::set(const CueShift& shift) {
    _subtitles.current()->setShift(shift);
    _subtitles.showCueOfNow();
    return shiftText(shift);
}

QString SubtitleSync::shiftBy(std::int32_t milliseconds) {
    const std::shared_ptr<QVSubtitles> track = _subtitles.current();
    if (!track)
        return _subtitles.currentInfoAsString();
    const CueShift& shift = track->shift();
    const auto later = CueShift::from(std::int64_t{shift.delay} + milliseconds, shift.speed);
    return set(later.value_or(shift));
}

QString SubtitleSync::reset() {
    return _subtitles.current() ? set(CueShift()) : _subtitles.currentInfoAsString();
}

QString SubtitleSync::firstLineIsNow() {
    return alignLine(Line::first);
}

QString SubtitleSync::lastLineIsNow() {
    return alignLine(Line::last);
}

QString SubtitleSync::alignLine(Line line) {
    const std::shared_ptr<QVSubtitles> track = _subtitles.current();
    const std::shared_ptr<QVMovie> movie = _view.movie();
    const auto cues = track ? track->cues() : std::vector<std::shared_ptr<QVSubtitle>>();
    if (cues.empty() || !movie || track->isLoading())
        return _subtitles.currentInfoAsString();
    const auto [first, last] = std::ranges::minmax_element(cues, {}, &QVSubtitle::start);
    const auto milliseconds = [&movie](std::int32_t time) { return time * 1000.0 / movie->timeScale(); };
    const double now = milliseconds(movie->time()), firstCue = milliseconds((*first)->start());
    const CueShift& shift = track->shift();
    const auto aligned = line == Line::first ? CueShift::from(std::llround(now - firstCue * shift.speed), shift.speed)
                                             : CueShift::through(firstCue, shift.movieTime(firstCue),
                                                                 milliseconds((*last)->start()), now);
    if (!aligned)
        return localizedString(QStringLiteral("SubtitleLinesTooFar"));
    const QString said = set(*aligned);
    const QString text = quoted(line == Line::first ? **first : **last);
    return text.isEmpty() ? said : said + u'\n' + text;
}

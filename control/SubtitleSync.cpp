// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/SubtitleSync.h"

#include "control/DelayText.h"
#include "overlays/SubtitleMarkup.h"
#include "platform/base/Localization.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "subtitles/QVSubtitlesController.h"

#include <QLocale>

#include <cmath>
#include <utility>

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

/// Whole milliseconds: a line that is spoken now has begun.
std::int64_t begunBy(double delay) {
    constexpr double noise = 1e-6;
    return static_cast<std::int64_t>(std::floor(delay + noise));
}

QString quoted(const QString& markup) {
    const QString text = SubtitleMarkup::read(markup).text.text;
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

void SubtitleSync::lineIsNow(Line line, std::function<void(const QString&)> said) {
    const std::shared_ptr<QVSubtitles> track = _subtitles.current();
    const std::shared_ptr<QVMovie> movie = _view.movie();
    if (!track || !movie) {
        said(_subtitles.currentInfoAsString());
        return;
    }
    // Where the lines have to be looked for, the movie goes on meanwhile.
    const double now = movie->time() * 1000.0 / movie->timeScale();
    track->findEnds([alive = std::weak_ptr(_alive), this, now, line, track = std::weak_ptr(track),
                     said = std::move(said)](const std::optional<platform::SubtitleEnds>& ends) {
        const auto asked = track.lock();
        if (alive.lock() && asked)
            said(asked != _subtitles.current() || !ends ? _subtitles.currentInfoAsString()
                                                        : align(*asked, line, *ends, now));
    });
}

QString SubtitleSync::align(const QVSubtitles& track, Line line, const platform::SubtitleEnds& ends, double now) {
    const double first = ends.first.time * 1000;
    const CueShift& shift = track.shift();
    const auto aligned = line == Line::first
                             ? CueShift::from(begunBy(now - first * shift.speed), shift.speed)
                             : CueShift::through(first, shift.movieTime(first), ends.last.time * 1000, now);
    if (!aligned)
        return localizedString(QStringLiteral("SubtitleLinesTooFar"));
    const QString said = set(*aligned);
    const QString text = quoted((line == Line::first ? ends.first : ends.last).text);
    return text.isEmpty() ? said : said + u'\n' + text;
}

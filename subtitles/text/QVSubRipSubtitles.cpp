// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVSubRipSubtitles.h"

#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/input/TimeOfDay.h"

#include <array>

namespace {

using Numbers = std::array<std::int32_t, 8>;

bool isTimingLine(std::string_view line, Numbers& numbers) {
    return scanLine(line, "%d:%d:%d,%d --> %d:%d:%d,%d", numbers).filled == numbers.size();
}

} // namespace

QVSubRipSubtitles::QVSubRipSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner)
    : TextSubtitles(settings, path, owner, typeSubRip, static_cast<float>(owner.timeScale()) / 1000.0F) {}

bool QVSubRipSubtitles::isFormatValid(std::string_view text) {
    LineReader lines(text);
    Numbers numbers{};
    for (int count = 0; count < probedLines; ++count) {
        const auto line = lines.next();
        if (!line)
            return false;
        if (isTimingLine(*line, numbers))
            return true;
    }
    return false;
}

QStringList QVSubRipSubtitles::extensionsList() {
    return {QStringLiteral("srt")};
}

std::shared_ptr<QVSubtitle> QVSubRipSubtitles::readSubtitle(LineReader& lines) {
    PendingText& text = emptiedText();
    Numbers numbers{};
    while (text.isEmpty()) {
        auto line = lines.next();
        while (line && !isTimingLine(*line, numbers))
            line = lines.next();
        if (!line)
            return nullptr;
        while ((line = lines.next()) && !line->starts_with('\r') && !line->starts_with('\n'))
            appendPiece(*line, text);
    }
    const auto time = [&](std::size_t first) {
        return ajustToMovieTimeScale(
            milliseconds(numbers[first], numbers[first + 1], numbers[first + 2], numbers[first + 3]));
    };
    auto subtitle = makeSubtitle(text, time(0), time(4));
    if (_previous && _previous->end() > subtitle->start())
        _previous->setEnd(subtitle->start());
    _previous = subtitle;
    return subtitle;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVTMPlayerSubtitles.h"

#include "settings/Tracing.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/input/TimeOfDay.h"
#include "subtitles/text/CueText.h"

#include <array>
#include <optional>

namespace {

/// How long the last cue lasts.
constexpr std::int32_t lastCueMilliseconds = 3000;

struct LineStart {
    std::int32_t milliseconds = 0;
    std::int32_t lineNumber = 0; // of a cue with numbered lines
    std::size_t textOffset = 0;
};

std::optional<LineStart> scanStart(std::string_view line) {
    std::array<std::int32_t, 5> values{};
    const auto time = [&] { return milliseconds(values[0], values[1], values[2], 0); };
    if (const Scan scan = scanLine(line, "%d:%d:%d,%d%c", values); scan.filled == 5)
        return LineStart{time(), values[3], scan.consumed};
    if (const Scan scan = scanLine(line, "%d:%d:%d%c", values); scan.filled == 4)
        return LineStart{time(), 0, scan.consumed};
    return std::nullopt;
}

/// "00:00:01.50,00:00:03.20", above its text: SubViewer.
bool isTimedInHundredths(std::string_view line) {
    std::array<std::int32_t, 8> numbers{};
    return scanLine(line, "%d:%d:%d.%d,%d:%d:%d.%d", numbers).filled == numbers.size();
}

} // namespace

QVTMPlayerSubtitles::QVTMPlayerSubtitles(const platform::UserDefaults& settings, const QString& path,
                                         SubtitleOwner& owner)
    : TextSubtitles(settings, path, owner, typeTMPlayer, static_cast<float>(owner.timeScale()) / 1000.0F) {}

bool QVTMPlayerSubtitles::isFormatValid(std::string_view text, ReadingMode mode) {
    LineReader lines(text, mode);
    std::array<std::int32_t, 3> numbers{};
    bool isTimed = false;
    for (int count = 0; count < probedLines; ++count) {
        const auto line = lines.next();
        if (!line)
            break;
        // The times of another format would be shown as texts.
        if (line->find("-->") != std::string_view::npos || isTimedInHundredths(*line))
            return false;
        // Whatever separates the text from the time is not looked at.
        isTimed = isTimed || scanLine(*line, "%d:%d:%d", numbers).filled == numbers.size();
    }
    return isTimed;
}

QStringList QVTMPlayerSubtitles::extensionsList() {
    return {QStringLiteral("txt")};
}

std::shared_ptr<QVSubtitle> QVTMPlayerSubtitles::readSubtitle(LineReader& lines) {
    PendingText& pending = emptiedText();
    QString& text = pending.copy;
    std::optional<LineStart> start;
    do {
        const auto line = lines.next();
        if (!line)
            return nullptr;
        const auto found = scanStart(*line);
        if (!found) {
            if (!CueText::isBlank(*line))
                noteLosses(1);
            continue;
        }
        start = found;
        CueText::splitSegments(line->substr(found->textOffset), lines,
                               [&](std::string_view segment) { appendBytes(segment, text); });
    } while (text.isEmpty() || start->lineNumber == 1);

    const std::int32_t begin = ajustToMovieTimeScale(start->milliseconds);
    const std::int32_t end = clampedTo32Bits(std::int64_t{begin} + ajustToMovieTimeScale(lastCueMilliseconds));
    auto subtitle = makeSubtitle(pending, begin, end);
    trace("%@: %d - %d %@", className(), begin, end, text);
    endPrevious(begin);
    _previous = subtitle;
    return subtitle;
}

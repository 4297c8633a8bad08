// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVSubRipSubtitles.h"

#include "subtitles/input/LineReader.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/text/CueText.h"

namespace {

constexpr std::string_view digits = "0123456789";

/// The line that begins a block.
bool isNumber(std::string_view line) {
    constexpr std::string_view mark = "\xEF\xBB\xBF"; // stays where the encoding was chosen otherwise
    line.remove_prefix(line.starts_with(mark) ? mark.size() : 0);
    return !CueText::isBlank(line) && line.find_first_not_of("0123456789 \t\r\n") == std::string_view::npos;
}

/// A line with times, even if they can't be made out: never a text.
bool looksLikeTiming(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first != std::string_view::npos && digits.find(line[first]) != std::string_view::npos &&
           line.find("-->") != std::string_view::npos;
}

/// Whether a block begins with a line; the reader stands behind it.
bool beginsBlock(std::string_view line, LineReader rest) {
    std::optional<std::string_view> timing = line;
    if (isNumber(line)) {
        do
            timing = rest.next();
        while (timing && CueText::isBlank(*timing));
    }
    return timing && looksLikeTiming(*timing);
}

} // namespace

QVSubRipSubtitles::QVSubRipSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner)
    : TextSubtitles(settings, path, owner, typeSubRip, static_cast<float>(owner.timeScale()) / 1000.0F) {}

bool QVSubRipSubtitles::isFormatValid(std::string_view text, ReadingMode mode) {
    LineReader lines(text, mode);
    for (int count = 0; count < probedLines; ++count) {
        const auto line = lines.next();
        if (!line)
            return false;
        if (SubRipTiming::scan(*line, mode))
            return true;
    }
    return false;
}

QStringList QVSubRipSubtitles::extensionsList() {
    return {QStringLiteral("srt")};
}

std::shared_ptr<QVSubtitle> QVSubRipSubtitles::readSubtitle(LineReader& lines) {
    PendingText& text = emptiedText();
    std::optional<SubRipTiming> timing;
    while (text.isEmpty()) {
        timing = findTiming(lines);
        if (!timing)
            return nullptr;
        if (mode() == ReadingMode::strict)
            takeTextStrictly(lines, text);
        else
            takeTextRepairing(lines, text);
    }
    auto subtitle = makeSubtitle(text, ajustToMovieTimeScale(timing->start), ajustToMovieTimeScale(timing->end));
    if (_previous && _previous->end() > subtitle->start())
        endPrevious(subtitle->start());
    _previous = subtitle;
    return subtitle;
}

std::optional<SubRipTiming> QVSubRipSubtitles::findTiming(LineReader& lines) {
    while (const auto line = lines.next()) {
        if (const auto timing = SubRipTiming::scan(*line, mode()))
            return timing;
        if (!CueText::isBlank(*line) && !isNumber(*line))
            noteLosses(1);
    }
    return std::nullopt;
}

void QVSubRipSubtitles::takeTextStrictly(LineReader& lines, PendingText& text) {
    while (const auto line = lines.next()) {
        if (line->starts_with('\r') || line->starts_with('\n'))
            break;
        appendPiece(*line, text);
    }
}

/// A blank line does not end a text: only the next block does.
void QVSubRipSubtitles::takeTextRepairing(LineReader& lines, PendingText& text) {
    for (LineReader ahead = lines; const auto line = ahead.next(); lines = ahead) {
        if (beginsBlock(*line, ahead))
            break;
        if (!text.isEmpty() || !CueText::isBlank(*line))
            appendLine(*line, text);
    }
}

/// In place where the line ends as a line of the text may end.
void QVSubRipSubtitles::appendLine(std::string_view line, PendingText& text) {
    const std::string_view content = CueText::withoutLineEnd(line);
    const std::string_view end = line.substr(content.size());
    if (end.empty() || end == "\n" || end == "\r\n") {
        appendPiece(line, text);
    } else {
        appendPiece(content, text);
        appendPiece("\n", text);
    }
}

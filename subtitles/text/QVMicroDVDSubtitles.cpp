// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVMicroDVDSubtitles.h"

#include "subtitles/CueTiming.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/input/TimeOfDay.h"
#include "subtitles/text/CueText.h"

#include <array>

namespace {

/// How long a cue without an end lasts when no other follows.
constexpr std::int64_t framesWithoutEnd = 100;

struct Frames {
    std::int32_t start = 0;
    std::int32_t end = 0;
    bool endUndefined = false;
};

std::optional<Frames> scanFrames(std::string_view line) {
    std::array<std::int32_t, 2> numbers{};
    for (const char* format : {"{%d}{%d}", "{%d } {%d }"}) {
        if (scanLine(line, format, numbers).filled == 2)
            return Frames{numbers[0], numbers[1], false};
    }
    if (scanLine(line, "{%d}{}", numbers).filled == 1)
        return Frames{numbers[0], clampedTo32Bits(numbers[0] + framesWithoutEnd), true};
    return std::nullopt;
}

} // namespace

QVMicroDVDSubtitles::QVMicroDVDSubtitles(const platform::UserDefaults& settings, const QString& path,
                                         SubtitleOwner& owner)
    : TextSubtitles(settings, path, owner, typeMicroDVD, static_cast<float>(owner.timeScale())) {}

bool QVMicroDVDSubtitles::isFormatValid(std::string_view text) {
    LineReader lines(text);
    std::array<std::int32_t, 1> number{};
    for (int count = 0; count < probedLines; ++count) {
        const auto line = lines.next();
        if (!line)
            return false;
        // Two numbers between braces begin like one.
        if (scanLine(*line, "{%d}{}", number).filled == 1)
            return true;
    }
    return false;
}

QStringList QVMicroDVDSubtitles::extensionsList() {
    return {QStringLiteral("sub"), QStringLiteral("txt")};
}

std::shared_ptr<QVSubtitle> QVMicroDVDSubtitles::readSubtitle(LineReader& lines) {
    PendingText& pending = emptiedText();
    QString& text = pending.copy;
    std::optional<Frames> frames;
    while (text.isEmpty()) {
        const auto line = lines.next();
        if (!line)
            return nullptr;
        frames = scanFrames(*line);
        const std::size_t brace = line->rfind('}');
        if (!frames || brace == std::string_view::npos)
            continue;
        const std::string_view rest = line->substr(brace + 1);
        if (rest.find_first_not_of("\r\n") == std::string_view::npos)
            continue;
        CueText::splitSegments(rest, lines, [&](std::string_view segment) { appendBytes(segment, text); });
    }
    const float rate = actualFrameRate(frameRateChoice());
    const auto time = [&](std::int32_t frame) {
        return ajustToMovieTimeScale(CueTiming::truncated(static_cast<float>(frame) / rate));
    };
    auto subtitle = makeSubtitle(pending, time(frames->start), time(frames->end));
    if (_previous && (_endTimeUndefined || _previous->end() > subtitle->start()))
        _previous->setEnd(subtitle->start());
    _previous = subtitle;
    _endTimeUndefined = frames->endUndefined;
    return subtitle;
}

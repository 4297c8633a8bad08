// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVMicroDVDSubtitles.h"

#include "subtitles/CueTiming.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/text/CueText.h"

#include <algorithm>
#include <utility>

QVMicroDVDSubtitles::QVMicroDVDSubtitles(const platform::UserDefaults& settings, const QString& path,
                                         SubtitleOwner& owner)
    : TextSubtitles(settings, path, owner, typeMicroDVD, static_cast<float>(owner.timeScale())) {}

bool QVMicroDVDSubtitles::isFormatValid(std::string_view text, ReadingMode mode) {
    LineReader lines(text, mode);
    for (int count = 0; count < probedLines; ++count) {
        const auto line = lines.next();
        if (!line)
            return false;
        if (MicroDVDLine::scanFrames(*line, mode))
            return true;
    }
    return false;
}

QStringList QVMicroDVDSubtitles::extensionsList() {
    return {QStringLiteral("sub"), QStringLiteral("txt")};
}

void QVMicroDVDSubtitles::setFrameRate(std::int32_t choice) {
    if (mode() == ReadingMode::strict) {
        QVSubtitles::setFrameRate(choice);
    } else if (choice != frameRateChoice() && count() > 0) {
        if (std::optional<QByteArray> bytes = fileBytes()) {
            setLoadedFrameRate(choice);
            readAgain(*std::exchange(bytes, std::nullopt));
        }
    }
}

void QVMicroDVDSubtitles::beginReading() {
    _rateOfFile.reset();
    _isFirstLine = true;
}

std::shared_ptr<QVSubtitle> QVMicroDVDSubtitles::readSubtitle(LineReader& lines) {
    return mode() == ReadingMode::strict ? readStrictly(lines) : readRepairing(lines);
}

std::shared_ptr<QVSubtitle> QVMicroDVDSubtitles::readStrictly(LineReader& lines) {
    PendingText& pending = emptiedText();
    QString& text = pending.copy;
    std::optional<MicroDVDFrames> frames;
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
    return finish(makeSubtitle(pending, time(frames->start), time(frames->end)), *frames);
}

std::shared_ptr<QVSubtitle> QVMicroDVDSubtitles::readRepairing(LineReader& lines) {
    PendingText& pending = emptiedText();
    std::optional<MicroDVDFrames> frames;
    while (pending.copy.isEmpty()) {
        const auto line = lines.next();
        if (!line)
            return nullptr;
        frames = scanFrames(*line);
        if (!frames)
            continue;
        const std::string_view rest = line->substr(frames->consumed);
        const bool maySayRate = std::exchange(_isFirstLine, false) && frames->start == 1 && frames->end == 1;
        if (maySayRate && (_rateOfFile = MicroDVDLine::frameRate(rest)))
            continue;
        appendText(CueText::withoutLineEnd(rest), pending.copy);
    }
    const double rate = _rateOfFile.value_or(actualFrameRate(frameRateChoice()));
    const auto time = [&](std::int32_t frame) { return nearestMovieTime(frame / rate); };
    return finish(makeSubtitle(pending, time(frames->start), time(frames->end)), *frames);
}

/// Lines that are neither frames nor blank are noted.
std::optional<MicroDVDFrames> QVMicroDVDSubtitles::scanFrames(std::string_view line) {
    const auto frames = MicroDVDLine::scanFrames(line, mode());
    if (!frames && !CueText::isBlank(line))
        noteLosses(1);
    return frames;
}

/// A line of the cue at a time, so that one that cannot be decoded takes no other with it.
void QVMicroDVDSubtitles::appendText(std::string_view line, QString& text) {
    const std::string kept = MicroDVDLine::withoutCodes(line);
    for (std::string_view rest = kept; !CueText::isBlank(rest);) {
        const std::size_t bar = std::min(rest.find('|'), rest.size());
        if (!text.isEmpty())
            text += u'\n';
        appendBytes(rest.substr(0, bar), text);
        rest.remove_prefix(std::min(bar + 1, rest.size()));
    }
}

std::shared_ptr<QVSubtitle> QVMicroDVDSubtitles::finish(std::shared_ptr<QVSubtitle> subtitle,
                                                        const MicroDVDFrames& frames) {
    if (_previous && (_endTimeUndefined || _previous->end() > subtitle->start()))
        endPrevious(subtitle->start());
    _previous = subtitle;
    _endTimeUndefined = frames.endUndefined;
    return subtitle;
}

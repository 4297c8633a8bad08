// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/TextSubtitles.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "settings/Tracing.h"
#include "subtitles/input/LineReader.h"

#include <optional>
#include <utility>

namespace {

/// What is larger, or has more cues, is no text that somebody wrote, and would stop the player for seconds.
constexpr qsizetype maximumFileSize = 256 * 1024 * 1024;
constexpr std::size_t maximumCues = 2'000'000;
constexpr qsizetype maximumLine = 16 * 1024 * 1024;

} // namespace

std::optional<QByteArray> TextSubtitles::fileBytes() const {
    std::optional<platform::TextFile> file = platform::readTextFile(path(), maximumFileSize, maximumLine);
    if (!file) {
        logAlways("ERROR: %@: Unable to open subtitles file \"%@\" for reading.", className(),
                  platform::lastPathComponent(path()));
        return std::nullopt;
    }
    if (file->leftOut > 0)
        logAlways("WARNING: %@: \"%@\" has lines that are too long, their ends are left out.", className(),
                  platform::lastPathComponent(path()));
    return std::move(file->bytes);
}

void TextSubtitles::_preload() {
    if (std::optional<QByteArray> bytes = fileBytes())
        readFile(*std::exchange(bytes, std::nullopt));
    else
        reset();
}

void TextSubtitles::readFile(QByteArray bytes) {
    const bool cut = bytes.size() == maximumFileSize;
    trace("%@: Begin parsing subtitles file \"%@\"%@.", className(), platform::lastPathComponent(path()), "");
    readAll(std::move(bytes), encoding());
    if (cut || count() >= maximumCues)
        logAlways("WARNING: %@: \"%@\" is too large, its end is left out.", className(),
                  platform::lastPathComponent(path()));
}

void TextSubtitles::readAll(QByteArray bytes, std::uint32_t encoding) {
    SubtitleText text = SubtitleText::fromBytes(std::move(bytes), encoding);
    setLoadedEncoding(text.encoding);
    _store = std::make_shared<TextStore>(std::move(text));
    LineReader lines(_store->view(), mode());
    forgetLosses();
    beginReading();
    std::size_t read = 0;
    do {
        if (std::shared_ptr<QVSubtitle> subtitle = readSubtitle(lines)) {
            appendSubtitle(std::move(subtitle));
            ++read;
        }
    } while (!lines.isAtEnd() && read < maximumCues);
    _previous.reset();
    _store->finishReading();
    _store.reset();
    finishLoading();
}

void TextSubtitles::setEncoding(std::uint32_t encoding) {
    if (encoding == this->encoding() || !isLoaded())
        return;
    if (std::optional<QByteArray> bytes = fileBytes()) {
        setLoadedEncoding(encoding);
        readAgain(*std::exchange(bytes, std::nullopt));
    }
}

void TextSubtitles::readAgain(QByteArray bytes) {
    takeCues();
    readFile(std::move(bytes));
    replaceCues(takeCues());
}

void TextSubtitles::endPrevious(std::int32_t start) {
    if (_previous && (mode() == ReadingMode::strict || start >= _previous->start()))
        _previous->setEnd(start);
}

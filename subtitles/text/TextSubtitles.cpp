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

} // namespace

void TextSubtitles::_preload() {
    std::optional<QByteArray> bytes = platform::readRegularFile(path(), maximumFileSize);
    if (!bytes) {
        logAlways("ERROR: %@: Unable to open subtitles file \"%@\" for reading.", className(),
                  platform::lastPathComponent(path()));
        reset();
        return;
    }
    const bool cut = bytes->size() == maximumFileSize;
    trace("%@: Begin parsing subtitles file \"%@\"%@.", className(), platform::lastPathComponent(path()), "");
    readAll(std::move(*bytes), encoding());
    if (cut || count() >= maximumCues)
        logAlways("WARNING: %@: \"%@\" is too large, its end is left out.", className(),
                  platform::lastPathComponent(path()));
}

void TextSubtitles::readAll(QByteArray bytes, std::uint32_t encoding) {
    SubtitleText text = SubtitleText::fromBytes(std::move(bytes), encoding);
    setLoadedEncoding(text.encoding);
    _store = std::make_shared<TextStore>(std::move(text));
    LineReader lines(_store->view());
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
    if (encoding == platform::textEncoding::automatic)
        readAgain();
    else if (encoding != this->encoding() && count() > 0)
        decodeAgain(encoding);
}

void TextSubtitles::decodeAgain(std::uint32_t encoding) {
    platform::TextDecoder decoder(encoding);
    for (const std::shared_ptr<QVSubtitle>& subtitle : cues()) {
        const auto bytes = platform::lossyData(subtitle->text(), this->encoding());
        if (!bytes)
            continue;
        QString text = QLatin1String("");
        const std::string_view view(bytes->constData(), static_cast<std::size_t>(bytes->size()));
        subtitle->setText(decoder.append(view, text) ? text : QString());
    }
    setLoadedEncoding(encoding);
}

/// The cues of the file itself take the place of those loaded; the cursor stays on its place. What was read in a wrong
/// encoding may have had no cue at all.
void TextSubtitles::readAgain() {
    if (!isLoaded())
        return;
    CueList kept = takeCues();
    const std::uint32_t before = encoding();
    setLoadedEncoding(platform::textEncoding::automatic);
    _preload();
    if (count() > 0) {
        replaceCues(takeCues());
        return;
    }
    // The file is gone: the texts stay as they were.
    replaceCues(std::move(kept));
    setLoadedEncoding(before);
}

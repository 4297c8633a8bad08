// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/SubtitleText.h"

#include "platform/base/RegularFile.h"
#include "platform/base/TextEncoding.h"
#include "subtitles/text/LineReader.h"

#include <QStringDecoder>

namespace {

using namespace platform;

/// A text in 16-bit units with a mark in front as UTF-8. A lone surrogate or a cut last unit spoils only its own place.
QByteArray narrowed(const QByteArray& bytes) {
    return QString(QStringDecoder(QStringDecoder::Utf16)(bytes)).toUtf8();
}

bool hasWideMark(const QByteArray& bytes) {
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

} // namespace

SubtitleText SubtitleText::fromBytes(QByteArray bytes, std::uint32_t encoding) {
    SubtitleText text;
    text.encoding = encoding == textEncoding::automatic
                        ? detectedTextEncoding({bytes.constData(), static_cast<std::size_t>(bytes.size())})
                        : encoding;
    text.decodeWith = text.encoding;
    if (text.encoding == textEncoding::utf16 && hasWideMark(bytes)) {
        bytes = narrowed(bytes);
        text.decodeWith = textEncoding::utf8;
    }
    if (text.decodeWith == textEncoding::utf8 && bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    text.bytes = std::move(bytes);
    return text;
}

SubtitleText SubtitleText::beginningOfFile(const QString& path) {
    // Two bytes for each of ASCII in a wide text, and its mark.
    constexpr qsizetype most = 2 * probedLines * static_cast<qsizetype>(LineReader::longestPiece) + 3;
    QByteArray bytes = readRegularFile(path, most).value_or(QByteArray());
    const std::uint32_t encoding = hasWideMark(bytes) ? textEncoding::utf16 : textEncoding::utf8;
    return fromBytes(std::move(bytes), encoding);
}

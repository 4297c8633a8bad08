// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/SubtitleText.h"

#include "platform/base/EncodingDetection.h"
#include "platform/base/RegularFile.h"
#include "platform/base/TextEncoding.h"
#include "platform/base/TextForm.h"
#include "subtitles/input/LineReader.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

using namespace platform;

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool hasWideMark(const QByteArray& bytes) {
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

/// Whether the bytes are 16-bit units that may be read as the encoding says.
bool isWide(const QByteArray& bytes, std::uint32_t encoding) {
    if (encoding == textEncoding::utf16)
        return hasWideMark(bytes) || wideEncodingWithoutMark(viewOf(bytes));
    return (encoding == textEncoding::utf16LittleEndian || encoding == textEncoding::utf16BigEndian) &&
           wideEncodingWithoutMark(viewOf(bytes)) == encoding;
}

/// A text in 16-bit units as UTF-8. A lone surrogate or a cut last unit spoils only its own place.
QByteArray narrowed(const QByteArray& bytes) {
    const bool isBig = !hasWideMark(bytes) && wideEncodingWithoutMark(viewOf(bytes)) == textEncoding::utf16BigEndian;
    const bool isLittle = !hasWideMark(bytes) && !isBig;
    QStringDecoder decoder(isBig      ? QStringDecoder::Utf16BE
                           : isLittle ? QStringDecoder::Utf16LE
                                      : QStringDecoder::Utf16);
    return QString(decoder(bytes)).toUtf8();
}

/// Whether a byte that looks like one of ASCII may be the second half of a character: like the bar and the brace by
/// which the readers take a text apart.
bool hidesASCII(std::uint32_t encoding) {
    constexpr std::uint32_t hiding[] = {8,          21,         0x80000420, 0x80000421, 0x80000422,
                                        0x80000423, 0x80000631, 0x80000632, 0x80000821, 0x80000822,
                                        0x80000830, 0x80000840, 0x80000A03, 0x80000A05, 0x80000A06};
    return std::ranges::find(hiding, encoding) != std::end(hiding);
}

enum class InvalidLines { kept, leftOut };

/// As UTF-8, line by line.
QByteArray narrowedByLine(const QByteArray& bytes, std::uint32_t encoding, InvalidLines invalid, std::size_t& lost) {
    TextDecoder decoder(encoding);
    QByteArray result;
    result.reserve(bytes.size());
    QString text;
    std::string_view rest(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, std::min(rest.find('\n'), rest.size() - 1) + 1);
        rest.remove_prefix(line.size());
        text.resize(0);
        if (decoder.append(line, text)) {
            result.append(text.toUtf8());
            continue;
        }
        ++lost;
        if (invalid == InvalidLines::kept)
            result.append(line.data(), static_cast<qsizetype>(line.size()));
    }
    return result;
}

} // namespace

SubtitleText SubtitleText::fromBytes(QByteArray bytes, std::uint32_t encoding) {
    SubtitleText text;
    text.encoding = encoding == textEncoding::automatic ? detectedTextEncoding(viewOf(bytes)) : encoding;
    text.decodeWith = text.encoding;
    if (isWide(bytes, text.encoding)) {
        bytes = narrowed(bytes);
        text.decodeWith = textEncoding::utf8;
    }
    if (encoding == textEncoding::automatic && hidesASCII(text.encoding)) {
        std::size_t lost = 0;
        bytes = narrowedByLine(bytes, text.encoding, InvalidLines::kept, lost);
        text.decodeWith = textEncoding::utf8;
    }
    if (text.decodeWith == textEncoding::utf8 && bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    text.bytes = std::move(bytes);
    return text;
}

SubtitleText SubtitleText::beginningOfFile(const QString& path) {
    // Two bytes for each of ASCII in a wide text, and its mark.
    constexpr qsizetype most = 2 * probedLines * static_cast<qsizetype>(LineReader::maximumPieceLength) + 3;
    QByteArray bytes = readRegularFile(path, most).value_or(QByteArray());
    const std::uint32_t encoding = isWide(bytes, textEncoding::utf16) ? textEncoding::utf16 : textEncoding::utf8;
    return fromBytes(std::move(bytes), encoding);
}

QByteArray SubtitleText::asUTF8(std::size_t& lost) const {
    if (decodeWith == textEncoding::utf8 && QUtf8StringView(bytes).isValidUtf8())
        return bytes;
    return narrowedByLine(bytes, decodeWith, InvalidLines::leftOut, lost);
}

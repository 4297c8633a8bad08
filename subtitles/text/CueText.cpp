// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/CueText.h"

#include <QUtf8StringView>

#include <algorithm>
#include <string>

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The bytes of the white space or newline at a place of valid UTF-8; 0 when there is another character.
std::size_t spaceAt(std::string_view utf8, std::size_t at) {
    const auto byte = [&](std::size_t index) { return static_cast<unsigned>(static_cast<unsigned char>(utf8[index])); };
    if (byte(at) < 0x80U)
        return QChar::isSpace(byte(at)) ? 1 : 0;
    // White space beyond ASCII takes two or three bytes.
    if (at + 1 < utf8.size() && byte(at) < 0xE0U)
        return QChar::isSpace((byte(at) & 0x1FU) << 6U | (byte(at + 1) & 0x3FU)) ? 2 : 0;
    if (at + 2 < utf8.size() && byte(at) < 0xF0U)
        return QChar::isSpace((byte(at) & 0x0FU) << 12U | (byte(at + 1) & 0x3FU) << 6U | (byte(at + 2) & 0x3FU)) ? 3
                                                                                                                 : 0;
    return 0;
}

} // namespace

namespace CueText {

void splitSegments(std::string_view rest, LineReader& lines, const std::function<void(std::string_view)>& append) {
    constexpr std::string_view separators = "|\r\n";
    while (!rest.empty()) {
        const std::size_t run = rest.find_first_of(separators);
        if (run == std::string_view::npos) {
            append(rest);
            rest = lines.next().value_or(std::string_view());
            continue;
        }
        const std::size_t next = std::min(rest.size(), rest.find_first_not_of(separators, run));
        if (rest[run] == '|') {
            std::string segment(rest.substr(0, next));
            segment[run] = '\n';
            append(segment);
        } else {
            append(rest.substr(0, next));
        }
        rest.remove_prefix(next);
    }
}

bool isBlank(std::string_view line) {
    return line.find_first_not_of(" \t\r\n\f\v") == std::string_view::npos;
}

std::string_view withoutLineEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

QString trimmed(const QString& text) {
    const QStringView kept = QStringView(text).trimmed();
    return kept.isEmpty() ? QString(QLatin1String("")) : kept.toString();
}

std::string_view trimmed(std::string_view utf8) {
    while (!utf8.empty()) {
        const std::size_t length = spaceAt(utf8, 0);
        if (length == 0)
            break;
        utf8.remove_prefix(length);
    }
    while (!utf8.empty()) {
        std::size_t last = utf8.size() - 1;
        while (isContinuation(utf8[last]) && last > 0)
            --last;
        if (spaceAt(utf8, last) == 0)
            break;
        utf8 = utf8.substr(0, last);
    }
    return utf8;
}

bool isValidUTF8(std::string_view bytes) {
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

bool endsBetweenCharacters(std::string_view piece, std::string_view text) {
    const char* const end = piece.data() + piece.size();
    const char* const textEnd = text.data() + text.size();
    return !text.empty() && !piece.empty() && !isContinuation(piece.front()) &&
           (end == textEnd || !isContinuation(*end));
}

} // namespace CueText

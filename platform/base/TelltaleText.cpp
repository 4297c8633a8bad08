// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TelltaleText.h"

#include "platform/base/ASCII.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::size_t tellingSize = 8192; // bytes: more would hardly change the answer
constexpr std::size_t plainSize = 2048;
constexpr std::size_t maximumLineSize = 512;

bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isHigh(char byte) {
    return (static_cast<unsigned char>(byte) & 0x80U) != 0;
}

/// The length of the tag, the entity or the braces that the text begins with; 0 when it begins with none.
std::size_t markupLength(std::string_view text, char before) {
    constexpr std::size_t longest = 200;
    const auto lengthTo = [text](char last, std::size_t most) {
        const std::size_t end = text.substr(0, most).find(last);
        return end != text.npos && isASCII(text.substr(0, end)) ? end + 1 : 0;
    };
    const char next = text.size() > 1 ? text[1] : ' ';
    if (text[0] == '<' && (isLetter(next) || next == '/'))
        return lengthTo('>', longest);
    if (text[0] == '&' && (isLetter(next) || next == '#'))
        return lengthTo(';', 10);
    // A brace may be the second byte of a character.
    if (text[0] == '{' && !isHigh(before) && (isLetter(next) || isDigit(next) || next == '\\'))
        return lengthTo('}', longest);
    return 0;
}

std::string withoutMarkup(std::string_view line) {
    std::string text;
    char before = ' ';
    while (!line.empty() && text.size() < maximumLineSize) {
        if (const std::size_t length = markupLength(line, before); length > 0) {
            line.remove_prefix(length);
            before = ' ';
            continue;
        }
        before = line.front();
        text.push_back(before);
        line.remove_prefix(1);
    }
    return text;
}

bool saysNothing(std::string_view line) {
    return line.find("-->") != line.npos || std::ranges::none_of(line, isLetter);
}

} // namespace

TelltaleText::TelltaleText(std::string_view bytes) {
    std::size_t telling = 0;
    std::size_t plain = 0;
    while (!bytes.empty() && telling < tellingSize) {
        std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const bool tells = !isASCII(line);
        if (!tells && (plain >= plainSize || saysNothing(line)))
            continue;
        _lines.push_back(withoutMarkup(line));
        (tells ? telling : plain) += _lines.back().size();
    }
    countPairs();
}

void TelltaleText::countPairs() {
    constexpr std::size_t values = 256;
    std::vector<std::uint32_t> counts(values * values);
    for (const std::string& line : _lines) {
        unsigned char before = '\n';
        for (const char byte : line + '\n') {
            const auto value = static_cast<unsigned char>(byte);
            ++counts[before * values + value];
            before = value;
        }
    }
    for (std::size_t index = 0; index < counts.size(); ++index) {
        if (counts[index] > 0)
            _pairs.push_back({static_cast<unsigned char>(index / values), static_cast<unsigned char>(index % values),
                              counts[index]});
    }
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextForm.h"

#include "platform/base/ASCII.h"
#include "platform/base/TextEncoding.h"

#include <QStringView>

#include <algorithm>

namespace platform {

bool isValidUTF8(std::string_view bytes) {
    for (int dropped = 0; dropped <= 3; ++dropped) {
        if (QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8())
            return true;
        if (bytes.empty() || isASCII(bytes.substr(bytes.size() - 1)))
            return false;
        bytes.remove_suffix(1);
    }
    return false;
}

bool isMostlyUTF8(std::string_view bytes) {
    constexpr std::size_t soundForASpoiltOne = 4;
    std::size_t sound = 0;
    std::size_t spoilt = 0;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (!isASCII(line))
            ++(QUtf8StringView(line.data(), static_cast<qsizetype>(line.size())).isValidUtf8() ? sound : spoilt);
    }
    return sound > 0 && sound >= soundForASpoiltOne * spoilt;
}

std::optional<std::uint32_t> wideEncodingWithoutMark(std::string_view bytes) {
    constexpr std::size_t looked = 4096;
    constexpr std::size_t oneOfASCIIIn = 10; // even a Chinese text has as many digits and line ends
    const std::string_view beginning = bytes.substr(0, looked);
    std::size_t units = 0;
    std::size_t little = 0;
    std::size_t big = 0;
    const auto isOfText = [](char byte) { return byte == '\n' || byte == '\r' || (byte >= ' ' && byte <= '~'); };
    for (std::size_t at = 0; at + 1 < beginning.size(); at += 2) {
        ++units;
        little += isOfText(beginning[at]) && beginning[at + 1] == 0;
        big += isOfText(beginning[at + 1]) && beginning[at] == 0;
    }
    constexpr std::size_t fewest = 2;
    if (std::max(little, big) < std::max(fewest, units / oneOfASCIIIn))
        return std::nullopt;
    // Damage, or a character of the block that begins where a byte is 32, may look like the other order.
    constexpr std::size_t timesTheOther = 8;
    if (little >= timesTheOther * big)
        return textEncoding::utf16LittleEndian;
    if (big >= timesTheOther * little)
        return textEncoding::utf16BigEndian;
    return std::nullopt;
}

std::optional<std::uint32_t> shiftingEncoding(std::string_view bytes) {
    constexpr struct {
        std::string_view sequence;
        std::uint32_t encoding;
    } sequences[] = {{"\x1B$)C", 0x80000840}, {"\x1B$)A", 0x80000830}, {"\x1B$)G", 0x80000830}, {"\x1B$(D", 0x80000822},
                     {"\x1B$B", 21},          {"\x1B$@", 21},          {"\x1B(J", 21},          {"~{", 0x80000A05}};
    constexpr char escape = '\x1B';
    if ((bytes.find(escape) == bytes.npos && bytes.find("~{") == bytes.npos) || !isASCII(bytes))
        return std::nullopt;
    for (const auto& [sequence, encoding] : sequences) {
        if (bytes.find(sequence) != bytes.npos && stringWithData(bytes, encoding))
            return encoding;
    }
    return std::nullopt;
}

} // namespace platform

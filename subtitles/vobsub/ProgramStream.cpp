// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/ProgramStream.h"

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint8_t endCode = 0xB9;
constexpr std::uint8_t packCode = 0xBA;
constexpr std::uint8_t privateStream1Code = 0xBD;

bool isAnyStartCode(Bytes bytes) {
    return bytes.size() >= 4 && bytes[0] == 0 && bytes[1] == 0 && bytes[2] == 1 && bytes[3] >= endCode;
}

std::optional<std::size_t> packHeaderLength(Bytes bytes) {
    constexpr std::size_t version2 = 14;
    constexpr std::size_t version1 = 12;
    if (bytes.size() >= version2 && (bytes[4] & 0xC0) == 0x40)
        return version2 + (bytes[13] & 7U); // with stuffing
    if (bytes.size() >= version1 && (bytes[4] & 0xF0) == 0x20)
        return version1;
    return std::nullopt;
}

} // namespace

bool ProgramStream::isStartCode(Bytes bytes, std::uint8_t number) {
    return isAnyStartCode(bytes) && bytes[3] == number;
}

std::optional<ProgramStream::Element> ProgramStream::elementAt(Bytes bytes) {
    constexpr std::size_t lengthEnd = 6;
    if (!isAnyStartCode(bytes))
        return std::nullopt;
    if (bytes[3] == endCode)
        return Element{Element::end, 4};
    if (bytes[3] == packCode) {
        const auto length = packHeaderLength(bytes);
        return length ? std::optional(Element{Element::pack, *length}) : std::nullopt;
    }
    if (bytes.size() < lengthEnd)
        return std::nullopt;
    const std::size_t length = lengthEnd + static_cast<std::size_t>(bytes[4] << 8 | bytes[5]);
    if (bytes[3] != privateStream1Code)
        return Element{Element::packet, length};
    constexpr std::size_t headerEnd = 9;
    if (bytes.size() < headerEnd || (bytes[6] & 0xC0) != 0x80)
        return std::nullopt;
    const std::size_t subStream = headerEnd + bytes[8];
    if (subStream >= bytes.size() || subStream >= length)
        return std::nullopt;
    return Element{Element::privateStream1, length, bytes[subStream], subStream + 1};
}

std::optional<std::size_t> ProgramStream::fillLength(Bytes bytes) {
    std::size_t at = 0;
    while (at < bytes.size() && !isAnyStartCode(bytes.subspan(at))) {
        // The last bytes may be the beginning of a start code.
        if (bytes[at] != 0xFF && bytes[at] != 0 && !(bytes[at] == 1 && at + 1 == bytes.size()))
            return std::nullopt;
        ++at;
    }
    return at;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// The elements of an MPEG program stream (ISO/IEC 13818-1), each of which begins with a start code, 00 00 01 and a
/// number.
namespace ProgramStream {

/// As many bytes as the header of an element may have, with what follows it.
constexpr std::size_t headerSpace = 272;

struct Element {
    enum Kind { pack, packet, privateStream1, end };
    Kind kind = end;
    /// All of it; of a pack its header alone.
    std::size_t length = 0;
    /// Of private stream 1: the number at the beginning of its payload, which says what it carries, and where the rest
    /// of the payload begins.
    std::uint8_t subStream = 0;
    std::size_t payload = 0;
};

bool isStartCode(std::span<const std::uint8_t> bytes, std::uint8_t number);

/// The element at the beginning of these bytes (headerSpace of them, fewer at the end of the file); none when there is
/// no valid one.
std::optional<Element> elementAt(std::span<const std::uint8_t> bytes);

/// How many bytes lie before the next start code when nothing else than fill does, or until the end of the bytes.
std::optional<std::size_t> fillLength(std::span<const std::uint8_t> bytes);

} // namespace ProgramStream

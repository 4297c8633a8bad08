// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/ControlSequences.h"

#include <cstddef>

namespace {

using Bytes = std::span<const std::uint8_t>;

enum Command : std::uint8_t { forcedStart, start, stop, colors, contrast, area, fieldOffsets };

/// How many bytes follow a command.
std::size_t argumentLength(std::uint8_t command) {
    switch (command) {
    case colors:
    case contrast:
        return 2;
    case area:
        return 6;
    case fieldOffsets:
        return 4;
    default:
        return 0;
    }
}

std::uint16_t twoBytes(Bytes bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] << 8 | bytes[at + 1]);
}

/// Two numbers of 12 bits in three bytes: where the area begins, and its last pixel.
void readExtent(Bytes bytes, std::int32_t& first, std::int32_t& end) {
    first = bytes[0] << 4 | bytes[1] >> 4;
    end = ((bytes[1] & 0xF) << 8 | bytes[2]) + 1;
}

void apply(std::uint8_t command, Bytes arguments, std::uint16_t delay, SubpictureControl& control) {
    switch (command) {
    case forcedStart:
    case start:
        control.forced = command == forcedStart;
        break;
    case stop:
        // A unit of delay is 1024 ticks of 90 kHz.
        control.displayTime = delay * 1024 / 90;
        break;
    case colors:
    case contrast: {
        const std::uint16_t value = twoBytes(arguments, 0);
        for (std::size_t code = 0; code < control.pal.size(); ++code) {
            const auto nibble = static_cast<std::uint8_t>(value >> (4 * code) & 0xF);
            (command == colors ? control.pal[code].pal : control.pal[code].tr) = nibble;
        }
        break;
    }
    case area:
        readExtent(arguments, control.rect.left, control.rect.right);
        readExtent(arguments.subspan(3), control.rect.top, control.rect.bottom);
        break;
    case fieldOffsets:
        control.offset = {twoBytes(arguments, 0), twoBytes(arguments, 2)};
        break;
    default:
        break;
    }
}

} // namespace

std::optional<SubpictureControl> ControlSequences::parse(Bytes unit, std::int32_t dataSize) {
    constexpr std::size_t headerLength = 4;
    if (dataSize < 0)
        return std::nullopt;
    SubpictureControl control;
    std::size_t next = static_cast<std::size_t>(dataSize);
    std::size_t position = 0;
    do {
        position = next;
        if (position + headerLength >= unit.size())
            return std::nullopt;
        const std::uint16_t delay = twoBytes(unit, position);
        next = twoBytes(unit, position + 2);
        position += headerLength;
        for (;;) {
            if (position >= unit.size())
                return std::nullopt;
            const std::uint8_t command = unit[position];
            const std::size_t length = argumentLength(command);
            if (position + length >= unit.size())
                return std::nullopt;
            ++position;
            if (command > fieldOffsets)
                break;
            apply(command, unit.subspan(position, length), delay, control);
            position += length;
        }
        // The last sequence points to itself.
    } while (next >= position && position < unit.size() && next + headerLength < unit.size());
    if (next + headerLength > unit.size())
        return std::nullopt;
    return control;
}

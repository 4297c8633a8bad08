// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/input/ReadingMode.h"
#include "subtitles/vobsub/ControlSequences.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// The interlaced run lengths of a subpicture: a picture of codes 0 to 3, its even lines in one part of the unit (the
/// top field) and its odd lines in another (the bottom field), up to `pixelEnd`. A run takes 1 to 4 nibbles, a longer
/// one more; nibbles beyond the unit are 0. A run that takes more nibbles than its length needs fills the line,
/// strictly; repairing, it has its length, and only one of length 0 fills.
class RunLengthDecoder {
public:
    RunLengthDecoder(std::span<const std::uint8_t> unit, std::array<std::uint16_t, 2> offset, std::int32_t pixelEnd,
                     ReadingMode mode)
        : _unit(unit)
        , _leastRun(mode == ReadingMode::strict ? leastInFourNibbles : leastRun)
        , _nibble{std::size_t{2} * offset[0], std::size_t{2} * offset[1]}
        , _end{_nibble[1], std::size_t{2} * static_cast<std::size_t>(std::max(0, pixelEnd))} {}

    /// Calls draw(x, y, count, code) for each run, with 0 <= x, x + count <= width, 0 <= y < height and count > 0, from
    /// top to bottom and left to right. Once for each decoder.
    template <class Draw>
    void decode(std::int32_t width, std::int32_t height, Draw draw) {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::size_t field = 0;
        while (y < height && _nibble[field] < _end[field]) {
            const Run run = nextRun(_nibble[field]);
            const std::int32_t count = std::min(run.length, width - x);
            if (count > 0)
                draw(x, y, count, run.code);
            x += count;
            if (x < width)
                continue;
            // A line ends with its byte.
            _nibble[field] += _nibble[field] & 1;
            field ^= 1;
            ++y;
            x = 0;
        }
    }

private:
    struct Run {
        std::int32_t length;
        std::uint32_t code;
    };
    static constexpr std::int32_t restOfLine = 0x7FFFFFFF;
    static constexpr std::uint32_t leastRun = 0x4; // of length 1
    static constexpr std::uint32_t leastInFourNibbles = 0x100;

    Run nextRun(std::size_t& at) const {
        std::uint32_t value = nibble(at++);
        std::uint32_t least = leastRun; // of a value that is complete
        for (; value < least && least < leastInFourNibbles; least *= 4)
            value = value << 4 | nibble(at++);
        const bool fills = value < least && value < _leastRun;
        return {fills ? restOfLine : static_cast<std::int32_t>(value >> 2), value & 3};
    }
    std::uint32_t nibble(std::size_t at) const {
        if (at / 2 >= _unit.size())
            return 0;
        return at % 2 ? _unit[at / 2] & 0xFU : static_cast<std::uint32_t>(_unit[at / 2] >> 4);
    }

    std::span<const std::uint8_t> _unit;
    std::uint32_t _leastRun;            // of four nibbles that has its length
    std::array<std::size_t, 2> _nibble; // the next one of each field
    std::array<std::size_t, 2> _end;
};

namespace RunLengths {

/// The part of a picture that holds all its runs of visible codes, relative to the picture. The whole picture when
/// nothing is visible, or no more than a single line or column.
SubpictureControl::Rect visiblePart(RunLengthDecoder decoder, std::int32_t width, std::int32_t height,
                                    const std::array<bool, 4>& visible);

} // namespace RunLengths

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// What the control sequences at the end of a subpicture unit say about its picture.
struct SubpictureControl {
    /// Pixels of the subpicture frame, right and bottom exclusive. May be empty or reversed: nobody vouches for it.
    struct Rect {
        std::int32_t left = 0;
        std::int32_t top = 0;
        std::int32_t right = 0;
        std::int32_t bottom = 0;

        std::int32_t width() const { return right - left; }
        std::int32_t height() const { return bottom - top; }
        friend bool operator==(const Rect&, const Rect&) = default;
    };
    /// Of a pixel code: the number of its colour in the palette, and its contrast, 0 transparent to 15 opaque.
    struct Color {
        std::uint8_t pal = 0;
        std::uint8_t tr = 0;

        friend bool operator==(const Color&, const Color&) = default;
    };

    Rect rect;
    /// Milliseconds from the picture's start to its stop; 0 when nothing stops it.
    std::int32_t displayTime = 0;
    bool forced = false;
    /// Where in the unit the lines of the top field and of the bottom field begin. May lie outside the unit.
    std::array<std::uint16_t, 2> offset{};
    /// Of the pixel codes 0 to 3.
    std::array<Color, 4> pal{};

    friend bool operator==(const SubpictureControl&, const SubpictureControl&) = default;
};

namespace ControlSequences {

/// Reads the sequences of a unit (of DVD video: the subpicture's display control sequence table), the first of which
/// begins at `dataSize`. None when they leave the unit. Each sequence begins after the last one read, so a unit ends.
std::optional<SubpictureControl> parse(std::span<const std::uint8_t> unit, std::int32_t dataSize);

} // namespace ControlSequences

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/QVSubtitle.h"
#include "subtitles/input/ReadingMode.h"
#include "subtitles/vobsub/ControlSequences.h"
#include "subtitles/vobsub/VobSubIndex.h"

#include <array>
#include <cstdint>
#include <vector>

/// The picture of a subpicture unit, kept as the unit's run lengths.
class VobSubImage final : public SubtitleImage {
public:
    struct Parts {
        /// The unit, its pixels from `offset` to `pixelEnd`.
        std::vector<std::uint8_t> unit;
        std::array<std::uint16_t, 2> offset{};
        std::int32_t pixelEnd = 0;
        std::int32_t width = 0;
        std::int32_t height = 0;
        /// The part of it that is the picture.
        SubpictureControl::Rect crop;
        std::array<VobSubColor, 4> colors{};
        ReadingMode mode = ReadingMode::strict;
    };

    explicit VobSubImage(Parts parts)
        : _parts(std::move(parts)) {}

    QImage expanded() const override;
    /// Bytes of memory, about.
    std::size_t memory() const { return sizeof(*this) + _parts.unit.capacity(); }

private:
    const Parts _parts;
};

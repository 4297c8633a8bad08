// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/DynamicRange.h"

#include <QSize>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

/// Makes pictures of a high dynamic range ones for an ordinary screen: light up to a good deal below the screen's white
/// (203 candelas, ITU-R BT.2408) stays what it is, what is brighter is rolled off by the curve of ITU-R BT.2390, and
/// colours of BT.2020 that BT.709 does not have are made paler until it has them. Any thread.
class ToneMapping {
public:
    explicit ToneMapping(const DynamicRange& range);
    /// The same, calculated once (it takes tens of milliseconds) for all who ask while one of them keeps it: a movie's
    /// first picture and the pictures that follow it. Null for the standard range.
    static std::shared_ptr<const ToneMapping> of(const DynamicRange& range);

    const DynamicRange& range() const { return _range; }

    /// From red, green, blue and alpha of 16 bits each to blue, green, red and a byte that is not used. Strides are in
    /// bytes. Works on several threads, and returns when all is done.
    void map(const QSize& size, const std::uint8_t* from, std::size_t fromStride, std::uint8_t* to,
             std::size_t toStride) const;

private:
    /// Blue, green, red and nothing, in 0 to 255: what compilers for every processor calculate with at once.
    using Colour [[gnu::vector_size(16)]] = float;

    void mapLines(int first, int end, int width, const std::uint8_t* from, std::size_t fromStride, std::uint8_t* to,
                  std::size_t toStride) const;

    DynamicRange _range;
    /// The colours of a grid of codes, red outermost; those in between are interpolated.
    std::vector<Colour> _grid;
};

} // namespace platform

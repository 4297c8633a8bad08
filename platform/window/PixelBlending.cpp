// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/PixelBlending.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace platform::pixelBlending {

namespace {

/// Each channel times a factor in 256ths: two channels at a time, in the halves of a word.
inline std::uint32_t scaled(std::uint32_t pixel, std::uint32_t factor) {
    const std::uint32_t odd = ((pixel & 0x00FF00FFU) * factor >> 8) & 0x00FF00FFU;
    const std::uint32_t even = ((pixel >> 8) & 0x00FF00FFU) * factor & 0xFF00FF00U;
    return odd | even;
}

inline std::uint32_t over(std::uint32_t source, std::uint32_t target) {
    // 256 - alpha rather than 255 - alpha: exact for an opaque and for an empty source, within one step between.
    const std::uint32_t alpha = source >> 24;
    return source + scaled(target, 256U - alpha - (alpha >> 7));
}

void blendLine(std::uint32_t* __restrict target, const std::uint32_t* __restrict source, int count) {
    for (int i = 0; i < count; ++i)
        target[i] = over(source[i], target[i]);
}

void blendLineFaded(std::uint32_t* __restrict target, const std::uint32_t* __restrict source, int count,
                    std::uint32_t opacity) {
    for (int i = 0; i < count; ++i)
        target[i] = over(scaled(source[i], opacity), target[i]);
}

} // namespace

unsigned opacity256(float alpha) {
    return static_cast<unsigned>(std::lround(std::clamp(alpha, 0.0F, 1.0F) * 256.0F));
}

void blend(QImage& target, const QImage& picture, QPoint place, const QRect& part, unsigned opacity) {
    const QRect visible = part.intersected(target.rect()).intersected(QRect(place, picture.size()));
    if (visible.isEmpty() || opacity == 0)
        return;
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(target.scanLine(y)) + visible.left();
        const auto* source =
            reinterpret_cast<const std::uint32_t*>(picture.constScanLine(y - place.y())) + (visible.left() - place.x());
        if (opacity >= 256)
            blendLine(line, source, visible.width());
        else
            blendLineFaded(line, source, visible.width(), opacity);
    }
}

void dim(QImage& target, const QRect& part, unsigned brightness) {
    const QRect visible = part.intersected(target.rect());
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(target.scanLine(y)) + visible.left();
        for (int x = 0; x < visible.width(); ++x)
            line[x] = scaled(line[x], brightness);
    }
}

} // namespace platform::pixelBlending

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EdgeAreas.h"

#include "playback/QVMovieView.h"

std::array<EdgeArea, 8> edgeAreas(const QSizeF& window) {
    using namespace panDirection;
    constexpr double depth = 100;
    const double w = window.width();
    const double h = window.height();
    return {{
        {QRectF(0, 0, depth, depth), left | bottom},
        {QRectF(0, depth, depth, h - 2 * depth), left},
        {QRectF(0, h - depth, depth, depth), left | top},
        {QRectF(depth, h - depth, w - 2 * depth, depth), top},
        {QRectF(w - depth, h - depth, depth, depth), right | top},
        {QRectF(w - depth, depth, depth, h - 2 * depth), right},
        {QRectF(w - depth, 0, depth, depth), right | bottom},
        {QRectF(depth, 0, w - 2 * depth, depth), bottom},
    }};
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EdgeAreas.h"

#include "playback/QVMovieView.h"

std::array<EdgeArea, 8> edgeAreas(const QSizeF& window) {
    using namespace panDirection;
    constexpr double depth = 100;
    const double w = window.width();
    const double h = window.height();
    return {{
        {platform::Rect(0, 0, depth, depth), left | bottom},
        {platform::Rect(0, depth, depth, h - 2 * depth), left},
        {platform::Rect(0, h - depth, depth, depth), left | top},
        {platform::Rect(depth, h - depth, w - 2 * depth, depth), top},
        {platform::Rect(w - depth, h - depth, depth, depth), right | top},
        {platform::Rect(w - depth, depth, depth, h - 2 * depth), right},
        {platform::Rect(w - depth, 0, depth, depth), right | bottom},
        {platform::Rect(depth, 0, w - 2 * depth, depth), bottom},
    }};
}

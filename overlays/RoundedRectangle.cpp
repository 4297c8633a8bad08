// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/RoundedRectangle.h"

#include <algorithm>

QPainterPath roundedRectangle(const QRectF& rect, float radius) {
    // Larger arcs would cross each other. Written so that a radius that is no number falls to 0.
    const double most = std::min(rect.width(), rect.height()) * 0.5;
    const double corner = radius > 0.0F ? std::min(static_cast<double>(radius), std::max(most, 0.0)) : 0.0;
    QPainterPath path;
    if (corner > 0)
        path.addRoundedRect(rect, corner, corner);
    else
        path.addRect(rect);
    return path;
}

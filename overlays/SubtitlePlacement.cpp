// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitlePlacement.h"

#include "overlays/OverlayPlacement.h"

#include <algorithm>

namespace SubtitlePlacement {

TextSize textSize(double pictureWidth, double fitWidth, float smallest, float largest) {
    const double ratio = fitWidth > pictureWidth ? pictureWidth / fitWidth : 1.0;
    return {std::max(smallest, static_cast<float>(ratio * static_cast<double>(largest))), ratio};
}

QRectF placed(const QRectF& rect, std::uint32_t alignment, const Ground& ground) {
    const double floor = ground.parent.y();
    const double pictureBottom = floor + (ground.picture ? ground.picture->y() : 0);
    double y = floor;
    switch (alignment & OverlayPlacement::verticalMask) {
    case 0x00:
        if (ground.picture)
            y = pictureBottom - rect.height();
        break;
    case 0x10:
        if (ground.picture)
            y = pictureBottom + ground.bar.value_or(0);
        break;
    case 0x20:
        y = OverlayPlacement::verticalOrigin(alignment, ground.parent, rect.height(), ground.padding);
        break;
    default:
        break;
    }
    if (y < floor)
        y = ground.bar ? std::max(floor, pictureBottom + *ground.bar) : floor;
    const double x = OverlayPlacement::horizontalOrigin(alignment, ground.parent, rect.width(), ground.padding);
    return {x, y, rect.width(), rect.height()};
}

} // namespace SubtitlePlacement

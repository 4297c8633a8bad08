// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/OverlayPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double farthestCoordinate = 1e6;

double usable(double points) {
    return std::isfinite(points) ? std::clamp(points, -farthestCoordinate, farthestCoordinate) : 0;
}

double width(float points) {
    return std::max(0.0, usable(static_cast<double>(points)));
}

} // namespace

double OverlayPlacement::backgroundMargin(const Panel& panel) {
    if (!panel.backgroundOn)
        return 0;
    return (panel.backgroundRounded ? width(panel.radius) * 0.5 : 0) + (panel.frameOn ? width(panel.frameWidth) : 0);
}

double OverlayPlacement::horizontalOrigin(std::uint32_t alignment, const platform::Rect& parent, double width,
                                          double padding) {
    switch (alignment & horizontalMask) {
    case 0:
        return parent.x() + (parent.width() - width) * 0.5;
    case 1:
        return parent.x() + usable(padding);
    case 2:
        return parent.x() + parent.width() - width - usable(padding);
    default:
        return parent.x();
    }
}

double OverlayPlacement::verticalOrigin(std::uint32_t alignment, const platform::Rect& parent, double height,
                                        double padding) {
    switch (alignment & verticalMask) {
    case 0x00:
        return parent.y() + (parent.height() - height) * 0.5;
    case 0x10:
        return parent.y() + parent.height() - height - usable(padding);
    case 0x20:
        return parent.y() + usable(padding);
    default:
        return parent.y();
    }
}

platform::Rect OverlayPlacement::placedInParent(const platform::Rect& rect, std::uint32_t alignment,
                                                const platform::Rect& parent, double padding) {
    return {horizontalOrigin(alignment, parent, rect.width(), padding),
            verticalOrigin(alignment, parent, rect.height(), padding), rect.width(), rect.height()};
}

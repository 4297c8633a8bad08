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
    return panel.scale *
           ((panel.backgroundRounded ? width(panel.radius) * 0.5 : 0) + (panel.frameOn ? width(panel.frameWidth) : 0));
}

QSizeF OverlayPlacement::largestContent(const QSizeF& parent, double padding, double margin, Edge edge) {
    const double gap = std::max(0.0, usable(padding));
    // The two in the corners leave a gap between them, too.
    const double wide = edge == Edge::halved ? (parent.width() - 3 * gap) * 0.5 : parent.width() - 2 * gap;
    const auto within = [&](double outer) { return std::max(1.0, outer - 2 * margin); };
    return {within(wide), within(parent.height() - 2 * gap)};
}

bool OverlayPlacement::standInOneEdge(std::uint32_t alignment, std::uint32_t other) {
    constexpr std::uint32_t bothCorners = 1 | 2;
    const std::uint32_t horizontal = alignment & horizontalMask, otherHorizontal = other & horizontalMask;
    return (alignment & referenceMask) == insideParent && (other & referenceMask) == insideParent &&
           (alignment & verticalMask) == (other & verticalMask) && horizontal != otherHorizontal &&
           (horizontal | otherHorizontal) == bothCorners && horizontal != 0 && otherHorizontal != 0;
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

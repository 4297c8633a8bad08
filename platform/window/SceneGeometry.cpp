// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/SceneGeometry.h"

#include <cmath>

namespace platform::sceneGeometry {

namespace {
QRect fromEdges(double left, double top, double right, double bottom) {
    return QRect(QPoint(static_cast<int>(left), static_cast<int>(top)),
                 QPoint(static_cast<int>(right) - 1, static_cast<int>(bottom) - 1));
}
} // namespace

QRect toPixels(const QRectF& rect, const QSizeF& contentSize, double pixelRatio) {
    return fromEdges(
        std::round(rect.left() * pixelRatio), std::round((contentSize.height() - rect.bottom()) * pixelRatio),
        std::round(rect.right() * pixelRatio), std::round((contentSize.height() - rect.top()) * pixelRatio));
}

QRect toCoveringPixels(const QRectF& rect, const QSizeF& contentSize, double pixelRatio) {
    return fromEdges(std::floor(rect.left() * pixelRatio),
                     std::floor((contentSize.height() - rect.bottom()) * pixelRatio),
                     std::ceil(rect.right() * pixelRatio), std::ceil((contentSize.height() - rect.top()) * pixelRatio));
}

QPointF flipped(QPointF point, const QSizeF& contentSize) {
    return {point.x(), contentSize.height() - point.y()};
}

QRectF flippedOnDesktop(const QRectF& rect, double mainScreenHeight) {
    return QRectF(QPointF(rect.x(), mainScreenHeight - rect.y() - rect.height()), rect.size());
}

} // namespace platform::sceneGeometry

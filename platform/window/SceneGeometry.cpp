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

QRectF toPainter(const Rect& rect, const QSizeF& contentSize) {
    return {QPointF(rect.x(), contentSize.height() - rect.maxY()), rect.size()};
}

QRect toPixels(const Rect& rect, const QSizeF& contentSize, double pixelRatio) {
    const QRectF flipped = toPainter(rect, contentSize);
    return fromEdges(std::round(flipped.left() * pixelRatio), std::round(flipped.top() * pixelRatio),
                     std::round(flipped.right() * pixelRatio), std::round(flipped.bottom() * pixelRatio));
}

QRect toCoveringPixels(const Rect& rect, const QSizeF& contentSize, double pixelRatio) {
    const QRectF flipped = toPainter(rect, contentSize);
    return fromEdges(std::floor(flipped.left() * pixelRatio), std::floor(flipped.top() * pixelRatio),
                     std::ceil(flipped.right() * pixelRatio), std::ceil(flipped.bottom() * pixelRatio));
}

QPointF flipped(QPointF point, const QSizeF& contentSize) {
    return {point.x(), contentSize.height() - point.y()};
}

Rect fromWindowSystem(const QRectF& rect, double mainScreenHeight) {
    return {QPointF(rect.x(), mainScreenHeight - rect.y() - rect.height()), rect.size()};
}

QRectF toWindowSystem(const Rect& rect, double mainScreenHeight) {
    return toPainter(rect, QSizeF(0, mainScreenHeight));
}

} // namespace platform::sceneGeometry

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>

namespace platform::sceneGeometry {

/// A rectangle of a window's content as a painter of that content takes it: points, origin top left, y down.
QRectF toPainter(const Rect& rect, const QSizeF& contentSize);

/// A rectangle of a window's content (origin bottom left, y up, points) in device pixels (origin top left, y down).
/// Edges are rounded each by itself, so that rectangles that touch in points touch in pixels.
QRect toPixels(const Rect& rect, const QSizeF& contentSize, double pixelRatio);

/// The smallest rectangle of whole pixels that covers it.
QRect toCoveringPixels(const Rect& rect, const QSizeF& contentSize, double pixelRatio);

/// A point with origin top left, y down, in a content's coordinates, and back: both directions are the same.
QPointF flipped(QPointF point, const QSizeF& contentSize);

/// A rectangle of the desktop as the window system says it (origin top left of the main screen, y down) as ours (origin
/// bottom left, y up), and back.
Rect fromWindowSystem(const QRectF& rect, double mainScreenHeight);
QRectF toWindowSystem(const Rect& rect, double mainScreenHeight);

} // namespace platform::sceneGeometry

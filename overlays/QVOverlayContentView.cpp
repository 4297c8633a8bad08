// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVOverlayContentView.h"

#include "overlays/RoundedRectangle.h"

#include <QPainter>

#include <algorithm>

void QVOverlayContentView::setBackgroundColor(const QColor& color) {
    _backgroundColor = color;
    setNeedsDisplay();
}

void QVOverlayContentView::setFrameColor(const QColor& color) {
    _frameColor = color;
    setNeedsDisplay();
}

void QVOverlayContentView::draw(QPainter& painter, const platform::Rect&) {
    painter.save();
    // The painter's clip is the part that is drawn again.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(paintedBounds(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (_panel.backgroundOn) {
        const double most = std::min(bounds().width(), bounds().height());
        const double line = _panel.frameOn && _panel.frameWidth > 0.0F
                                ? std::min(static_cast<double>(_panel.frameWidth) * _panel.scale, std::max(most, 0.0))
                                : 0.0;
        const QRectF rect = paintedBounds().adjusted(line * 0.5, line * 0.5, -line * 0.5, -line * 0.5);
        const float radius = _panel.backgroundRounded ? _panel.radius * static_cast<float>(_panel.scale) : 0.0F;
        const QPainterPath path = roundedRectangle(rect, radius);
        painter.setRenderHint(QPainter::Antialiasing);
        if (_backgroundColor.isValid())
            painter.fillPath(path, _backgroundColor);
        const QColor lineColor = _frameColor.isValid() ? _frameColor : _backgroundColor;
        if (line > 0 && lineColor.isValid())
            painter.strokePath(path, QPen(lineColor, line, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }
    painter.restore();
}

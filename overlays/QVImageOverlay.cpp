// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageOverlay.h"

#include <algorithm>
#include <cmath>

namespace {

double scaled(int pixels, float factor) {
    constexpr double largest = 1e5; // more than any screen has
    const double length = static_cast<double>(pixels) * static_cast<double>(factor);
    return std::isfinite(length) ? std::clamp(length, 0.0, largest) : 0;
}

} // namespace

QVImageOverlay::QVImageOverlay(platform::Window* parent, const QString& style)
    : QVChildOverlay(parent, style) {
    overlayContentView().addSubview(_view);
    _view.setFrame(frame());
}

void QVImageOverlay::setImage(const QImage& image) {
    _view.setImage(image);
    sizeToFit();
}

void QVImageOverlay::setScale(float scaleX, float scaleY) {
    if (scaleX == _scaleX && scaleY == _scaleY)
        return;
    _scaleX = scaleX;
    _scaleY = scaleY;
    sizeToFit();
}

void QVImageOverlay::sizeToFit() {
    const QImage& image = _view.image();
    if (image.isNull())
        return;
    _view.setFrame(
        QRectF(_view.frame().topLeft(), QSizeF(scaled(image.width(), _scaleX), scaled(image.height(), _scaleY))));
    contentSizeChanged();
}

void QVImageOverlay::adoptNewOverlayFrame(const QRectF& frame) {
    const QSizeF view = _view.bounds().size();
    _view.setFrame(QRectF(QPointF((frame.width() - view.width()) * 0.5, (frame.height() - view.height()) * 0.5), view));
    _view.setNeedsDisplay();
}

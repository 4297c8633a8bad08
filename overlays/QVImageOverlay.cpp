// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageOverlay.h"

#include <algorithm>
#include <cmath>

namespace {

double scaled(double unscaled, float factor) {
    constexpr double largest = 1e5; // more than any screen has
    const double length = unscaled * static_cast<double>(factor);
    return std::isfinite(length) ? std::clamp(length, 0.0, largest) : 0;
}

} // namespace

QVImageOverlay::QVImageOverlay(const Environment& environment, platform::Window& parent, const QString& style)
    : QVChildOverlay(environment, parent, style) {
    overlayContentView().addSubview(_view);
    _view.setFrame(frame());
}

void QVImageOverlay::setImage(const QImage& image, const QSizeF& size) {
    _view.setImage(image);
    _imageSize = size;
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
    if (_view.image().isNull())
        return;
    _view.setFrame(platform::Rect(_view.frame().origin(),
                                  QSizeF(scaled(_imageSize.width(), _scaleX), scaled(_imageSize.height(), _scaleY))));
    contentSizeChanged();
}

void QVImageOverlay::adoptNewOverlayFrame(const platform::Rect& frame) {
    const QSizeF view = _view.bounds().size();
    _view.setFrame(
        platform::Rect(QPointF((frame.width() - view.width()) * 0.5, (frame.height() - view.height()) * 0.5), view));
    _view.setNeedsDisplay();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/ImageView.h"

#include <QPainter>

namespace platform {

namespace {
/// Pixels a side up to which a shrunken image is made whole; beyond, only its visible part is drawn.
constexpr double maximumWholeSide = 4096;
} // namespace

void ImageView::setImage(const QImage& image) {
    _image = image;
    _shrunken = QImage();
    setNeedsDisplay();
}

void ImageView::draw(QPainter& painter, const Rect&) {
    if (_image.isNull() || bounds().isEmpty())
        return;
    const QTransform toDevice = painter.deviceTransform();
    const QSizeF pixels(bounds().width() * toDevice.m11(), bounds().height() * toDevice.m22());
    const bool shrinks = pixels.width() < _image.width() || pixels.height() < _image.height();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Neighbours are enough to enlarge an image; a smaller one must take in every pixel.
    if (shrinks && pixels.width() >= 1 && pixels.height() >= 1 && pixels.width() <= maximumWholeSide &&
        pixels.height() <= maximumWholeSide) {
        if (_shrunken.size() != pixels.toSize())
            _shrunken = _image.scaled(pixels.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(paintedBounds(), _shrunken);
    } else {
        painter.drawImage(paintedBounds(), _image);
    }
    painter.restore();
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/TextView.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr double maximumRatio = 8;
constexpr double maximumPictureSide = 16384; // pixels a side

int pictureSide(double points, double pixelRatio) {
    return static_cast<int>(std::ceil(std::clamp(points * pixelRatio, 0.0, maximumPictureSide)));
}

} // namespace

void TextView::setText(const QString& text) {
    if (text == _text)
        return;
    _text = text;
    layoutChanged();
}

void TextView::setFont(const QFont& font) {
    if (font == _font)
        return;
    _font = font;
    layoutChanged();
}

void TextView::setTextColor(const QColor& color) {
    if (color == _textColor)
        return;
    _textColor = color;
    paintingChanged();
}

void TextView::setShadow(const std::optional<Shadow>& shadow) {
    if (shadow == _shadow)
        return;
    _shadow = shadow;
    paintingChanged();
}

void TextView::setLongLines(LongLines longLines) {
    if (longLines == _longLines)
        return;
    _longLines = longLines;
    layoutChanged();
}

void TextView::setLinePadding(double points) {
    if (points == _linePadding)
        return;
    _linePadding = points;
    layoutChanged();
}

void TextView::setContainerSize(const QSizeF& size) {
    if (size == _container)
        return;
    _container = size;
    layoutChanged();
}

void TextView::layoutChanged() {
    _layout.reset();
    paintingChanged();
}

void TextView::paintingChanged() {
    _picture = QImage();
    setNeedsDisplay();
}

const TextLayout& TextView::layout() {
    if (!_layout) {
        const QSizeF lines(_container.width() - 2 * _linePadding, _container.height());
        _layout = std::make_unique<TextLayout>(_text, _font, lines, _longLines);
    }
    return *_layout;
}

void TextView::sizeToFit() {
    const QSizeF lines = layout().size();
    setFrame(Rect(frame().origin(), QSizeF(lines.width() + 2 * _linePadding, lines.height())));
}

QImage TextView::painted(double pixelRatio) {
    QImage picture(pictureSide(bounds().width(), pixelRatio), pictureSide(bounds().height(), pixelRatio),
                   QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(pixelRatio, pixelRatio);
    painter.setPen(_textColor.isValid() ? _textColor : QColor(Qt::black));
    layout().draw(painter, bounds().width());
    painter.end();
    if (_shadow)
        castShadow(picture, *_shadow, pixelRatio);
    return picture;
}

void TextView::draw(QPainter& painter, const Rect&) {
    const QTransform toDevice = painter.deviceTransform();
    const double ratio = toDevice.m11();
    if (!(ratio > 0) || ratio > maximumRatio || !toDevice.isInvertible() || _text.isEmpty())
        return;
    if (_picture.isNull() || _pictureRatio != ratio || _picture.width() != pictureSide(bounds().width(), ratio) ||
        _picture.height() != pictureSide(bounds().height(), ratio)) {
        _picture = painted(ratio);
        _pictureRatio = ratio;
    }
    // Pixel on pixel, wherever the view stands.
    const QPoint corner = toDevice.map(QPointF(0, 0)).toPoint();
    painter.save();
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * toDevice.inverted() *
                              painter.worldTransform());
    painter.drawImage(0, 0, _picture);
    painter.restore();
}

} // namespace platform

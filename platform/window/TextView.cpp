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

void TextView::setText(const StyledText& text) {
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
    _shadowReach = shadow ? shadowReach(*shadow) : 0;
    paintingChanged();
}

void TextView::setLongLines(LongLines longLines) {
    if (longLines == _longLines)
        return;
    _longLines = longLines;
    layoutChanged();
}

void TextView::setLineSide(LineSide side) {
    if (side == _lineSide)
        return;
    _lineSide = side;
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
        _layout = std::make_unique<TextLayout>(_text, _font, lines, _longLines, _lineSide);
    }
    return *_layout;
}

void TextView::sizeToFit() {
    const QSizeF lines = layout().size();
    setFrame(Rect(frame().origin(), QSizeF(lines.width() + 2 * _linePadding, lines.height())));
}

Rect TextView::drawnRect() const {
    return bounds().grown(_shadowReach);
}

int TextView::shadowPixels(double pixelRatio) const {
    return static_cast<int>(std::ceil(_shadowReach * pixelRatio));
}

QImage TextView::painted(double pixelRatio) {
    const int margin = shadowPixels(pixelRatio);
    QImage picture(pictureSide(bounds().width(), pixelRatio) + 2 * margin,
                   pictureSide(bounds().height(), pixelRatio) + 2 * margin, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(margin, margin);
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
    if (!(ratio > 0) || ratio > maximumRatio || !toDevice.isInvertible() || _text.text.isEmpty())
        return;
    const int margin = shadowPixels(ratio);
    if (_picture.isNull() || _pictureRatio != ratio ||
        _picture.width() != pictureSide(bounds().width(), ratio) + 2 * margin ||
        _picture.height() != pictureSide(bounds().height(), ratio) + 2 * margin) {
        _picture = painted(ratio);
        _pictureRatio = ratio;
    }
    // Pixel on pixel, wherever the view stands.
    const QPoint corner = toDevice.map(QPointF(0, 0)).toPoint();
    painter.save();
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * toDevice.inverted() *
                              painter.worldTransform());
    painter.drawImage(-margin, -margin, _picture);
    painter.restore();
}

} // namespace platform

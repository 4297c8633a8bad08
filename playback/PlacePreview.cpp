// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/PlacePreview.h"

#include "platform/window/Fonts.h"
#include "platform/window/WindowHost.h"

#include <algorithm>
#include <cmath>

namespace {

// Points of the style.
constexpr QSizeF largestPicture(224, 168);
constexpr double narrowest = 96;
constexpr double widestText = 320;
constexpr float fontSize = 16;
constexpr double gap = 4;
constexpr double cornerRadius = 10;
constexpr float leastOpacity = 0.92F;
/// Between the panel and the bar.
constexpr double distance = 6;

} // namespace

PlacePreview::PlacePreview(const Environment& environment, platform::Window& parent)
    : QVChildOverlay(environment, parent) {
    overlayContentView().addSubview(_picture);
    overlayContentView().addSubview(_text);
    overlayContentView().setRadius(static_cast<float>(cornerRadius));
    const OverlayStyle values = styleValues();
    PlacePreview::setBackgroundColor(backgroundColor());
    _text.setTextColor(values.textColor.value_or(QColor(Qt::white)));
    _text.setLongLines(platform::LongLines::shortened);
    layOutText();
}

void PlacePreview::setBackgroundColor(const QColor& color) {
    QColor opaque = color;
    opaque.setAlphaF(std::max(static_cast<float>(opaque.alphaF()), leastOpacity));
    QVChildOverlay::setBackgroundColor(color.isValid() ? opaque : color);
}

void PlacePreview::layOutText() {
    _text.setFont(platform::fontWithFamilyName(styleValues().textFontName, fontSize * static_cast<float>(scale())));
    _text.setContainerSize(QSizeF(widestText * scale(), 1e7));
    _text.sizeToFit();
}

QSizeF PlacePreview::pictureSize() const {
    if (_place.aspect <= 0)
        return QSizeF(0, 0);
    const QSizeF size = QSizeF(_place.aspect, 1).scaled(largestPicture * scale(), Qt::KeepAspectRatio);
    return QSizeF(std::round(size.width()), std::round(size.height()));
}

QSize PlacePreview::pictureBounds() const {
    const double ratio = parentWindow() && parentWindow()->host() ? parentWindow()->host()->pixelRatio() : 1;
    const int side = static_cast<int>(std::ceil(largestPicture.width() * scale() * ratio));
    return QSize(side, side);
}

QSizeF PlacePreview::contentSize() const {
    const QSizeF picture = pictureSize();
    const double above = picture.height() > 0 ? picture.height() + gap * scale() : 0;
    return QSizeF(std::max({picture.width(), _text.bounds().width(), narrowest * scale()}),
                  above + _text.bounds().height());
}

void PlacePreview::showPlace(const Place& place) {
    const bool hasNewText = place.time != _place.time || place.chapter != _place.chapter;
    _place = place;
    if (hasNewText) {
        _text.setText(place.chapter.isEmpty() ? place.time : place.time + u'\n' + place.chapter);
        layOutText();
    }
    contentSizeChanged();
    orderFront();
    show();
}

void PlacePreview::setPicture(const QImage& picture) {
    if (picture.cacheKey() == _picture.image().cacheKey())
        return;
    _picture.setImage(picture);
    contentView().setNeedsDisplay();
}

void PlacePreview::contentSizeChanged() {
    platform::Rect rect = adjustForBackgroundStyle(platform::Rect(QPointF(0, 0), contentSize()));
    if (const platform::Window* parent = parentWindow()) {
        const platform::Rect screen = parent->frame();
        const double rightmost = std::max(screen.width() - rect.width(), 0.0);
        const double x = std::clamp(_place.at.x() - rect.width() / 2, 0.0, rightmost);
        rect = platform::Rect(QPointF(screen.x() + std::round(x), screen.y() + _place.at.y() + distance * scale()),
                              rect.size());
    }
    applyNewOverlayFrame(rect, "%@: Overlay Frame After Recalc: x:%d y:%d w:%d h:%d");
}

void PlacePreview::parentSizeChanged() {
    hideAtOnce(); // the bar stands elsewhere now
    QVChildOverlay::parentSizeChanged();
    layOutText();
}

void PlacePreview::adoptNewOverlayFrame(const platform::Rect& frame) {
    const QSizeF content = contentSize();
    const QSizeF margin = (frame.size() - content) / 2;
    const QSizeF picture = pictureSize();
    const auto middle = [&](double width) { return std::round((frame.width() - width) / 2); };
    _text.setFrame(platform::Rect(QPointF(middle(_text.bounds().width()), margin.height()), _text.bounds().size()));
    _picture.setFrame(
        platform::Rect(QPointF(middle(picture.width()), frame.height() - margin.height() - picture.height()), picture));
}

void PlacePreview::postFadeOut() {
    QVChildOverlay::postFadeOut();
    _picture.setImage(QImage());
}

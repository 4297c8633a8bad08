// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVTextOverlay.h"

#include "overlays/StyleTable.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/Fonts.h"
#include "settings/ColorText.h"
#include "settings/Tracing.h"

#include <algorithm>

namespace {

/// Space under the last line, as a share of the font's size.
constexpr double spaceBelow = 0.125;

/// Space at both sides of the lines, points of the style.
constexpr double linePadding = 5;

QString wholePoints(float size) {
    return QString::number(static_cast<double>(size), 'f', 0);
}

} // namespace

QVTextOverlay::QVTextOverlay(const Environment& environment, platform::Window& parent, const QString& style,
                             LongLines longLines)
    : QVChildOverlay(environment, parent, style) {
    overlayContentView().addSubview(_view);
    const OverlayStyle values = styleValues();
    _base_font_size = static_cast<float>(values.textFontSize);
    _min_font_size = std::min(smallestFontSize(), _base_font_size);
    _view.setLongLines(longLines);
    _view.setLinePadding(linePadding * scale());
    _view.setFont(platform::fontWithFamilyName(values.textFontName, _base_font_size * static_cast<float>(scale())));
    const QColor color = values.textColor.value_or(QColor());
    _view.setTextColor(color);
    setFrameColor(color);
    setShadowOn(values.shadowOn);
    sizeToFit();
}

/// Of every text overlay, whatever its style.
float QVTextOverlay::smallestFontSize() const {
    return static_cast<float>(environment().settings.integerForKey(kQVOverlayTextFontSizeMin));
}

void QVTextOverlay::setText(const platform::StyledText& text) {
    if (text == _view.styledText())
        return;
    trace("%@: Set Text: %@", logName(), text.text);
    _view.setText(text);
    sizeToFit();
}

void QVTextOverlay::setTextFont(const QFont& font) {
    _view.setFont(font);
    sizeToFit();
}

void QVTextOverlay::setTextFontName(const QString& family) {
    setTextFont(platform::fontWithFamilyName(family, platform::pointSizeOf(_view.font())));
    trace("%@: Changed text font to \"%@\"", logName(), family);
}

void QVTextOverlay::setTextFontSize(float size) {
    if (size == _base_font_size)
        return;
    _min_font_size = std::min(_min_font_size, size);
    _base_font_size = size;
    trace("%@: Changed text size to: %.0f", logName(), wholePoints(size));
    recalculateFontSize();
}

void QVTextOverlay::setTextFontSizeMin(float size) {
    if (size == _min_font_size)
        return;
    _base_font_size = std::max(_base_font_size, size);
    _min_font_size = size;
    trace("%@: Changed minimum text size to: %.0f", logName(), wholePoints(size));
    recalculateFontSize();
}

void QVTextOverlay::setTextColor(const QColor& color) {
    _view.setTextColor(color);
    setFrameColor(color);
    sizeToFit();
    trace("%@: Changed text color to: %@", logName(), JHStringFromColor(color));
}

void QVTextOverlay::setShadowOn(bool flag) {
    if (flag && !_shadow) {
        const OverlayStyle values = styleValues();
        _shadow = QVShadow{values.shadowOffset, values.shadowBlurRadius, values.shadowColor.value_or(QColor())};
    } else if (!flag) {
        _shadow.reset();
    }
    applyShadow();
    _view.setNeedsDisplay();
}

void QVTextOverlay::applyShadow() {
    std::optional<QVShadow> drawn = _shadow;
    if (drawn) {
        drawn->offset *= scale();
        drawn->blurRadius *= static_cast<float>(scale());
    }
    _view.setShadow(drawn);
    fitOverhang();
}

void QVTextOverlay::fitOverhang() {
    const double margin = OverlayPlacement::backgroundMargin(overlayContentView().panel());
    setOverhang(std::max(0.0, -margin - _view.drawnRect().x()));
}

template <class Change>
void QVTextOverlay::changeShadow(Change change) {
    if (!_shadow)
        return;
    change(*_shadow);
    applyShadow();
}

void QVTextOverlay::setShadowOffset(const QSizeF& offset) {
    changeShadow([&](QVShadow& shadow) { shadow.offset = offset; });
}

void QVTextOverlay::setShadowBlurRadius(float radius) {
    changeShadow([&](QVShadow& shadow) { shadow.blurRadius = radius; });
}

void QVTextOverlay::setShadowColor(const QColor& color) {
    changeShadow([&](QVShadow& shadow) { shadow.color = color; });
}

void QVTextOverlay::recalculateFontSize() {
    setTextFont(platform::convertedFont(_view.font(), _base_font_size * static_cast<float>(scale())));
}

template <class Visit>
void QVTextOverlay::visitSiblings(Visit visit) const {
    if (!parentWindow())
        return;
    for (platform::Window* child : parentWindow()->childWindows()) {
        auto* sibling = dynamic_cast<QVTextOverlay*>(child);
        if (sibling && sibling != this)
            visit(*sibling);
    }
}

OverlayPlacement::Edge QVTextOverlay::edge() const {
    bool halved = false;
    visitSiblings([&](const QVTextOverlay& sibling) {
        // One that fades out stands there until it has gone.
        const bool seen = sibling.isVisible() || (sibling.isOrderedIn() && sibling.alphaValue() > 0);
        halved = halved || (seen && OverlayPlacement::standInOneEdge(alignemntStyle(), sibling.alignemntStyle()));
    });
    return halved ? OverlayPlacement::Edge::halved : OverlayPlacement::Edge::whole;
}

QSizeF QVTextOverlay::container() const {
    if (!parentWindow())
        return {static_cast<double>(QVLargeNumberForText), static_cast<double>(QVLargeNumberForText)};
    const double margin = OverlayPlacement::backgroundMargin(overlayContentView().panel());
    return OverlayPlacement::largestContent(parentWindow()->frame().size(), scaledPadding(), margin, edge());
}

void QVTextOverlay::sizeToFit() {
    const double below = spaceBelow * static_cast<double>(platform::pointSizeOf(_view.font()));
    const QSizeF whole = container();
    _view.setContainerSize(QSizeF(whole.width(), whole.height() - below));
    _view.sizeToFit();
    const platform::Rect fitted = _view.frame();
    _view.setFrame(platform::Rect(fitted.origin(), QSizeF(fitted.width(), fitted.height() + below)));
    contentSizeChanged();
}

void QVTextOverlay::parentSizeChanged() {
    QVChildOverlay::parentSizeChanged();
    _view.setLinePadding(linePadding * scale());
    applyShadow();
    recalculateFontSize();
}

void QVTextOverlay::marginsChanged() {
    sizeToFit();
    tellSiblings();
}

void QVTextOverlay::show() {
    QVChildOverlay::show();
    tellSiblings();
}

void QVTextOverlay::postFadeOut() {
    QVChildOverlay::postFadeOut();
    tellSiblings();
}

void QVTextOverlay::tellSiblings() {
    visitSiblings([](QVTextOverlay& sibling) { sibling.siblingChanged(); });
}

void QVTextOverlay::siblingChanged() {
    if (container().width() != _view.containerSize().width())
        sizeToFit();
}

void QVTextOverlay::adoptNewOverlayFrame(const platform::Rect& frame) {
    const QSizeF view = _view.bounds().size();
    _view.setFrame(
        platform::Rect(QPointF((frame.width() - view.width()) * 0.5, (frame.height() - view.height()) * 0.5), view));
    _view.setNeedsDisplay();
    fitOverhang();
}

bool QVTextOverlay::takeStyle(const QString& key, const OverlayStyle& style) {
    using Overlay = QVTextOverlay;
    static const StyleTable<Overlay> table{
        {&OverlayStyle::textColor, &Overlay::setTextColor},
        {&OverlayStyle::textFontName, &Overlay::setTextFontName},
        {&OverlayStyle::textFontSize, &Overlay::setTextFontSize},
        {&OverlayStyle::shadowOn, &Overlay::setShadowOn},
        {&OverlayStyle::shadowColor, &Overlay::setShadowColor},
        {&OverlayStyle::shadowBlurRadius, &Overlay::setShadowBlurRadius},
        {&OverlayStyle::shadowOffset, &Overlay::setShadowOffset},
    };
    return table.take(*this, key, style) || QVChildOverlay::takeStyle(key, style);
}

bool QVTextOverlay::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVOverlayTextFontSizeMin) { // of no style: every text overlay follows it
        setTextFontSizeMin(smallestFontSize());
        return false;
    }
    return QVChildOverlay::preferencesChanged(notification);
}

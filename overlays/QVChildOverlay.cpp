// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVChildOverlay.h"

#include "overlays/StyleTable.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/ScreenScale.h"
#include "settings/Tracing.h"

QVChildOverlay::QVChildOverlay(const Environment& environment, platform::Window& parent, const QString& style)
    : QVStyledOverlay(environment, parent.frame(), style) {
    contentView().addSubview(_content);
    _content.setFrame(contentView().bounds());

    // Straight into the panel: the content to lay out is made by the subclass, after this.
    const OverlayStyle values = styleValues();
    _content.setScale(platform::screenScale(parent.frame().height()));
    _content.setBackgroundColor(backgroundColor());
    _content.setBackgroundOn(values.backgroundOn);
    _content.setBackgroundRounded(values.backgroundRounded);
    _content.setRadius(values.backgroundRadius);
    _content.setFrameOn(values.frameOn);
    _content.setFrameWidth(values.frameWidth);
    _alignStyle = static_cast<std::uint32_t>(values.alignment);
    _padding = environment.settings.floatForKey(kQVOverlayDefaultPadding);

    _onParentResize = environment.notifications.observe<platform::WindowDidResizeNotification>(
        [this](const platform::WindowDidResizeNotification& notification) {
            if (notification.window == parentWindow())
                parentSizeChanged();
        });
    parent.addChildWindow(*this);
    orderFront();
}

void QVChildOverlay::setBackgroundOn(bool flag) {
    _content.setBackgroundOn(flag);
    marginsChanged();
}

void QVChildOverlay::setBackgroundColor(const QColor& color) {
    QVStyledOverlay::setBackgroundColor(color);
    _content.setBackgroundColor(color);
}

void QVChildOverlay::setBackgroundRounded(bool flag) {
    _content.setBackgroundRounded(flag);
    marginsChanged();
}

void QVChildOverlay::setRadius(float radius) {
    _content.setRadius(radius);
    marginsChanged();
}

void QVChildOverlay::setFrameOn(bool flag) {
    _content.setFrameOn(flag);
    marginsChanged();
}

void QVChildOverlay::setFrameWidth(float width) {
    _content.setFrameWidth(width);
    marginsChanged();
}

void QVChildOverlay::setAlignmentStyle(std::uint32_t code) {
    if (code == _alignStyle)
        return;
    _alignStyle = code;
    marginsChanged();
}

void QVChildOverlay::setPadding(float padding) {
    if (padding == _padding)
        return;
    _padding = padding;
    marginsChanged();
}

void QVChildOverlay::parentSizeChanged() {
    if (parentWindow())
        _content.setScale(platform::screenScale(parentWindow()->frame().height()));
    contentSizeChanged();
}

QSizeF QVChildOverlay::contentSize() const {
    logAlways("ERROR: Overlay %@: uses generic contentSize: implementation.", logName());
    return _content.bounds().size();
}

platform::Rect QVChildOverlay::adjustForBackgroundStyle(const platform::Rect& rect) const {
    return rect.grown(OverlayPlacement::backgroundMargin(_content.panel()));
}

void QVChildOverlay::adoptNewOverlayFrame(const platform::Rect&) {}

void QVChildOverlay::contentSizeChanged() {
    platform::Rect rect = adjustForBackgroundStyle(platform::Rect(QPointF(0, 0), contentSize()));
    if (parentWindow() && (_alignStyle & OverlayPlacement::referenceMask) == OverlayPlacement::insideParent) {
        rect = OverlayPlacement::placedInParent(rect, _alignStyle, parentWindow()->frame(), scaledPadding());
    }
    applyNewOverlayFrame(rect, "%@: Overlay Frame After Recalc: x:%d y:%d w:%d h:%d");
}

void QVChildOverlay::applyNewOverlayFrame(const platform::Rect& frame, const char* message) {
    adoptNewOverlayFrame(frame);
    trace(message, logName(), static_cast<qint64>(frame.x()), static_cast<qint64>(frame.y()),
          static_cast<qint64>(frame.width()), static_cast<qint64>(frame.height()));
    setFrame(frame);
    contentView().setNeedsDisplay();
}

void QVChildOverlay::setFrame(const platform::Rect& frame) {
    QVStyledOverlay::setFrame(frame);
    _content.setFrame(contentView().bounds());
}

bool QVChildOverlay::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVOverlayDefaultPadding) { // of no style: every child overlay follows it
        setPadding(environment().settings.floatForKey(kQVOverlayDefaultPadding));
        return false;
    }
    return QVStyledOverlay::preferencesChanged(notification);
}

bool QVChildOverlay::takeStyle(const QString& key, const OverlayStyle& style) {
    using Overlay = QVChildOverlay;
    static const StyleTable<Overlay> table{
        {&OverlayStyle::backgroundOn, &Overlay::setBackgroundOn},
        {&OverlayStyle::backgroundRounded, &Overlay::setBackgroundRounded},
        {&OverlayStyle::backgroundRadius, &Overlay::setRadius},
        {&OverlayStyle::frameOn, &Overlay::setFrameOn},
        {&OverlayStyle::frameWidth, &Overlay::setFrameWidth},
        {&OverlayStyle::alignment, &Overlay::setAlignmentStyle},
    };
    return table.take(*this, key, style) || QVStyledOverlay::takeStyle(key, style);
}

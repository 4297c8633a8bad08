// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVChildOverlay.h"

#include "platform/base/UserDefaults.h"
#include "settings/Tracing.h"

QVChildOverlay::QVChildOverlay(const Environment& environment, platform::Window& parent, const QString& style)
    : QVStyledOverlay(environment, parent.frame(), style) {
    contentView().addSubview(_content);
    _content.setFrame(contentView().bounds());

    // Straight into the panel: the content to lay out is made by the subclass, after this.
    const auto defaults = styleDefaults();
    _content.setBackgroundColor(backgroundColor());
    _content.setBackgroundOn(styleValue(defaults, &QVOverlayStyleDefaults::backgroundOn));
    _content.setBackgroundRounded(styleValue(defaults, &QVOverlayStyleDefaults::backgroundRounded));
    _content.setRadius(styleValue(defaults, &QVOverlayStyleDefaults::backgroundRadius));
    _content.setFrameOn(styleValue(defaults, &QVOverlayStyleDefaults::frameOn));
    _content.setFrameWidth(styleValue(defaults, &QVOverlayStyleDefaults::frameWidth));
    _alignStyle = static_cast<std::uint32_t>(styleValue(defaults, &QVOverlayStyleDefaults::alignment));
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
    contentSizeChanged();
}

void QVChildOverlay::setBackgroundColor(const QColor& color) {
    QVStyledOverlay::setBackgroundColor(color);
    _content.setBackgroundColor(color);
}

void QVChildOverlay::setBackgroundRounded(bool flag) {
    _content.setBackgroundRounded(flag);
    contentSizeChanged();
}

void QVChildOverlay::setRadius(float radius) {
    _content.setRadius(radius);
    contentSizeChanged();
}

void QVChildOverlay::setFrameOn(bool flag) {
    _content.setFrameOn(flag);
    contentSizeChanged();
}

void QVChildOverlay::setFrameWidth(float width) {
    _content.setFrameWidth(width);
    contentSizeChanged();
}

void QVChildOverlay::setAlignmentStyle(std::uint32_t code) {
    if (code == _alignStyle)
        return;
    _alignStyle = code;
    contentSizeChanged();
}

void QVChildOverlay::setPadding(float padding) {
    if (padding == _padding)
        return;
    _padding = padding;
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
        rect =
            OverlayPlacement::placedInParent(rect, _alignStyle, parentWindow()->frame(), static_cast<double>(_padding));
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
    bool handledAll = notification.key == style();
    if (handledAll) {
        const auto defaults = styleDefaults();
        for (const QString& key : notification.styleKeys) {
            if (key == kBackgroundOn) {
                setBackgroundOn(styleValue(defaults, &QVOverlayStyleDefaults::backgroundOn));
            } else if (key == kBackgroundRounded) {
                setBackgroundRounded(styleValue(defaults, &QVOverlayStyleDefaults::backgroundRounded));
            } else if (key == kBackgroundRadius) {
                setRadius(styleValue(defaults, &QVOverlayStyleDefaults::backgroundRadius));
            } else if (key == kFrameOn) {
                setFrameOn(styleValue(defaults, &QVOverlayStyleDefaults::frameOn));
            } else if (key == kFrameWidth) {
                setFrameWidth(styleValue(defaults, &QVOverlayStyleDefaults::frameWidth));
            } else if (key == kAlignment) {
                _alignStyle = static_cast<std::uint32_t>(styleValue(defaults, &QVOverlayStyleDefaults::alignment));
                contentSizeChanged();
            } else {
                handledAll = false;
            }
        }
    }
    return handledAll || QVStyledOverlay::preferencesChanged(notification);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/OverlayPlacement.h"
#include "platform/window/View.h"

#include <QColor>

/// The panel behind an overlay's content: a plain or rounded rectangle with an optional line around it, or nothing.
/// Values are kept as they were set; drawing makes do with absurd ones. Main thread.
class QVOverlayContentView final : public platform::View {
public:
    bool backgroundOn() const { return _panel.backgroundOn; }
    void setBackgroundOn(bool flag) { assign(_panel.backgroundOn, flag); }
    /// An invalid colour is none.
    QColor backgroundColor() const { return _backgroundColor; }
    void setBackgroundColor(const QColor& color);
    bool backgroundRounded() const { return _panel.backgroundRounded; }
    void setBackgroundRounded(bool flag) { assign(_panel.backgroundRounded, flag); }
    /// Of the corners, points.
    float radius() const { return _panel.radius; }
    void setRadius(float radius) { assign(_panel.radius, radius); }
    bool frameOn() const { return _panel.frameOn; }
    void setFrameOn(bool flag) { assign(_panel.frameOn, flag); }
    /// Without one, the line has the background's colour.
    QColor frameColor() const { return _frameColor; }
    void setFrameColor(const QColor& color);
    /// Points.
    float frameWidth() const { return _panel.frameWidth; }
    void setFrameWidth(float width) { assign(_panel.frameWidth, width); }

    /// Points of the screen for a point of the radius and the width.
    double scale() const { return _panel.scale; }
    void setScale(double scale) { assign(_panel.scale, scale); }

    const OverlayPlacement::Panel& panel() const { return _panel; }

    void draw(QPainter& painter, const platform::Rect& dirty) override;

private:
    template <class Value>
    void assign(Value& field, Value value) {
        if (field == value)
            return;
        field = value;
        setNeedsDisplay();
    }

    OverlayPlacement::Panel _panel;
    QColor _backgroundColor;
    QColor _frameColor;
};

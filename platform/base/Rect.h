// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QSizeF>

#include <algorithm>

namespace platform {

/// A rectangle whose y grows upwards, as in windows, views and on the desktop: its origin is the corner at the lower
/// left. Points, unless said otherwise. Rectangles with y downwards (pixels, and what a painter draws) are QRect and
/// QRectF: the two meet in SceneGeometry.
class Rect {
public:
    constexpr Rect() = default;
    constexpr Rect(double x, double y, double width, double height)
        : _x(x)
        , _y(y)
        , _width(width)
        , _height(height) {}
    constexpr Rect(QPointF origin, QSizeF size)
        : Rect(origin.x(), origin.y(), size.width(), size.height()) {}

    constexpr double x() const { return _x; }
    constexpr double y() const { return _y; }
    constexpr double width() const { return _width; }
    constexpr double height() const { return _height; }
    constexpr QPointF origin() const { return {_x, _y}; }
    constexpr QSizeF size() const { return {_width, _height}; }

    constexpr double minX() const { return _x; }
    constexpr double maxX() const { return _x + _width; }
    /// The lower edge, and the upper one.
    constexpr double minY() const { return _y; }
    constexpr double maxY() const { return _y + _height; }
    constexpr QPointF center() const { return {_x + _width / 2, _y + _height / 2}; }

    /// True without an area.
    constexpr bool isEmpty() const { return !(_width > 0 && _height > 0); }
    /// Half open, so that rectangles side by side share no point: the left and the lower edge count, the others do not.
    constexpr bool contains(QPointF point) const {
        return point.x() >= minX() && point.x() < maxX() && point.y() >= minY() && point.y() < maxY();
    }
    /// True when they share an area.
    constexpr bool intersects(const Rect& other) const { return !intersected(other).isEmpty(); }
    /// The area they share; the empty rectangle at 0, 0 when there is none.
    constexpr Rect intersected(const Rect& other) const {
        const double left = std::max(minX(), other.minX());
        const double lower = std::max(minY(), other.minY());
        const Rect shared(left, lower, std::min(maxX(), other.maxX()) - left, std::min(maxY(), other.maxY()) - lower);
        return shared.isEmpty() ? Rect() : shared;
    }
    constexpr Rect translated(QPointF offset) const { return {_x + offset.x(), _y + offset.y(), _width, _height}; }

    /// With a margin added on each side.
    constexpr Rect grown(double margin) const {
        return {_x - margin, _y - margin, _width + 2 * margin, _height + 2 * margin};
    }

    constexpr bool operator==(const Rect&) const = default;

private:
    double _x = 0;
    double _y = 0;
    double _width = 0;
    double _height = 0;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/MovieSizing.h"

#include "platform/movie/ControllerBar.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace MovieSizing {

namespace {

constexpr float magnificationStep = 0.1F;
/// Compared in double precision with the magnification.
constexpr double smallestToShrink = 0.19;
constexpr float panPoints = 4;

bool hasPicture(const Geometry& geometry) {
    return geometry.natural.width() > 0 && geometry.natural.height() > 0;
}

QSizeF customSize(const Geometry& geometry) {
    return geometry.customScale > 0 ? sizeForMagnification(geometry, geometry.customScale)
                                    : sizeForFitScreen(geometry, movieSize::custom);
}

} // namespace

float controllerHeight(const Geometry& geometry) {
    return static_cast<float>(platform::ControllerBar::heightOnScreen(geometry.window.height()));
}

float magnification(const QSizeF& view, const QSizeF& natural) {
    return natural.width() > 0 ? static_cast<float>(view.width()) / static_cast<float>(natural.width()) : 0.0F;
}

QSizeF sizeForMagnification(const Geometry& geometry, float m) {
    const float bar = geometry.controllerVisible ? controllerHeight(geometry) : 0.0F;
    return QSizeF(static_cast<float>(geometry.natural.width()) * m,
                  static_cast<float>(geometry.natural.height()) * m + bar);
}

QSizeF sizeForFitScreen(const Geometry& geometry, std::int32_t mode) {
    const float bar = geometry.controllerVisible ? controllerHeight(geometry) : 0.0F;
    const auto width = static_cast<float>(geometry.window.width());
    const float height = static_cast<float>(geometry.window.height()) - bar;
    if (!hasPicture(geometry))
        return QSizeF(width, bar);
    const float aspect = static_cast<float>(geometry.natural.width()) / static_cast<float>(geometry.natural.height());
    if ((mode == movieSize::fitScreen && aspect > width / height) || mode == movieSize::fitWidth)
        return QSizeF(width, width / aspect + bar);
    return QSizeF(aspect * height, height + bar);
}

Plan planSize(std::int32_t code, const QSizeF& current, const Geometry& geometry) {
    if (!hasPicture(geometry)) {
        // There is no magnification to change, and none to be kept for the next movie.
        const bool steps = code == movieSize::smaller || code == movieSize::bigger;
        return {steps ? movieSize::custom : code, sizeForFitScreen(geometry, code), std::nullopt};
    }
    const float m = magnification(current, geometry.natural);
    switch (code) {
    case movieSize::smaller: {
        if (!(static_cast<double>(m) > smallestToShrink))
            return {movieSize::custom, current, std::nullopt};
        Geometry shrunk = geometry;
        shrunk.customScale = m - magnificationStep;
        return {movieSize::custom, customSize(shrunk), shrunk.customScale};
    }
    case movieSize::bigger: {
        const float grown = m + magnificationStep;
        return {movieSize::custom, sizeForMagnification(geometry, grown), grown};
    }
    case movieSize::half:
        return {code, sizeForMagnification(geometry, 0.5F), std::nullopt};
    case movieSize::normal:
        return {code, sizeForMagnification(geometry, 1.0F), std::nullopt};
    case movieSize::twice:
        return {code, sizeForMagnification(geometry, 2.0F), std::nullopt};
    case movieSize::fitWidth:
    case movieSize::fitHeight:
        return {code, sizeForFitScreen(geometry, code), std::nullopt};
    case movieSize::custom:
        return {code, customSize(geometry), std::nullopt};
    default:
        return {code, sizeForFitScreen(geometry, movieSize::fitScreen), std::nullopt};
    }
}

platform::Rect placed(const QSizeF& size, const Geometry& geometry) {
    const QSizeF free = geometry.window - size;
    return platform::Rect(QPointF(free.width() / 2, hasPicture(geometry) ? free.height() / 2 : 0), size);
}

std::int32_t jumpTarget(std::int32_t time, std::int32_t direction, double seconds, std::int32_t timeScale,
                        std::int32_t duration) {
    const double end = duration > 0 ? duration : std::numeric_limits<std::int32_t>::max();
    const double target = std::trunc(time + direction * seconds * timeScale);
    return static_cast<std::int32_t>(std::clamp(target, 0.0, end));
}

std::optional<QPointF> scrollOffset(const platform::Rect& view, const platform::Rect& bounds, double dx, double dy) {
    QPointF offset(0, 0);
    bool moved = false;
    const auto move = [&moved](double& along, double wanted, double hidden, double sign) {
        if (hidden > 0) {
            along = sign * std::min(wanted, hidden);
            moved = true;
        }
    };
    if (dx > 0)
        move(offset.rx(), dx, bounds.minX() - view.minX(), 1);
    else if (dx < 0)
        move(offset.rx(), -dx, view.maxX() - bounds.maxX(), -1);
    if (dy < 0)
        move(offset.ry(), -dy, bounds.minY() - view.minY(), 1);
    else if (dy > 0)
        move(offset.ry(), dy, view.maxY() - bounds.maxY(), -1);
    return moved ? std::optional(offset) : std::nullopt;
}

bool canPan(int direction, const platform::Rect& view, const platform::Rect& bounds) {
    return ((direction & panDirection::left) && view.minX() < bounds.minX()) ||
           ((direction & panDirection::top) && view.maxY() > bounds.maxY()) ||
           ((direction & panDirection::right) && view.maxX() > bounds.maxX()) ||
           ((direction & panDirection::bottom) && view.minY() < bounds.minY());
}

QPointF panStep(int direction, float magnification) {
    const float step = panPoints * magnification;
    const auto along = [&](int forward, int backward) {
        return direction & forward ? step : direction & backward ? -step : 0.0F;
    };
    return QPointF(along(panDirection::left, panDirection::right), along(panDirection::top, panDirection::bottom));
}

} // namespace MovieSizing

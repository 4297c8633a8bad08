// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <QPointF>
#include <QSizeF>

#include <cstdint>
#include <optional>

/// The codes of QVDefaultMovieSize and of the movie menu's size items.
namespace movieSize {
inline constexpr std::int32_t smaller = -3;
inline constexpr std::int32_t bigger = -2;
inline constexpr std::int32_t half = 0;
inline constexpr std::int32_t normal = 1;
inline constexpr std::int32_t twice = 2;
inline constexpr std::int32_t fitScreen = 3;
inline constexpr std::int32_t fitWidth = 4;
inline constexpr std::int32_t fitHeight = 5;
inline constexpr std::int32_t custom = 6;
} // namespace movieSize

/// The edges towards which the picture is panned; a corner sets two.
namespace panDirection {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int top = 16;
inline constexpr int bottom = 32;
} // namespace panDirection

/// How large the movie view is, where it stands and how far it moves. Pure functions; sizes are points. Sizes and
/// magnifications are worked out in single precision, in which the magnification is kept.
namespace MovieSizing {

/// What the view's size depends on.
struct Geometry {
    /// The movie's natural size; empty for a movie without a picture.
    QSizeF natural;
    QSizeF window;
    bool controllerVisible = false;
    /// The custom magnification of the settings; not above 0 when there is none.
    float customScale = 0;
};

/// Of the controller bar, whether it shows or not.
float controllerHeight(const Geometry& geometry);
/// The view's width by the movie's, 0 for a movie without a picture.
float magnification(const QSizeF& view, const QSizeF& natural);
/// The natural size times m, higher by the controller bar where it is shown.
QSizeF sizeForMagnification(const Geometry& geometry, float m);
/// The whole picture in the window (fitScreen), as wide as the window (fitWidth), or as high (all other modes). A movie
/// without a picture gets the window's width and no height but the bar's.
QSizeF sizeForFitScreen(const Geometry& geometry, std::int32_t mode);

struct Plan {
    /// The code to keep: smaller and bigger become custom.
    std::int32_t code;
    QSizeF size;
    /// The custom magnification to store.
    std::optional<float> customScale;
};
/// What a size code makes of a view that is `current` large. Without a picture there is but one size.
Plan planSize(std::int32_t code, const QSizeF& current, const Geometry& geometry);

/// A view of the size in the middle of the window; that of a movie without a picture at its bottom, where the bar of
/// one that fills the screen is.
platform::Rect placed(const QSizeF& size, const Geometry& geometry);

/// Time values; `duration` 0 when it is not known.
std::int32_t jumpTarget(std::int32_t time, std::int32_t direction, double seconds, std::int32_t timeScale,
                        std::int32_t duration);

/// How far the view may move by pointer deltas (dy grows downwards) before a gap opens between its edges and those of
/// `bounds`; none when it cannot move. The rectangles have their origin bottom left; so has the answer.
std::optional<QPointF> scrollOffset(const platform::Rect& view, const platform::Rect& bounds, double dx, double dy);
/// Whether one of the edges hides a part of the view.
bool canPan(int direction, const platform::Rect& view, const platform::Rect& bounds);
/// One step of panning towards the edges, in pointer deltas.
QPointF panStep(int direction, float magnification);

} // namespace MovieSizing

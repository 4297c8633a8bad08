// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

/// Where an image and two lines below it stand in the middle of a view. Points, y upwards.
namespace BackdropLayout {

struct Sizes {
    QSizeF view;
    /// Empty for no image.
    QSizeF image;
    QSizeF title;
    /// Empty for no line.
    QSizeF detail;
    /// Points of the screen for a point of a style.
    double scale = 1;
};
struct Places {
    platform::Rect image;
    platform::Rect title;
    platform::Rect detail;
};

/// The image takes up to half of the view's height, and is at most doubled in points of a style. Everything stands on
/// whole points.
Places places(const Sizes& sizes);

} // namespace BackdropLayout

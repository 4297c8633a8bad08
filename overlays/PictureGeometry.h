// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <cstdint>

/// Where and how large the picture stands: what the subtitle views ask of the movie view. Points. Main thread.
class PictureGeometry {
public:
    virtual ~PictureGeometry() = default;

    /// The movie view's frame, in the coordinates of its window; the bar below the picture, when it shows, belongs to
    /// it. Empty without a movie.
    virtual platform::Rect pictureFrame() const = 0;
    /// The size at which a size code would show the movie; empty without one.
    virtual QSizeF sizeForFitScreen(std::int32_t mode) const = 0;
    /// Width by height; 0 without a movie.
    virtual float aspectRatio() const = 0;
    virtual bool isControllerBarVisible() const = 0;
    /// Points, whether the bar shows or not.
    virtual unsigned getControllerHeight() const = 0;
    /// Of the window's lower edge, as far as a bar over the picture stands there; points, 0 for none.
    virtual double coveredHeight() const { return 0; }
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>

namespace platform {

/// Points of a screen for one point of a style: what is drawn over a movie is given in points of a screen 1080 points
/// high, and takes the same share of a higher one. A lower screen keeps the points, which would become illegible.
inline double screenScale(double screenHeight) {
    constexpr double heightOfStyles = 1080;
    constexpr double maximumScale = 16;
    return std::isfinite(screenHeight) ? std::clamp(screenHeight / heightOfStyles, 1.0, maximumScale) : 1.0;
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/PictureShape.h"

#include <QImage>

#include <span>

namespace platform {

/// The black bars that all pictures of a movie have; pictures that are black all over say nothing. Bars of less than a
/// hundredth are the edges of a bad copy, and more than two fifths of a picture is no bar: both count as none.
PictureShape::Crop blackBars(std::span<const QImage> pictures);

} // namespace platform

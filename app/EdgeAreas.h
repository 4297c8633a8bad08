// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <QSizeF>

#include <array>

/// An area at the window's edge that pans the picture towards it while the pointer is in it. Content coordinates
/// (origin bottom left), points; the direction in the bits of panDirection.
struct EdgeArea {
    platform::Rect rect;
    int direction;
};

/// The eight areas, 100 points deep, from the lower left corner clockwise.
std::array<EdgeArea, 8> edgeAreas(const QSizeF& window);

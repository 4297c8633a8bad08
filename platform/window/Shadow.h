// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QSizeF>

namespace platform {

/// The shadow of what is drawn. Values are kept as they were set; casting it brings absurd ones back to what can be
/// drawn.
struct Shadow {
    QSizeF offset{0, 0};  // points, y grows upwards
    float blurRadius = 0; // points; the blur's standard deviation is half of it
    QColor color;         // an invalid one is no shadow

    bool operator==(const Shadow&) const = default;
};

/// How far a shadow falls beyond what casts it, points, at any side; 0 for one that cannot be seen.
double shadowReach(const Shadow& shadow);

/// Puts the shadow of a picture (ARGB32, premultiplied) under it. `pixelRatio` is the picture's pixels per point. What
/// would fall outside the picture is cut off.
void castShadow(QImage& picture, const Shadow& shadow, double pixelRatio);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>

namespace platform::pixelBlending {

/// Puts the part `part` (target pixels) of a picture, whose top left corner stands at `place`, over the target with an
/// opacity of 0 to 256. The picture is premultiplied ARGB of 32 bits, the target 32 bits whose alpha is not kept.
/// Allocates nothing.
void blend(QImage& target, const QImage& picture, QPoint place, const QRect& part, unsigned opacity);

/// Darkens a part of the target towards black: 256 leaves it, 0 makes it black.
void dim(QImage& target, const QRect& part, unsigned brightness);

/// An opacity of 0 to 1 in 256ths.
unsigned opacity256(float alpha);

} // namespace platform::pixelBlending

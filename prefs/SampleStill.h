// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;
class QRectF;

/// The two pictures over which samples are shown.
enum class SampleStill { light, dark };

/// A view by day, or by night, with the painter's opacity.
void paintStill(QPainter& painter, const QRectF& place, SampleStill still);
/// What lies behind the player's window: a light or a dark desktop with a window on it.
void paintDesktop(QPainter& painter, const QRectF& place, SampleStill still);

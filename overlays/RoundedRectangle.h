// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>

/// A closed rectangle whose corners are arcs of `radius` points, at most half the shorter side. What is no number or
/// negative counts as 0.
QPainterPath roundedRectangle(const QRectF& rect, float radius);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>

#include <optional>

/// The text forms of colours ("%g %g %g %g": red, green, blue, alpha, each 0 to 1) and sizes ("%g %g": width, height in
/// points).

/// No colour for a missing or empty text. Components that the text does not reach are 0, alpha 1; what lies outside 0
/// to 1 is clamped, and what is no number counts as not reached.
std::optional<QColor> JHColorFromString(const QString& text);
/// A null string for no colour.
QString JHStringFromColor(const std::optional<QColor>& color);
QSizeF JHSizeFromString(const QString& text);
QString JHStringFromSize(const QSizeF& size);

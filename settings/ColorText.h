// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>

#include <optional>

namespace platform {
class UserDefaults;
}

/// The text forms of colours ("%g %g %g %g": red, green, blue, alpha, each 0 to 1) and sizes ("%g %g": width, height in
/// points).

/// No colour for a missing or empty text. Components that the text does not reach are 0, alpha 1; what lies outside 0
/// to 1 is clamped, and what is no number counts as not reached.
std::optional<QColor> JHColorFromString(const QString& text);
/// A null string for no colour.
QString JHStringFromColor(const std::optional<QColor>& color);
QSizeF JHSizeFromString(const QString& text);
QString JHStringFromSize(const QSizeF& size);

std::optional<QColor> colorForKey(const platform::UserDefaults& defaults, const QString& key);
void setColor(platform::UserDefaults& defaults, const std::optional<QColor>& color, const QString& key);
QSizeF sizeForKey(const platform::UserDefaults& defaults, const QString& key);
void setSize(platform::UserDefaults& defaults, const QSizeF& size, const QString& key);

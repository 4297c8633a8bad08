// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>

#include <cstdint>

namespace platform {

/// Property-list values read as the type that is asked for. What cannot be read as it gives the zero value. Any thread.
namespace propertyValue {

/// True for a boolean or number that is not zero, and for the texts "YES", "true" (any case) and numbers in text.
bool toBool(const QVariant& value);
/// Truncated towards zero and clamped to 32 bits; a text is read as the number it begins with.
std::int32_t toInteger(const QVariant& value);
double toDouble(const QVariant& value);
float toFloat(const QVariant& value);
/// The value when it is a string, else a null string.
QString toString(const QVariant& value);
/// The value when it is a dictionary, else an empty one.
QVariantMap toDictionary(const QVariant& value);

} // namespace propertyValue

} // namespace platform

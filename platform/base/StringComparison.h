// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace platform {

/// Compares two strings without regard to case, code unit by code unit after case folding (no normalisation, no
/// locale). With `numerically`, runs of ASCII digits compare by their value, whatever their length ("a9" before "a10").
/// Answers -1, 0 or 1.
int compareCaseInsensitively(const QString& left, const QString& right, bool numerically);

/// For sorting many: a text whose order by code units among those of others is that of the texts.
QString keyForComparison(const QString& text, bool numerically);

} // namespace platform

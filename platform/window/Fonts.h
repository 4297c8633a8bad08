// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

namespace platform {

/// The regular face of a font family at a size in points of the scene (device-independent pixels); the desktop's own
/// font for an unknown family.
QFont fontWithFamilyName(const QString& family, float pointSize);

/// The same face at another size. What cannot be a size is brought back to one.
QFont convertedFont(const QFont& font, float pointSize);

/// Points of the scene.
float pointSizeOf(const QFont& font);

} // namespace platform

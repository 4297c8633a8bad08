// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Fonts.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {
constexpr float maximumPointSize = 1024;
} // namespace

QFont fontWithFamilyName(const QString& family, float pointSize) {
    QFont font = !family.isEmpty() && QFontDatabase::hasFamily(family)
                     ? QFont(family)
                     : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // The shapes stay the same at every pixel ratio; only the lines' height follows the pixels.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return convertedFont(font, pointSize);
}

QFont convertedFont(const QFont& font, float pointSize) {
    QFont converted = font;
    // Written so that a size that is no number falls to the smallest.
    const float size = pointSize >= 1.0F ? std::min(pointSize, maximumPointSize) : 1.0F;
    converted.setPixelSize(static_cast<int>(std::lround(size)));
    return converted;
}

float pointSizeOf(const QFont& font) {
    return static_cast<float>(font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize());
}

} // namespace platform

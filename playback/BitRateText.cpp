// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BitRateText.h"

#include <QLocale>

#include <cmath>

QString shortNumber(double value, int digits) {
    const double scale = std::pow(10, digits);
    return QLocale().toString(std::round(value * scale) / scale, 'g', QLocale::FloatingPointShortest);
}

QString bitRateText(double bits) {
    if (bits <= 0)
        return {};
    return bits >= 1e6 ? shortNumber(bits / 1e6, 1) + QStringLiteral(" Mbit/s")
                       : QLocale().toString(std::llround(bits / 1000)) + QStringLiteral(" kbit/s");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/DelayText.h"

#include <QLocale>

#include <cstdlib>

namespace {

/// From so many on, milliseconds are said as seconds.
constexpr std::int32_t longDelay = 10'000;

} // namespace

QString delayText(std::int32_t milliseconds) {
    const QString sign = milliseconds > 0   ? QStringLiteral("+")
                         : milliseconds < 0 ? QStringLiteral("\u2212")
                                            : QString();
    const std::int32_t amount = std::abs(milliseconds);
    if (amount < longDelay)
        return sign + QLocale().toString(amount) + QStringLiteral(" ms");
    return sign + QLocale().toString(amount / 1000.0, 'f', 2) + QStringLiteral(" s");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/ClockText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

QString stringWithTimeIntervalInSeconds(std::int32_t seconds) {
    return QString::asprintf("%d:%02d:%02d", seconds / 3600, seconds % 3600 / 60, seconds % 3600 % 60);
}

QString preciseClockText(double seconds, int digits) {
    const double unit = std::pow(10.0, digits);
    // What is a hair below a whole number of them is meant as that.
    const auto units = static_cast<std::int64_t>(std::floor(std::max(seconds, 0.0) * unit + 1e-4));
    const auto whole = static_cast<std::int64_t>(unit);
    return stringWithTimeIntervalInSeconds(static_cast<std::int32_t>(units / whole)) + u'.' +
           QString::number(units % whole).rightJustified(digits, u'0');
}

std::optional<double> secondsOfClockText(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*(?:(?:(\d{1,4}):)?(\d{1,5}):)?(\d{1,7}(?:[.,]\d{0,9})?)\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const double hours = match.captured(1).toDouble();
    const double minutes = match.captured(2).toDouble();
    const double seconds = match.captured(3).replace(u',', u'.').toDouble();
    const bool overflows =
        (!match.captured(2).isEmpty() && seconds >= 60) || (!match.captured(1).isEmpty() && minutes >= 60);
    return overflows ? std::nullopt : std::optional(hours * 3600 + minutes * 60 + seconds);
}

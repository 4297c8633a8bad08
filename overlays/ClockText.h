// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// Seconds as hours, minutes and seconds: "1:02:03". Hours are neither padded nor limited.
QString stringWithTimeIntervalInSeconds(std::int32_t seconds);

/// The same with so many digits of a fraction, cut off: "1:02:03.456".
QString preciseClockText(double seconds, int digits);

/// What a person writes for a time: "90", "1:30", "1:23:45.6", also with a comma. Seconds; none for anything else.
std::optional<double> secondsOfClockText(const QString& text);

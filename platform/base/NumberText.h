// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace platform {

/// Numbers as text, the same in every locale. Any thread.

/// Takes a decimal number ("-1", "+.5", "1e3") and the blanks before it off the front of the text. Nothing when no
/// finite number stands there; the text is then left as it was. What is too large for a double counts as no number.
std::optional<double> takeNumber(QByteArrayView& text);

/// The form of printf's "%g" with so many significant digits. What is not finite is written as 0.
QByteArray generalText(double value, int digits = 6);

/// The shortest text that reads back as the same number.
QByteArray shortestText(float value);
QByteArray shortestText(double value);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/JumpIntervalBox.h"

#include <algorithm>

QValidator::State JumpIntervalBox::validate(QString& text, int&) const {
    if (text.isEmpty())
        return QValidator::Intermediate;
    if (!std::ranges::all_of(text, [](QChar letter) { return letter.isDigit(); }))
        return QValidator::Invalid;
    bool isNumber = false;
    const int number = locale().toInt(text, &isNumber);
    return isNumber && number >= minimum() && number <= maximum() ? QValidator::Acceptable : QValidator::Intermediate;
}

void JumpIntervalBox::fixup(QString& text) const {
    text = textFromValue(value());
}

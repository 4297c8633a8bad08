// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/StringComparison.h"

namespace platform {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

int sign(int difference) {
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

/// Takes the run of digits off the front, and gives it without its leading zeros.
QStringView takeDigits(QStringView& text) {
    qsizetype end = 0;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    QStringView digits = text.left(end);
    while (digits.startsWith(u'0'))
        digits = digits.mid(1);
    text = text.mid(end);
    return digits;
}

int compareUnits(QStringView left, QStringView right, bool numerically) {
    while (!left.isEmpty() && !right.isEmpty()) {
        if (numerically && isDigit(left.front()) && isDigit(right.front())) {
            const QStringView leftDigits = takeDigits(left);
            const QStringView rightDigits = takeDigits(right);
            if (leftDigits.size() != rightDigits.size())
                return leftDigits.size() < rightDigits.size() ? -1 : 1;
            // Of the same length: the order of the texts is the order of the values.
            if (const int order = compareUnits(leftDigits, rightDigits, false))
                return order;
            continue;
        }
        if (left.front() != right.front())
            return left.front().unicode() < right.front().unicode() ? -1 : 1;
        left = left.mid(1);
        right = right.mid(1);
    }
    return sign(static_cast<int>(!left.isEmpty()) - static_cast<int>(!right.isEmpty()));
}

} // namespace

int compareCaseInsensitively(const QString& left, const QString& right, bool numerically) {
    return compareUnits(left.toCaseFolded(), right.toCaseFolded(), numerically);
}

} // namespace platform

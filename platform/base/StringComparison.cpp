// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/StringComparison.h"

#include <algorithm>

namespace platform {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

} // namespace

int compareCaseInsensitively(const QString& left, const QString& right, bool numerically) {
    const int order = keyForComparison(left, numerically).compare(keyForComparison(right, numerically));
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

QString keyForComparison(const QString& text, bool numerically) {
    const QString folded = text.toCaseFolded();
    if (!numerically)
        return folded;
    QString key;
    key.reserve(folded.size() + 8);
    for (qsizetype i = 0; i < folded.size();) {
        if (!isDigit(folded[i])) {
            key.append(folded[i++]);
            continue;
        }
        qsizetype end = i;
        while (end < folded.size() && isDigit(folded[end]))
            ++end;
        while (i < end && folded[i] == u'0')
            ++i;
        // A digit, for what stands beside other characters; then the longer number is the larger one, and of the same
        // length the order of the texts is that of the values.
        key.append(u'0');
        key.append(QChar(static_cast<char16_t>(std::min<qsizetype>(end - i, 0xFFFF))));
        key.append(QStringView(folded).sliced(i, end - i));
        i = end;
    }
    return key;
}

} // namespace platform

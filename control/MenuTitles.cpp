// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/MenuTitles.h"

namespace {

/// A menu that is wider hides the movie. Characters.
constexpr qsizetype longestTitle = 60;

} // namespace

QString shortenedInTheMiddle(const QString& name) {
    if (name.size() <= longestTitle)
        return name;
    qsizetype head = longestTitle / 2;
    qsizetype tail = longestTitle - head - 1;
    // Not through the middle of a character.
    head -= name[head - 1].isHighSurrogate() ? 1 : 0;
    tail -= name[name.size() - tail].isLowSurrogate() ? 1 : 0;
    return name.left(head) + QChar(0x2026) + name.right(tail);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitle.h"

#include "platform/base/TextEncoding.h"

#include <algorithm>

QString QVSubtitle::text() const {
    if (_utf8.empty())
        return _text;
    return platform::stringWithData(_utf8, platform::textEncoding::utf8).value_or(QString());
}

QString QVSubtitle::beginningOfText(qsizetype maximum) const {
    if (_utf8.empty())
        return _text.left(maximum);
    auto length = std::min(_utf8.size(), static_cast<std::size_t>(maximum));
    // Not within a character.
    while (length > 0 && length < _utf8.size() && (static_cast<unsigned char>(_utf8[length]) & 0xC0U) == 0x80U)
        --length;
    return platform::stringWithData(_utf8.substr(0, length), platform::textEncoding::utf8).value_or(QString());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitle.h"

#include "platform/base/TextEncoding.h"

QString QVSubtitle::text() const {
    if (_utf8.empty())
        return _text;
    return platform::stringWithData(_utf8, platform::textEncoding::utf8).value_or(QString());
}

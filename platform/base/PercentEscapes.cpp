// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PercentEscapes.h"

#include <QUrl>

namespace platform {

QString stringByAddingPercentEscapes(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "!*'();/?:@&=+$,"));
}

} // namespace platform

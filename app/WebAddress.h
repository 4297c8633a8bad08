// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

/// Whether an address may be shown in the user's browser, whoever it comes from: one of http or https, with a server.
inline bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

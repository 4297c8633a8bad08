// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"

namespace platform {

/// What FetchFile says, by the library that opens movies: proxies, certificates and timeouts are those of movies.
FetchedFile fetchFile(const QUrl& url, qsizetype limit, const std::atomic<bool>& cancelled);

} // namespace platform

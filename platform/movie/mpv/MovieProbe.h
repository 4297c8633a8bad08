// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"

#include <QUrl>

#include <atomic>

namespace platform {

/// Opens a movie with libavformat, reads its facts and closes it again. Only the header is read where that says
/// everything; else the streams are looked into. Any thread; blocks, at most about `timeout` seconds and 10 without
/// anything from a server, or until `cancelled` is set.
OpenedMovie probeMovie(const QUrl& url, double timeout, const std::atomic<bool>& cancelled);

} // namespace platform

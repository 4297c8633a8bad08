// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"

#include <QUrl>

#include <atomic>
#include <optional>

namespace platform {

/// The address of the movie that a page of a video site shows, as the program yt-dlp tells it; none where that program
/// is not installed, or knows of none. Only addresses of the web are asked for, and taken. The program reads and writes
/// nothing of the user's, runs for half a minute at most, and is killed once `cancelled` is set. Any thread.
std::optional<QUrl> streamOfPage(const QUrl& page, const std::atomic<bool>& cancelled);

/// Whether what came of opening an address leaves open that it is such a page.
bool mayBePage(const QUrl& url, const OpenedMovie& opened);

} // namespace platform

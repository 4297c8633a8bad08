// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

#include <QUrl>

#include <atomic>
#include <optional>

namespace platform {

/// The first line and the last one of a local file's track of subtitles, by its number among those. Reads the file from
/// its beginning to the first one, and its end, as far back as the last one lies: of most films a small part. None
/// where there are none or the search was cancelled. Blocks; any thread.
std::optional<SubtitleEnds> subtitleEnds(const QUrl& url, int track, const std::atomic<bool>& cancelled);

} // namespace platform

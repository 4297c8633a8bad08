// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

struct AVFormatContext;
struct mpv_node;

namespace platform {

/// The tracks of a movie that was opened, as far as its header shows them; numbered as libmpv does. The libraries are
/// loaded.
MovieTracks tracksOf(const AVFormatContext* input);

/// The same as libmpv tells them (its property "track-list"); none of anything else.
MovieTracks tracksOf(const mpv_node& list);

/// The tracks of the file that are known so far, with those that the player found beside them: some turn up late, and
/// some come from files of their own.
MovieTracks mergedTracks(const MovieTracks& known, const MovieTracks& found);

} // namespace platform

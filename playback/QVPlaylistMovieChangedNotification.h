// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QVMovie;

/// Posted by the playlist each time a position is set, with the movie that is now the current one.
struct QVPlaylistMovieChangedNotification {
    std::shared_ptr<QVMovie> movie;
};

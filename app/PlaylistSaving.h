// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

namespace platform {
class Desktop;
} // namespace platform

class QVPlaylistController;

/// Writes the playlist into a file that the user names. Main thread.
class PlaylistSaving {
public:
    /// Both outlive it.
    PlaylistSaving(const Environment& environment, platform::Desktop& desktop, const QVPlaylistController& playlist);

    /// Asks for the file, and writes it whole or not at all: what stood there before stays where that fails, which an
    /// alert explains. Does nothing with an empty list.
    void savePlaylist();

private:
    Environment _environment;
    platform::Desktop& _desktop;
    const QVPlaylistController& _playlist;
};

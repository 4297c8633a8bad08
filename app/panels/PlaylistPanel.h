// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QVPlaylistController;
class QWindow;
struct Environment;

/// Shows the whole playlist until it is closed: with a filter, to play, move and remove entries by keyboard and by
/// dragging. Follows the list while it stands. Main thread.
void runPlaylistPanel(const Environment& environment, QVPlaylistController& playlist, QWindow* window);

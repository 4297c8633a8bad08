// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {

/// While one lives, a panel of the desktop's own asks the user on this program's behalf. The window that has the
/// keyboard then is another program's, and yet the user has not left: nothing is paused or hidden for it. Main thread.
class ForeignPanel {
public:
    ForeignPanel();
    ForeignPanel(const ForeignPanel&) = delete;
    ForeignPanel& operator=(const ForeignPanel&) = delete;
    /// A moment later the keyboard must be back; else the user has left meanwhile, and is heard to.
    ~ForeignPanel();

    static bool isUp();
};

} // namespace platform

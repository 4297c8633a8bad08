// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Lets the user choose what is played. Main thread.
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /// Shows the panel until it is answered; the files chosen go to the playlist.
    virtual void doOpen() = 0;
};

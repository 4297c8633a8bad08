// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The on-screen display: 0 nothing, 1 time, 2 movie, 3 subtitles, 4 looping, 5 volume. One for the process. Main
/// thread.
class QVOSDOverlay {
public:
    static QVOSDOverlay& sharedOSDOverlay();

    int displayType() const { return _type; }
    void setDisplayType(int type) { _type = type; }
    /// Moves to the next (+1) or previous (-1) type, around.
    void cycleDisplays(int step);

private:
    int _type = 0;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The on-screen display as those who choose what it shows see it: 0 nothing, 1 time, 2 movie, 3 subtitles, 4 looping,
/// 5 volume. Main thread.
class OnScreenDisplay {
public:
    virtual ~OnScreenDisplay() = default;

    virtual int displayType() const = 0;
    /// The type that is shown already is not shown anew.
    virtual void setDisplayType(int type) = 0;
    /// Moves to the next (+1) or previous (-1) type, around.
    virtual void cycleDisplays(int step) = 0;
};

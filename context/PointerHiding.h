// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the main window and the movie controller ask of whoever hides the pointer. Main thread.
class PointerHiding {
public:
    virtual ~PointerHiding() = default;

    /// Hides the pointer after the delay of the settings, counted from now.
    virtual void scheduleCursorHide() = 0;
};

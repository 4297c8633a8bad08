// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

namespace platform {

class Menu;
class Window;

/// Shows a root window and the windows above it on the screen. A window tells its host what changed; the host reads the
/// rest from the window. Main thread.
class WindowHost {
public:
    WindowHost() = default;
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;
    virtual ~WindowHost() = default;

    virtual void frameChanged() = 0;
    virtual void alphaChanged() = 0;
    virtual void levelChanged() = 0;
    virtual void orderedChanged() = 0;
    /// `rect` is in the root's content coordinates, points.
    virtual void displayNeeded(const Rect& rect) = 0;
    /// The same, and paints before it returns, with whatever else was marked: for what comes from the event loop anyway
    /// and would only wait for its next pass.
    virtual void displayNow(const Rect& rect) = 0;
    virtual void makeKeyAndOrderFront() = 0;
    /// Hides the pointer until the mouse next moves, or shows it again.
    virtual void setPointerHidden(bool hidden) = 0;
    /// Opens a menu where the pointer is, performed by the target of the main menu; without one nothing opens.
    /// The menu is filled now, and stays as long as the host.
    virtual void showMenu(Menu& menu) = 0;
    /// Device pixels per point of the screen that the window is on.
    virtual double pixelRatio() const = 0;
};

} // namespace platform

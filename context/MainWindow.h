// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
struct Screen;
} // namespace platform

/// What the movie controller asks of the application's main window beyond what every window does. Main thread.
class MainWindow {
public:
    virtual ~MainWindow() = default;

    /// Fades the window in, and out.
    virtual void show() = 0;
    virtual void hide() = 0;
    /// How long hide() takes, seconds.
    virtual double fadingOutInterval() const = 0;
    /// Shows the window and moves it onto a screen, filling it.
    virtual void adoptScreen(const platform::Screen& screen) = 0;
    /// The areas at the window's edges that pan the picture. They stand for the size at which they were added.
    virtual void addTrackingRects() = 0;
    virtual void removeTrackingRects() = 0;
};

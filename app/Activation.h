// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/window/Window.h"

class PointerAutohide;
class QVFullScreenWindow;
class QVMovieView;

/// What becomes of the main window and its movie when the application, or the window, loses the user's attention and
/// gets it back: lowering, hiding, pausing. Main thread.
class Activation final : public platform::WindowDelegate {
public:
    /// All outlive it.
    Activation(const Environment& environment, QVFullScreenWindow& window, QVMovieView& view, PointerAutohide& pointer);

    void applicationWillBecomeActive();
    void applicationDidBecomeActive();
    void applicationWillResignActive();
    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;

private:
    void raiseWindow();
    void lowerWindow();

    Environment _environment;
    QVFullScreenWindow& _window;
    QVMovieView& _view;
    PointerAutohide& _pointer;
    bool _pause_forced = false;
    bool _window_hidden = false;
    platform::Subscription _movieChanged;
};

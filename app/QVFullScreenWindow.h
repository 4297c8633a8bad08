// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/EdgeAreas.h"
#include "context/Environment.h"
#include "context/MainWindow.h"
#include "overlays/QVParentOverlay.h"

#include <array>
#include <functional>
#include <optional>

namespace platform {
class Desktop;
} // namespace platform

class CommandTarget;
class PointerHiding;

/// The one main window: borderless, covering a whole screen. Main thread.
class QVFullScreenWindow final : public QVParentOverlay, public MainWindow {
public:
    /// All outlive the window but the picture: it is not panned once it has gone.
    struct Collaborators {
        platform::Desktop& desktop;
        CommandTarget& commands;
        PointerHiding& pointer;
        /// The pointer came into an area at the window's edge, and left it.
        std::function<void(int direction)> startAutoscroll;
        std::function<void(int direction)> stopAutoscroll;
        /// The pointer moved in the window's content, or left it.
        std::function<void(const std::optional<QPointF>&)> pointerMoved;
        /// Ends a walk through folders; false when there is none.
        std::function<bool()> endSearches;
    };
    /// On the screen that the settings name, else the main one; not shown yet.
    QVFullScreenWindow(const Environment& environment, Collaborators collaborators);
    ~QVFullScreenWindow() override;

    void show() override { QVParentOverlay::show(); }
    void hide() override { QVParentOverlay::hide(); }
    double fadingOutInterval() const override { return QVParentOverlay::fadingOutInterval(); }
    void adoptScreen(const platform::Screen& screen) override;
    void addTrackingRects() override;
    void removeTrackingRects() override;
    /// The application ends when this window has been hidden.
    void setTerminating(bool terminating) { _terminating = terminating; }

    bool preferencesChanged(const QVPreferencesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVFullScreenWindow"; }
    void postFadeOut() override;
    float smallestShownAlpha() const override;
    bool keyDown(const platform::KeyEvent& event) override;
    void mouseMoved(const platform::MouseEvent& event) override;
    void mouseLeft() override;
    void mouseDown(const platform::MouseEvent& event) override;
    void wheelTurned(int steps) override;
    void mouseUp(const platform::MouseEvent& event) override;
    void mouseEntered(int trackingTag) override;
    void mouseExited(int trackingTag) override;

private:
    int _directionWithTag(int tag) const;

    Collaborators _with;
    std::array<int, 8> _trackingTags{}; // in the order of the areas; 0 for none
    bool _terminating = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/EdgeAreas.h"
#include "context/MainWindow.h"
#include "overlays/QVParentOverlay.h"

#include <array>

/// The one main window: borderless, covering a whole screen. Main thread.
class QVFullScreenWindow final : public QVParentOverlay, public MainWindow {
public:
    /// On the screen that the settings name, else the main one; not shown yet.
    QVFullScreenWindow();
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
    bool keyDown(const platform::KeyEvent& event) override;
    void mouseMoved(const platform::MouseEvent& event) override;
    void mouseUp(const platform::MouseEvent& event) override;
    void mouseEntered(int trackingTag) override;
    void mouseExited(int trackingTag) override;

private:
    int _directionWithTag(int tag) const;

    std::array<int, 8> _trackingTags{}; // in the order of the areas; 0 for none
    bool _terminating = false;
};

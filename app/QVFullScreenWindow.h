// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/EdgeAreas.h"
#include "app/context/MainWindow.h"
#include "app/settings/QVPreferencesChangedNotification.h"
#include "platform/base/NotificationCenter.h"
#include "platform/window/Window.h"

#include <array>

/// The one main window: borderless, covering a whole screen. Main thread.
class QVFullScreenWindow final : public platform::Window, public MainWindow {
public:
    /// On the screen that the settings name, else the main one; not shown yet.
    QVFullScreenWindow();
    ~QVFullScreenWindow() override;

    void show() override;
    void hide() override;
    double fadingInInterval() const { return 0; }
    double fadingOutInterval() const override { return 0; }
    void adoptScreen(const platform::Screen& screen) override;
    void addTrackingRects() override;
    void removeTrackingRects() override;
    /// Restores the order of the windows above this one.
    void orderChildrens() {}
    /// The application ends when this window has been hidden.
    void setTerminating(bool terminating) { _terminating = terminating; }

protected:
    bool keyDown(const platform::KeyEvent& event) override;
    void mouseMoved(const platform::MouseEvent& event) override;
    void mouseUp(const platform::MouseEvent& event) override;
    void mouseEntered(int trackingTag) override;
    void mouseExited(int trackingTag) override;

private:
    int _directionWithTag(int tag) const;
    bool preferencesChanged(const QVPreferencesChangedNotification& notification);
    void postFadeOut();

    std::array<int, 8> _trackingTags{}; // in the order of the areas; 0 for none
    bool _terminating = false;
    platform::Subscription _preferencesChanged;
};

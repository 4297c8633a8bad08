// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QVFullScreenWindow.h"

#include "context/CommandTarget.h"
#include "context/PointerHiding.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

constexpr const char* className = "QVFullScreenWindow";

/// A window that cannot be seen would still take the whole screen, and the keys.
constexpr float smallestSeenAlpha = 0.2F;

/// A wheel that spins freely turns many at once.
constexpr int maximumWheelSteps = 5;

platform::Rect chosenFrame(const platform::UserDefaults& settings, const platform::Desktop& desktop) {
    const std::vector<platform::Screen> screens = desktop.screens();
    const std::int32_t index = settings.integerForKey(kQVMainWindowScreen);
    if (index >= 0 && static_cast<std::size_t>(index) < screens.size() &&
        screens[static_cast<std::size_t>(index)].isScreen)
        return screens[static_cast<std::size_t>(index)].frame;
    return screens.empty() ? platform::Rect(0, 0, 1280, 720) : screens.front().frame;
}

} // namespace

QVFullScreenWindow::QVFullScreenWindow(const Environment& environment, Collaborators collaborators)
    : QVParentOverlay(environment, chosenFrame(environment.settings, collaborators.desktop), kQVFullscreenOverlayStyle)
    , _with(std::move(collaborators)) {
    setLevel(environment.settings.integerForKey(kQVMainWindowLayer));
    addTrackingRects();
}

QVFullScreenWindow::~QVFullScreenWindow() {
    removeTrackingRects();
}

void QVFullScreenWindow::postFadeOut() {
    QVParentOverlay::postFadeOut();
    if (_terminating)
        _with.desktop.replyToApplicationShouldTerminate(true);
}

float QVFullScreenWindow::smallestShownAlpha() const {
    return smallestSeenAlpha;
}

void QVFullScreenWindow::adoptScreen(const platform::Screen& screen) {
    show();
    setFrame(screen.frame);
}

void QVFullScreenWindow::addTrackingRects() {
    const auto areas = edgeAreas(frame().size());
    for (std::size_t i = 0; i < areas.size(); ++i)
        _trackingTags[i] = addTrackingRect(areas[i].rect);
}

void QVFullScreenWindow::removeTrackingRects() {
    for (int& tag : _trackingTags) {
        removeTrackingRect(tag);
        tag = 0;
    }
}

int QVFullScreenWindow::_directionWithTag(int tag) const {
    const auto areas = edgeAreas(frame().size());
    for (std::size_t i = 0; i < areas.size(); ++i) {
        if (tag != 0 && _trackingTags[i] == tag)
            return areas[i].direction;
    }
    return 0;
}

void QVFullScreenWindow::mouseEntered(int trackingTag) {
    if (const int direction = _directionWithTag(trackingTag))
        _with.startAutoscroll(direction);
}

void QVFullScreenWindow::mouseExited(int trackingTag) {
    if (const int direction = _directionWithTag(trackingTag))
        _with.stopAutoscroll(direction);
}

void QVFullScreenWindow::mouseMoved(const platform::MouseEvent& event) {
    QVParentOverlay::mouseMoved(event);
    _with.pointer.scheduleCursorHide();
    _with.pointerMoved(event.locationInWindow);
}

void QVFullScreenWindow::mouseLeft() {
    _with.pointerMoved(std::nullopt);
}

void QVFullScreenWindow::mouseDown(const platform::MouseEvent& event) {
    const auto gesture = [&] {
        // The press itself of a double click was told before.
        if (event.clickCount > 1)
            return event.button == platform::MouseButton::left ? MouseGesture::doubleClick : MouseGesture::none;
        switch (event.button) {
        case platform::MouseButton::middle:
            return MouseGesture::middleClick;
        case platform::MouseButton::back:
            return MouseGesture::backClick;
        case platform::MouseButton::forward:
            return MouseGesture::forwardClick;
        default:
            return MouseGesture::none;
        }
    }();
    _with.commands.processMouseGesture(gesture);
}

void QVFullScreenWindow::wheelTurned(int steps) {
    for (int i = std::min(std::abs(steps), maximumWheelSteps); i > 0; --i)
        _with.commands.processMouseGesture(steps > 0 ? MouseGesture::wheelUp : MouseGesture::wheelDown);
}

void QVFullScreenWindow::mouseUp(const platform::MouseEvent& event) {
    QVParentOverlay::mouseUp(event);
    _with.pointer.scheduleCursorHide();
}

bool QVFullScreenWindow::keyDown(const platform::KeyEvent& event) {
    if (event.charactersIgnoringModifiers == QChar(platform::functionKey::escape)) {
        if (_with.endSearches())
            return true; // the next press quits
        trace("%@: ESC pressed. Terminating app.", className);
        _with.commands.performAction(action::quit, Feedback::yes);
        return true;
    }
    trace("%@: NOT HANDLED! Next Responder: 0x%08X", className,
          QString::number(reinterpret_cast<quintptr>(delegate()), 16).toUpper().rightJustified(8, QLatin1Char('0')));
    return false;
}

bool QVFullScreenWindow::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key != kQVMainWindowLayer)
        return QVParentOverlay::preferencesChanged(notification);
    setLevel(environment().settings.integerForKey(kQVMainWindowLayer));
    return true;
}

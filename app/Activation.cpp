// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Activation.h"

#include "app/PointerAutohide.h"
#include "app/QVFullScreenWindow.h"
#include "context/Notifications.h"
#include "platform/base/UserDefaults.h"
#include "playback/QVMovieView.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <utility>

Activation::Activation(const Environment& environment, QVFullScreenWindow& window, QVMovieView& view,
                       PointerAutohide& pointer)
    : _environment(environment)
    , _window(window)
    , _view(view)
    , _pointer(pointer) {
    // The next movie plays or rests on its own account.
    _movieChanged = environment.notifications.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto&) { _pause_forced = false; });
}

void Activation::applicationWillBecomeActive() {
    const TraceScope scope("-[QVAppController applicationWillBecomeActive:]");
    raiseWindow();
    if (std::exchange(_window_hidden, false)) {
        _window.setMinimizesWhenHidden(false);
        _window.show();
    }
}

void Activation::applicationDidBecomeActive() {
    const TraceScope scope("-[QVAppController applicationDidBecomeActive:]");
    _pointer.scheduleCursorHide();
    _window.orderChildrens();
}

void Activation::applicationWillResignActive() {
    const TraceScope scope("-[QVAppController applicationWillResignActive:]");
    lowerWindow();
    _window.orderChildrens();
    if (_environment.settings.boolForKey(kQVHideOnDeactivate)) {
        _window.setMinimizesWhenHidden(true);
        _window.hide();
        _window_hidden = true;
    }
}

void Activation::raiseWindow() {
    _window.setLevel(_environment.settings.integerForKey(kQVMainWindowLayer));
}

void Activation::lowerWindow() {
    if (_window.level() > platform::windowLevel::normal)
        _window.setLevel(platform::windowLevel::normal);
}

void Activation::windowDidBecomeKey(platform::Window& window) {
    const TraceScope scope("-[QVAppController windowDidBecomeKey:]");
    if (&window == &_window) {
        raiseWindow();
        if (std::exchange(_pause_forced, false))
            _view.restoreMovieState();
        _pointer.scheduleCursorHide();
    }
    _window.orderChildrens();
}

void Activation::windowDidResignKey(platform::Window& window) {
    const TraceScope scope("-[QVAppController windowDidResignKey:]");
    if (&window == &_window) {
        _pointer.showCursor();
        if (_environment.settings.boolForKey(kQVPauseOnDeactivate)) {
            _view.saveMovieState();
            _view.stop();
            _pause_forced = true;
        }
        lowerWindow();
    }
    _window.orderChildrens();
}

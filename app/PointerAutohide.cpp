// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PointerAutohide.h"

#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

#include <utility>

namespace {

// Above this many seconds the pointer is never hidden.
constexpr std::int32_t maximumDelay = 10;

} // namespace

PointerAutohide::PointerAutohide(const Environment& environment, std::function<void(bool hidden)> setHidden)
    : _environment(environment)
    , _setHidden(std::move(setHidden)) {}

void PointerAutohide::hideCursor() {
    _setHidden(true);
}

void PointerAutohide::showCursor() {
    _setHidden(false);
}

void PointerAutohide::scheduleCursorHide() {
    const std::int32_t delay = _environment.settings.integerForKey(kQVCursorAutohideDelay);
    if (delay > maximumDelay)
        return;
    if (_autohide_cursor_timer) {
        _autohide_cursor_timer->rearm(delay);
        return;
    }
    _autohide_cursor_timer = _environment.loop.schedule(delay, false, [this] { autohideCursor(); });
}

void PointerAutohide::autohideCursor() {
    // "Never" may have been chosen while the timer ran.
    if (_environment.settings.integerForKey(kQVCursorAutohideDelay) <= maximumDelay)
        hideCursor();
    _autohide_cursor_timer.reset();
}

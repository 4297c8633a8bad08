// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/FadeDemonstration.h"

#include "overlays/QVStyledOverlay.h"

#include <utility>

namespace {

/// Seconds after which a slider counts as let go, and for which a hidden overlay stays hidden.
constexpr double settling = 0.4;

} // namespace

FadeDemonstration::FadeDemonstration(const Environment& environment, QVStyledOverlay& overlay)
    : _environment(environment)
    , _overlay(overlay)
    , _onPreferences(environment.notifications.observe<QVPreferencesChangedNotification>(
          [this](const QVPreferencesChangedNotification& notification) { preferencesChanged(notification); })) {}

void FadeDemonstration::later(double seconds, std::function<void()> work) {
    _timer = _environment.loop.schedule(seconds, false, std::move(work));
}

void FadeDemonstration::showAfter(double seconds) {
    later(seconds, [this] { _overlay.show(); });
}

void FadeDemonstration::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    // All at once is a style that was reset: it is shown as it rests.
    if (notification.key != _overlay.style() || notification.styleKeys.size() != 1)
        return;
    const QString& key = notification.styleKeys.front();
    if (key == kFadingInInterval) {
        later(settling, [this] {
            _overlay.hideAtOnce();
            _overlay.show();
        });
    } else if (key == kFadingOutInterval) {
        later(settling, [this] {
            _overlay.hide();
            showAfter(_overlay.fadingOutInterval() + settling);
        });
    } else if (key == kFadingDelayInterval) {
        later(settling, [this] {
            _overlay.autopop();
            showAfter(_overlay.fadingInInterval() + _overlay.fadingDelayInterval() + _overlay.fadingOutInterval() +
                      settling);
        });
    } else if (key == kMinAlpha) {
        // It follows while the slider is moved, also when it is hidden already.
        _overlay.hide();
        showAfter(_overlay.fadingOutInterval() + 2 * settling);
    } else if (!_overlay.isVisible()) {
        stop();
        _overlay.show();
    }
}

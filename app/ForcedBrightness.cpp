// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ForcedBrightness.h"

#include "app/ScreenBrightness.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <cmath>
#include <utility>

ForcedBrightness::ForcedBrightness(const Environment& environment, platform::Desktop& desktop, CurrentScreen screen)
    : _environment(environment)
    , _desktop(desktop)
    , _screen(std::move(screen)) {}

ForcedBrightness::~ForcedBrightness() = default;

void ForcedBrightness::begin() {
    if (const auto screen = _screen()) {
        _saved = brightnessOf(_desktop, *screen);
        if (_environment.settings.boolForKey(kQVForceScreenBrightness))
            setBrightnessOf(_desktop, *screen, _environment.settings.floatForKey(kQVScreenBrightness));
    }
    _onPreferences = _environment.notifications.observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) {
            if (notification.key == kQVForceScreenBrightness || notification.key == kQVScreenBrightness)
                follow();
        });
}

void ForcedBrightness::follow() {
    const auto screen = _screen();
    if (!screen)
        return;
    if (_environment.settings.boolForKey(kQVForceScreenBrightness))
        setBrightnessOf(_desktop, *screen, _environment.settings.floatForKey(kQVScreenBrightness));
    else if (std::isfinite(_saved)) // of one that could not be read nothing is known
        setBrightnessOf(_desktop, *screen, _saved);
}

void ForcedBrightness::end() {
    _onPreferences = {};
    if (const auto screen = _screen(); screen && _saved != brightnessOf(_desktop, *screen))
        setBrightnessOf(_desktop, *screen, _saved);
}

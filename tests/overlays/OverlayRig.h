// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/NotificationCenter.h"
#include "platform/window/Window.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "tests/support/TestEnvironment.h"

/// Settings whose default style has round figures: a second in, half a second out, two seconds of hold.
struct OverlayRig {
    OverlayRig() {
        window.orderFront();
        auto style = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(settings.defaults(), kQVDefaultOverlayStyle);
        style->set(&OverlayStyle::fadingInInterval, 1);
        style->set(&OverlayStyle::fadingOutInterval, 0.5);
        style->set(&OverlayStyle::fadingDelayInterval, 2);
        style->set(&OverlayStyle::minAlpha, 0);
        style->set(&OverlayStyle::maxAlpha, 1);
        style->set(&OverlayStyle::alignment, 0x121);
        style->set(&OverlayStyle::backgroundOn, true);
        style->set(&OverlayStyle::backgroundRounded, true);
        style->set(&OverlayStyle::backgroundRadius, 10);
        style->set(&OverlayStyle::frameOn, true);
        style->set(&OverlayStyle::frameWidth, 2);
        style->set(&OverlayStyle::shadowOn, false);
        settings.defaults().setInteger(12, kQVOverlayTextFontSizeMin);
        settings.defaults().setFloat(20, kQVOverlayDefaultPadding);
    }

    /// Writes an entry of the default style and announces it.
    void change(const QString& styleKey, const QVariant& value) {
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(settings.defaults(), kQVDefaultOverlayStyle)
            ->setObject(value, styleKey);
        settings.notifications.post(QVPreferencesChangedNotification{kQVDefaultOverlayStyle, {styleKey}});
    }

    TestEnvironment settings;
    platform::Window window{platform::Rect(0, 0, 1024, 768)};
};

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
        style->setFadingInInterval(1);
        style->setFadingOutInterval(0.5);
        style->setFadingDelayInterval(2);
        style->setMinAlpha(0);
        style->setMaxAlpha(1);
        style->setAlignment(0x121);
        style->setBackgroundOn(true);
        style->setBackgroundRounded(true);
        style->setBackgroundRadius(10);
        style->setFrameOn(true);
        style->setFrameWidth(2);
        style->setShadowOn(false);
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

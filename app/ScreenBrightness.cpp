// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ScreenBrightness.h"

#include "platform/desktop/Desktop.h"
#include "settings/Tracing.h"

#include <limits>

float brightnessOf(const platform::Desktop& desktop, const platform::Screen& screen) {
    return screen.isScreen ? desktop.brightness(screen) : std::numeric_limits<float>::infinity();
}

void setBrightnessOf(platform::Desktop& desktop, const platform::Screen& screen, float brightness) {
    if (!screen.isScreen)
        return;
    // Written so that what is no number is refused, too.
    if (!(brightness >= 0.0F && brightness <= 1.0F)) {
        logAlways("%@: ERROR: Attempt to set invalid brightness: %f", "Screen", brightness);
        return;
    }
    desktop.setBrightness(screen, brightness);
}

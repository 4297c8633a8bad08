// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/PictureColors.h"

#include "platform/base/NotificationCenter.h"
#include "platform/base/UserDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <algorithm>
#include <array>

namespace PictureColors {

using platform::PictureAdjustment;

namespace {

struct Color {
    const QString& key;
    int PictureAdjustment::*value;
};
const std::array<Color, 5> colors{{{kQVPictureContrast, &PictureAdjustment::contrast},
                                   {kQVPictureBrightness, &PictureAdjustment::brightness},
                                   {kQVPictureGamma, &PictureAdjustment::gamma},
                                   {kQVPictureSaturation, &PictureAdjustment::saturation},
                                   {kQVPictureHue, &PictureAdjustment::hue}}};

} // namespace

PictureAdjustment stored(const platform::UserDefaults& settings) {
    PictureAdjustment adjustment;
    for (const Color& color : colors)
        adjustment.*color.value = std::clamp<int>(settings.integerForKey(color.key), -greatest, greatest);
    return adjustment;
}

void store(const Environment& environment, const PictureAdjustment& adjustment) {
    const PictureAdjustment before = stored(environment.settings);
    const auto forChanged = [&](const auto& act) {
        for (const Color& color : colors) {
            if (before.*color.value != adjustment.*color.value)
                act(color);
        }
    };
    forChanged([&](const Color& color) { environment.settings.setChosenObject(adjustment.*color.value, color.key); });
    forChanged([&](const Color& color) {
        environment.notifications.post(QVPreferencesChangedNotification{color.key, {}});
    });
}

bool isKey(const QString& key) {
    return std::ranges::any_of(colors, [&key](const Color& color) { return color.key == key; });
}

} // namespace PictureColors

// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/ColorsGroup.h"

#include "prefs/PictureSample.h"
#include "settings/SettingsKeys.h"

#include <tuple>
#include <ui_Preferences.h>

ColorsGroup::ColorsGroup(const Environment& environment, Ui::Preferences& controls, PictureSource& pictures,
                         const SettingSlider::Choose& choose) {
    const auto& c = controls;
    for (const auto& [slider, value, key] :
         {std::tuple(c._pictureContrast, c._pictureContrastValue, kQVPictureContrast),
          std::tuple(c._pictureBrightness, c._pictureBrightnessValue, kQVPictureBrightness),
          std::tuple(c._pictureGamma, c._pictureGammaValue, kQVPictureGamma),
          std::tuple(c._pictureSaturation, c._pictureSaturationValue, kQVPictureSaturation),
          std::tuple(c._pictureHue, c._pictureHueValue, kQVPictureHue)}) {
        // The sliders keep their length while they are moved.
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("-100")));
        _sliders.push_back(std::make_unique<SettingSlider>(
            SettingSlider::Parts{*slider, *value, key},
            [choose](const QVariant& chosen, const QString& changed) { choose(chosen.toInt(), changed); }));
    }
    c._pictureSampleLayout->addWidget(new PictureSample(environment, pictures));
}

void ColorsGroup::show(const platform::UserDefaults& settings) {
    for (const auto& slider : _sliders)
        slider->show(settings);
}

QStringList ColorsGroup::keys() const {
    QStringList keys;
    for (const auto& slider : _sliders)
        keys << slider->key();
    return keys;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "prefs/SettingSlider.h"

#include <QStringList>

#include <memory>
#include <vector>

class PictureSource;

namespace Ui {
class Preferences;
} // namespace Ui

/// The page of the colors in which movies are shown: a slider for each, and a sample of what they make of a picture.
/// Main thread.
class ColorsGroup final {
public:
    /// All outlive it. `choose` gets whole numbers.
    ColorsGroup(const Environment& environment, Ui::Preferences& controls, PictureSource& pictures,
                const SettingSlider::Choose& choose);

    void show(const platform::UserDefaults& settings);
    QStringList keys() const;

private:
    std::vector<std::unique_ptr<SettingSlider>> _sliders;
};

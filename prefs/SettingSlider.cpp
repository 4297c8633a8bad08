// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/SettingSlider.h"

#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <utility>

SettingSlider::SettingSlider(Parts parts, Choose choose)
    : _parts(std::move(parts))
    , _choose(std::move(choose)) {
    connect(&_parts.slider, &QSlider::valueChanged, this, [this](int step) {
        write();
        _choose(step * _parts.unit, _parts.key);
    });
}

void SettingSlider::show(const platform::UserDefaults& settings) {
    const double steps = static_cast<double>(settings.floatForKey(_parts.key)) / _parts.unit;
    const double smallest = _parts.slider.minimum();
    // Written so that what is no number shows the smallest.
    const double shown = steps >= smallest ? std::min<double>(steps, _parts.slider.maximum()) : smallest;
    const QSignalBlocker silently(&_parts.slider);
    _parts.slider.setValue(static_cast<int>(std::lround(shown)));
    write();
}

void SettingSlider::setEnabled(bool enabled) {
    _parts.slider.setEnabled(enabled);
    _parts.value.setEnabled(enabled);
}

void SettingSlider::write() {
    const QString text =
        platform::localizedFormat(QString::fromLatin1(_parts.format), {QString::number(_parts.slider.value())});
    _parts.value.setText(text);
    _parts.slider.setAccessibleDescription(text);
}

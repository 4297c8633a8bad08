// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/FloatSlider.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

FloatSlider::FloatSlider(double smallest, double largest, double step)
    : QSlider(Qt::Horizontal)
    , _smallest(smallest)
    , _largest(largest)
    , _step(step)
    , _value(smallest) {
    constexpr int stepsOfAPage = 10;
    setRange(0, static_cast<int>(std::lround((largest - smallest) / step)));
    setPageStep(std::max(1, maximum() / stepsOfAPage));
    connect(this, &QSlider::valueChanged, this, [this](int position) {
        _value = position == maximum() ? _largest : _smallest + position * _step;
        if (moved)
            moved();
    });
}

double FloatSlider::shownValue() const {
    return std::isnan(_value) ? _smallest : std::clamp(_value, _smallest, _largest);
}

void FloatSlider::setFloatValue(double value) {
    _value = value;
    const QSignalBlocker silently(this);
    setValue(static_cast<int>(std::lround((shownValue() - _smallest) / _step)));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSlider>

#include <functional>

/// A slider over numbers with fractions. What it is given it keeps as it is until the user moves it, even where it can
/// only show the nearest value that it offers. Main thread.
class FloatSlider final : public QSlider {
public:
    /// Offers the numbers from `smallest` to `largest` in steps.
    FloatSlider(double smallest, double largest, double step);

    /// As it was given, or as the user chose.
    double floatValue() const { return _value; }
    /// Within what the slider offers; the smallest for what is no number.
    double shownValue() const;
    /// Tells nobody.
    void setFloatValue(double value);
    double smallest() const { return _smallest; }
    double largest() const { return _largest; }

    /// Called with each value to which the user moves the slider.
    std::function<void()> moved;

private:
    double _smallest;
    double _largest;
    double _step;
    double _value;
};

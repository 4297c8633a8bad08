// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// A straight ramp of opacity over the run loop's clock: it starts at a value and moves by one whole unit an interval.
/// Main thread.
class QVFadeCalculator {
public:
    /// `direction` is +1 to rise, -1 to fall, 0 to stand still; `interval` is in seconds and must not be 0.
    explicit QVFadeCalculator(double interval = 1.0, double startValue = 0.0, int direction = 0);
    static QVFadeCalculator fadeInCalculator(double interval, double startValue) {
        return QVFadeCalculator(interval, startValue, +1);
    }
    static QVFadeCalculator fadeOutCalculator(double interval, double startValue) {
        return QVFadeCalculator(interval, startValue, -1);
    }

    /// The value at this moment; it runs on beyond 0 and 1.
    double valueNow() const;

private:
    double _multiplier; // opacity per second, signed
    double _addition;
};

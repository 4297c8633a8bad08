// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
class RunLoop;
} // namespace platform

/// A straight ramp of opacity over the run loop's clock: it starts at a value and moves by one whole unit an interval.
/// Main thread.
class QVFadeCalculator {
public:
    /// `direction` is +1 to rise, -1 to fall, 0 to stand still; `interval` is in seconds and must not be 0. The loop
    /// outlives the calculator.
    QVFadeCalculator(const platform::RunLoop& loop, double interval, double startValue, int direction);
    static QVFadeCalculator fadeInCalculator(const platform::RunLoop& loop, double interval, double startValue) {
        return {loop, interval, startValue, +1};
    }
    static QVFadeCalculator fadeOutCalculator(const platform::RunLoop& loop, double interval, double startValue) {
        return {loop, interval, startValue, -1};
    }

    /// The value at this moment; it runs on beyond 0 and 1.
    double valueNow() const;

private:
    const platform::RunLoop* _loop;
    double _multiplier; // opacity per second, signed
    double _addition;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFadeCalculator.h"

#include "platform/base/RunLoop.h"

QVFadeCalculator::QVFadeCalculator(double interval, double startValue, int direction)
    : _multiplier(direction / interval)
    , _addition(startValue - direction * platform::RunLoop::main().now() / interval) {}

double QVFadeCalculator::valueNow() const {
    return _multiplier * platform::RunLoop::main().now() + _addition;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFadeCalculator.h"

#include "platform/base/RunLoop.h"

QVFadeCalculator::QVFadeCalculator(const platform::RunLoop& loop, double interval, double startValue, int direction)
    : _loop(&loop)
    , _multiplier(direction / interval)
    , _addition(startValue - direction * loop.now() / interval) {}

double QVFadeCalculator::valueNow() const {
    return _multiplier * _loop->now() + _addition;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/FastMotion.h"

namespace {
constexpr float firstRate = 2.0F;
constexpr float lastRate = 128.0F;
} // namespace

float fastForwardRate(float rate) {
    if (rate < 1.0F)
        return firstRate;
    return rate < lastRate ? 2.0F * rate : rate;
}

float fastRewindRate(float rate, bool atBeginning) {
    if (rate > 0.0F || (rate == 0.0F && !atBeginning))
        return -firstRate;
    return rate > -lastRate ? 2.0F * rate : rate;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/VolumeSteps.h"

#include <algorithm>

float steppedVolume(std::int32_t control, float volume) {
    // The limits lie between the single-precision values that stepping meets, so they are compared in double precision.
    const double exact = volume;
    switch (control) {
    case volumeControl::up:
        if (exact <= 0.099)
            return volume + 0.01F;
        return exact <= 1.99 ? volume + 0.1F : volume + 0.25F;
    case volumeControl::down: {
        float lower = volume;
        if (exact < 0.11)
            lower -= 0.01F;
        else if (exact < 2.1)
            lower -= 0.1F;
        else
            lower -= 0.25F;
        return std::max(lower, 0.0F);
    }
    case volumeControl::atLeastNormal:
        return std::max(volume, 1.0F);
    case volumeControl::silent:
        return volume > 0.0F ? 0.0F : volume;
    default:
        return volume;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVOSDOverlay.h"

QVOSDOverlay& QVOSDOverlay::sharedOSDOverlay() {
    static QVOSDOverlay overlay;
    return overlay;
}

void QVOSDOverlay::cycleDisplays(int step) {
    if (_type == 5 && step == 1)
        _type = 0;
    else if (_type == 0 && step == -1)
        _type = 5;
    else
        _type += step;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/ClockText.h"

QString stringWithTimeIntervalInSeconds(std::int32_t seconds) {
    return QString::asprintf("%d:%02d:%02d", seconds / 3600, seconds % 3600 / 60, seconds % 3600 % 60);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/SpeedSteps.h"

#include "platform/base/Localization.h"

#include <QLocale>

#include <algorithm>

std::int32_t steppedSpeed(std::int32_t argument, std::int32_t speed) {
    constexpr std::int32_t fine = 5, coarse = 10, coarseFrom = 200;
    std::int32_t wanted = argument;
    if (argument == speedStep::faster) {
        const std::int32_t step = speed < coarseFrom ? fine : coarse;
        wanted = (speed / step + 1) * step;
    } else if (argument == speedStep::slower) {
        const std::int32_t step = speed <= coarseFrom ? fine : coarse;
        wanted = ((speed + step - 1) / step - 1) * step;
    } else if (argument == speedStep::twice) {
        wanted = 2 * speed;
    } else if (argument == speedStep::half) {
        wanted = speed / 2;
    }
    return std::clamp(wanted, offeredSpeeds.front(), offeredSpeeds.back());
}

QString speedText(std::int32_t speed) {
    const QLocale locale(platform::localizationLanguages().value(0));
    return platform::localizedFormat(QStringLiteral("%@x"), {locale.toString(speed / 100.0, 'g', 3)});
}

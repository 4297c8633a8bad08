// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitlesController.h"

#include "platform/base/Localization.h"

void QVSubtitlesController::cycleSubtitles(int) {}

void QVSubtitlesController::setCurrenWithIndex(std::int32_t) {
    _index = 0xFFFFFFFF;
}

QString QVSubtitlesController::currentInfoAsString() const {
    return platform::localizedFormat(QStringLiteral("Subtitles: %@"),
                                     {platform::localizedString(QStringLiteral("None"))});
}

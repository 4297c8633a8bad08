// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/OSDTexts.h"

/// The texts of the on-screen display, from the application's main objects as they stand. Main thread.
class CurrentTexts final : public OSDTexts {
public:
    std::int32_t timeInSeconds() const override;
    std::int32_t durationInSeconds() const override;
    QString currentMovieInfo() const override;
    QString currentSubtitlesInfo() const override;
    QString loopingInfo() const override;
    QString volumeInfo() const override;
};

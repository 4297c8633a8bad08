// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// What the on-screen display shows, as the objects that know it say it. Main thread.
class OSDTexts {
public:
    virtual ~OSDTexts() = default;

    /// Of the movie shown; 0 without one.
    virtual std::int32_t timeInSeconds() const = 0;
    virtual std::int32_t durationInSeconds() const = 0;
    /// The playlist's text for its current movie.
    virtual QString currentMovieInfo() const = 0;
    virtual QString currentSubtitlesInfo() const = 0;
    virtual QString loopingInfo() const = 0;
    virtual QString volumeInfo() const = 0;
};

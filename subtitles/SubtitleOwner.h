// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// What a subtitle track asks of the movie that it belongs to. Main thread.
class SubtitleOwner {
public:
    virtual ~SubtitleOwner() = default;

    /// Units a second of the movie's time values.
    virtual std::int32_t timeScale() const = 0;
    /// Pictures a second; 0 without video.
    virtual float frameRate() = 0;
    virtual std::int32_t time() const = 0;
};

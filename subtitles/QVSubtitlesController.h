// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/QVSubtitles.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

/// Decides which subtitle track of the current movie is shown, and whether. Main thread.
class QVSubtitlesController {
public:
    virtual ~QVSubtitlesController() = default;

    std::uint32_t count() const { return static_cast<std::uint32_t>(_subtitles.size()); }
    /// The position of the current track, or all bits set for none.
    std::uint32_t index() const { return _index; }
    /// Goes on to the next track (1) or back (-1), with "off" after the last; nothing without tracks.
    virtual void cycleSubtitles(int direction);
    /// Selects by position; a position outside the list turns the display off.
    virtual void setCurrenWithIndex(std::int32_t index);
    /// "Subtitles: ..." for the on-screen display.
    virtual QString currentInfoAsString() const;

private:
    std::vector<std::shared_ptr<QVSubtitles>> _subtitles;
    std::uint32_t _index = 0xFFFFFFFF;
};

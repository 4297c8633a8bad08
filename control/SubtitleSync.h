// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/CueShift.h"

#include <QString>

#include <cstdint>
#include <memory>

class QVMovieView;
class QVSubtitle;
class QVSubtitles;
class QVSubtitlesController;

/// Brings the selected subtitles in step with the movie: by steps, or by two lines that are heard. Each operation acts
/// at once, and answers what there is to say of it. Main thread.
class SubtitleSync {
public:
    /// Both outlive it.
    SubtitleSync(QVMovieView& view, QVSubtitlesController& subtitles)
        : _view(view)
        , _subtitles(subtitles) {}

    /// Later by so many milliseconds, or below 0 earlier.
    QString shiftBy(std::int32_t milliseconds);
    /// As the file says.
    QString reset();
    /// The first line of the file is being spoken: all lines move with it.
    QString firstLineIsNow();
    /// The last line is: the first one stays, and those between are stretched. The lines of a movie that runs at
    /// another speed than the one that they were written for are right then from the first to the last.
    QString lastLineIsNow();

private:
    enum class Line { first, last };
    QString alignLine(Line line);
    QString set(const CueShift& shift);

    QVMovieView& _view;
    QVSubtitlesController& _subtitles;
};

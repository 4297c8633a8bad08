// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/CueShift.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

class QVMovieView;
class QVSubtitles;
class QVSubtitlesController;

namespace platform {
struct SubtitleEnds;
} // namespace platform

/// Brings the selected subtitles in step with the movie: by steps, or by two lines that are heard. Each operation acts
/// at once, unless it says otherwise, and answers what there is to say of it. Main thread.
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
    enum class Line { first, last };
    /// The first line of the file is being spoken: all lines move with it. Or the last one is: the first one stays, and
    /// those between are stretched, so that the lines of a movie that runs at another speed than the one that they were
    /// written for are right from the first to the last. What there is to say may come later, when the lines had to be
    /// looked for in the movie; the moment is that of this call.
    void lineIsNow(Line line, std::function<void(const QString&)> said);

private:
    QString align(const QVSubtitles& track, Line line, const platform::SubtitleEnds& ends, double now);
    QString set(const CueShift& shift);

    QVMovieView& _view;
    QVSubtitlesController& _subtitles;
    /// What answers that come later look for.
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
};

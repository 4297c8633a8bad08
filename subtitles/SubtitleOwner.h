// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class QVSubtitles;
struct CueShift;

/// What a subtitle track, and the subtitles controller, ask of the movie that the track belongs to. Main thread.
class SubtitleOwner {
public:
    virtual ~SubtitleOwner() = default;

    /// Units a second of the movie's time values.
    virtual std::int32_t timeScale() const = 0;
    /// Pictures a second; 0 without video.
    virtual float frameRate() = 0;
    virtual std::int32_t time() const = 0;
    /// The name of its file, with the extension; empty where it has none.
    virtual QString fileName() const { return {}; }
    /// The tracks found for it; they must not be used once it is gone.
    virtual const std::vector<std::shared_ptr<QVSubtitles>>& subtitles() const {
        static const std::vector<std::shared_ptr<QVSubtitles>> none;
        return none;
    }
    /// Adds the tracks of a file, and answers the first of them; none where it has none. A file whose tracks are there
    /// already is not added again.
    virtual std::shared_ptr<QVSubtitles> addSubtitles(const QString&) { return nullptr; }
    /// The tag of the language that is spoken in the track of sound that plays; empty where it is not known.
    virtual QString audioLanguage() const { return {}; }
    /// Has the player read a file of subtitles beside the movie and draw it into the picture, with its times moved; no
    /// more, where it draws that one.
    virtual void drawFile(const QString&, const CueShift&) {}
    virtual void endDrawing(const QString&) {}
    /// The name of the track that is to be shown beside another one, which the movie is remembered with; empty for
    /// none.
    virtual void setSecondTrack(const QString&) {}
    virtual QString secondTrack() const { return {}; }
    /// Looks for its tracks again where the setting QVSubtitlesRepair, which says what is a subtitle file, changed
    /// since it did. The tracks of files that are the same by both stay.
    virtual void followReadingMode() {}
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"
#include "subtitles/CueCursor.h"
#include "subtitles/CueList.h"
#include "subtitles/CueShift.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/SubtitleOwner.h"
#include "subtitles/input/ReadingMode.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace platform {
class UserDefaults;
} // namespace platform

/// How a track of images asks to be shown, in place of the view's style.
struct ImageAppearance {
    float alpha = 1; // opacity, 0 to 1
    double fadeIn = 0;
    double fadeOut = 0; // seconds
};

/// One subtitle track: the timed cues of one file, or of one stream of it. This class finds the cue of a time and times
/// the cues anew; how they are read, at once or by a worker, is said by the classes derived from it. Main thread,
/// except where a worker loads (see appendSubtitle).
class QVSubtitles {
public:
    /// The readers, in the order in which they are offered a file of an unknown kind.
    enum Type : std::int32_t {
        typeNone = -1,
        typeSubRip,
        typeMicroDVD,
        typeVobSub,
        typeTMPlayer,
        typePacket,
        typeInMovie
    };
    /// Encoding of a track that was never loaded.
    static constexpr std::uint32_t noEncoding = 0xFFFFFFFF;

    QVSubtitles(const QVSubtitles&) = delete;
    QVSubtitles& operator=(const QVSubtitles&) = delete;
    virtual ~QVSubtitles();

    /// Loads the cues as the settings for encoding, frame rate and repairing stand, unless they are loaded or being
    /// loaded; what was read in another mode is read again. A track that a worker fills returns at once. What cannot be
    /// read is logged and gives no cues.
    void preload();
    /// Drops the cues; a worker is stopped first, which waits for its current cue.
    virtual void unload();
    /// A worker is still at it.
    virtual bool isLoading() const { return false; }
    /// Returns when all cues are there; nothing unless a worker is loading.
    virtual void waitForLoading() {}
    /// Who is told, on the main thread, soon after a worker read cues and after its end; null for nobody. A track that
    /// loads at once has nothing to tell.
    virtual void setLoadingObserver(std::function<void()>) {}

    /// The track is the one that is shown, or is not any more: for those that the player reads.
    virtual void setShown(bool) {}

    /// It is shown beside another track, or is not any more; `changed` is called when another line of it is due. Texts
    /// only, and never the one that is shown by setShown().
    virtual void setSecond(bool, std::function<void()>) {}
    virtual std::shared_ptr<QVSubtitle> secondCueForTime(std::int32_t movieTime) {
        return QVSubtitles::subtitleForTime(movieTime);
    }

    /// Puts the cursor on the first cue; nothing without cues. Any thread.
    void reset();
    /// The cue to show at a time, or none. The search begins where the last one ended: playing forward it is a
    /// comparison. In a gap the cursor stays on the later cue. Cues that stand in no order are found all the same; of
    /// several that show at once it is the one that started last.
    virtual std::shared_ptr<QVSubtitle> subtitleForTime(std::int32_t movieTime);
    /// The first line and the last one that the file has, their times as it has them; none where there are none, or
    /// they cannot be found, or a worker still reads. Now or later, at most once, and not when the track has gone.
    using EndsFound = std::function<void(const std::optional<platform::SubtitleEnds>& ends)>;
    virtual void findEnds(EndsFound found);
    /// How the track lies to the movie: a time that is looked for is moved by it first. Main thread.
    const CueShift& shift() const { return _shift; }
    virtual void setShift(const CueShift& shift) { _shift = shift; }
    /// The cue at the cursor, or none.
    std::shared_ptr<QVSubtitle> current();

    /// Re-times a loaded frame-based track; nothing else changes by it, the choice included. Choice 0 is the movie's
    /// rate, 1 to 5 are 23.976, 24, 25, 29.97 and 30.
    virtual void setFrameRate(std::int32_t choice);
    /// Decodes the loaded texts anew; nothing for images. What is not valid in the encoding is left out, as it is when
    /// a track is loaded.
    virtual void setEncoding(std::uint32_t encoding) = 0;
    /// The setting QVSubtitlesDefaultEncoding as an encoding number (those above 31 bits are stored as negative or
    /// positive numbers alike).
    static std::uint32_t defaultEncoding(const platform::UserDefaults& settings);

    const QString& path() const { return _path; }
    std::int32_t type() const { return _type; }
    /// The encoding of the texts: under "automatic" the one that was found.
    std::uint32_t encoding() const { return _encoding; }
    /// The frame-rate choice in force.
    std::int32_t frameRateChoice() const { return _fps; }
    std::size_t count() const;
    /// How the cues were read, or are being read.
    ReadingMode mode() const { return _mode; }
    /// How much of the file could not be read so far: lines of a text, pictures of other tracks. Any thread.
    std::size_t losses() const { return _losses; }
    /// The cues in the file's order, as far as they are loaded.
    std::vector<std::shared_ptr<QVSubtitle>> cues() const;
    /// For the user: the file's name, unless the reader knows better.
    virtual QString title() const;
    QString description() const;
    /// The kind of file, as people call it.
    virtual QString formatName() const;
    /// The tag ("de", "pt-BR") of the language, as far as it is known; empty otherwise.
    virtual QString language() const;
    /// Whether it holds only what is to be read beside the language that is spoken: signs, and foreign words.
    virtual bool isForced() const;

    virtual bool isTextBased() const = 0;
    virtual bool isImageBased() const = 0;
    virtual bool isFrameBased() const { return false; }
    /// Only cues marked as forced are shown.
    virtual bool onlyForced() const { return false; }
    /// The track's place among those of its file.
    virtual std::uint32_t streamIndex() const { return 0; }
    /// None for a track that is shown as its view's style says.
    virtual std::optional<ImageAppearance> appearance() const { return std::nullopt; }

    /// A value in the reader's own unit of time as a time of the movie: in single precision, truncated towards zero,
    /// clamped to 32 bits.
    std::int32_t ajustToMovieTimeScale(std::int32_t value) const;
    /// The same in double precision, rounded: the nearest time that the movie has.
    std::int32_t nearestMovieTime(double value) const;
    /// Frames a second for a choice; the movie's for 0 and unknown ones, 25 when the movie has none.
    float actualFrameRate(std::int32_t choice) const;

protected:
    /// Whether a worker fills the track while the main thread looks cues up.
    enum class Loading { atOnce, onWorker };

    /// The settings and the owner outlive the track's use.
    QVSubtitles(const platform::UserDefaults& settings, QString path, SubtitleOwner& owner, Type type,
                float timeScaleAdjustment, Loading loading);

    /// Reads all cues, giving each to appendSubtitle, or has a worker do it; at the end calls finishLoading. Throws
    /// std::bad_alloc on the main thread only.
    virtual void _preload() = 0;
    /// The class's name, as messages have it.
    virtual const char* className() const = 0;

    /// By whoever loads; on the worker for a track that has one.
    void appendSubtitle(std::shared_ptr<QVSubtitle> subtitle);
    /// The same for all cues in one piece, in the place of those that there are. The cursor goes to the first cue.
    void setCues(CueList cues);
    void finishLoading();
    void logMemoryFull() const;

    /// By whoever loads.
    void noteLosses(std::size_t count) { _losses += count; }
    void forgetLosses() { _losses = 0; }

    void setLoadedEncoding(std::uint32_t encoding) { _encoding = encoding; }
    void setLoadedFrameRate(std::int32_t choice) { _fps = choice; }
    bool isLoaded() const { return _subtitles.has_value(); }
    /// Takes the loaded cues out, for another reading of the file in their place.
    CueList takeCues();
    /// Puts cues in the place of those that there are. The cursor stays on its place, or goes to the last cue;
    /// without cues it has none.
    void replaceCues(CueList cues);
    const platform::UserDefaults& settings() const { return _settings; }
    SubtitleOwner& owner() const { return _owner; }

private:
    std::unique_lock<std::mutex> lockSubtitles() const;
    std::int32_t shifted(std::int32_t movieTime) const;
    void placeCursor(std::size_t index);
    void moveCursor(std::int32_t time);
    void followLoading();
    void resetCursor();

    const platform::UserDefaults& _settings;
    QString _path;
    Type _type;
    SubtitleOwner& _owner;
    std::int32_t _fps;
    float _timeScaleAdjustment;
    ReadingMode _mode = ReadingMode::strict;
    std::atomic<std::size_t> _losses = 0;
    std::atomic<std::uint32_t> _encoding = noEncoding;
    std::optional<CueList> _subtitles;
    CueShift _shift;
    CueCursor _cursor;
    std::shared_ptr<QVSubtitle> _current; // at the cursor, while that is placed
    /// The cursor belongs to the main thread: a worker only asks for its reset.
    std::atomic<bool> _resetAsked = false;
    /// Around the cues of a track that a worker fills; none for others.
    std::unique_ptr<std::mutex> _subGuard;
};

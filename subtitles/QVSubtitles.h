// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/TextEncoding.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/SubtitleOwner.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

class LineReader;

/// One subtitle track: the timed cues of one file, or of one stream of it. The reader classes say how a cue is read;
/// this class loads, looks up, re-times and re-decodes. Main thread, except where a worker loads (see isThreaded).
///
/// Tracks are made with makeTrack, which sees to it that a worker has ended before any part of the track goes.
class QVSubtitles {
public:
    /// The readers, in the order in which they are offered a file of an unknown kind.
    enum Type : std::int32_t { typeNone = -1, typeSubRip, typeMicroDVD, typeVobSub, typeTMPlayer };
    /// Encoding of a track that was never loaded.
    static constexpr std::uint32_t noEncoding = 0xFFFFFFFF;

    QVSubtitles(const QVSubtitles&) = delete;
    QVSubtitles& operator=(const QVSubtitles&) = delete;
    virtual ~QVSubtitles();

    /// A track of a class derived from this one, with the arguments of its constructor.
    template <class Track, class... Arguments>
    static std::shared_ptr<Track> makeTrack(Arguments&&... arguments) {
        return std::shared_ptr<Track>(new Track(std::forward<Arguments>(arguments)...), [](Track* track) {
            track->stopWorker();
            delete track;
        });
    }

    /// Loads the cues as the settings for encoding and frame rate stand, unless they are loaded or being loaded. A
    /// threaded track returns at once and is filled by a worker. What cannot be read is logged and gives no cues.
    virtual void preload();
    /// Returns when all cues are there; nothing unless a worker is loading.
    void waitForLoading();
    /// Stops a worker, waiting for its current cue, and drops the cues.
    virtual void unload();
    /// A worker is still at it.
    virtual bool isLoading() const { return _loading; }
    /// Puts the cursor on the first cue; nothing without cues. Any thread.
    void reset();
    /// The cue to show at a time, or none. The search begins where the last one ended: playing forward it is a
    /// comparison. In a gap the cursor stays on the later cue.
    virtual std::shared_ptr<QVSubtitle> subtitleForTime(std::int32_t time);
    /// The cue at the cursor, or none.
    virtual std::shared_ptr<QVSubtitle> current();

    /// Re-times a loaded frame-based track; nothing else changes by it, the choice included. Choice 0 is the movie's
    /// rate, 1 to 5 are 23.976, 24, 25, 29.97 and 30.
    virtual void setFrameRate(std::int32_t choice);
    /// Decodes the loaded texts anew. A cue that is not valid in the encoding is left without text. The number 0
    /// (automatic) reads the file again, so that nothing lost by a wrong choice stays lost.
    virtual void setEncoding(std::uint32_t encoding);
    /// The setting QVSubtitlesDefaultEncoding as an encoding number (those above 31 bits are stored as negative or
    /// positive numbers alike).
    static std::uint32_t defaultEncoding();

    virtual QString path() const { return _path; }
    std::int32_t type() const { return _type; }
    /// The encoding of the texts: under "automatic" the one that was found.
    std::uint32_t encoding() const { return _encoding; }
    /// The frame-rate choice in force.
    std::int32_t frameRateChoice() const { return _fps; }
    std::size_t count() const;
    /// The cues in the file's order, as far as they are loaded.
    std::vector<std::shared_ptr<QVSubtitle>> cues() const;
    /// For the user: the file's name, unless the reader knows better.
    virtual QString title() const;
    QString description() const;

    /// Loads on a worker.
    virtual bool isThreaded() const { return false; }
    virtual bool isFrameBased() const { return false; }
    virtual bool isTextBased() const { return false; }
    virtual bool isImageBased() const { return false; }
    /// Only cues marked as forced are shown.
    virtual bool onlyForced() const { return false; }
    /// The track's place among those of its file.
    virtual std::uint32_t streamIndex() const { return 0; }

    /// A value in the reader's own unit of time as a time of the movie: in single precision, truncated towards zero,
    /// clamped to 32 bits.
    std::int32_t ajustToMovieTimeScale(std::int32_t value) const;
    /// Frames a second for a choice; the movie's for 0 and unknown ones, 25 when the movie has none.
    float actualFrameRate(std::int32_t choice) const;

protected:
    /// A text that is put together piece by piece: in place, where valid pieces of UTF-8 follow each other in the file,
    /// else copied. One of the two is empty.
    struct PendingText {
        std::string_view utf8;
        QString copy;

        bool isEmpty() const { return utf8.empty() && copy.isEmpty(); }
    };

    /// A track without a file, which stays empty.
    QVSubtitles() = default;
    /// The owner outlives the track's use.
    QVSubtitles(QString path, SubtitleOwner& owner, Type type, float timeScaleAdjustment);

    /// The next cue of the file, or none at its end. Takes at least a line unless the file is at its end; decodes with
    /// appendBytes, converts times with ajustToMovieTimeScale; may change the end of _previous, and makes the new cue
    /// _previous. On the worker for threaded tracks.
    virtual std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines);
    /// Reads all cues, giving each to appendSubtitle, until _abort is set; at the end calls finishLoading.
    virtual void _preload();
    /// The loop of _preload over the bytes of a file, for readers of texts.
    void readAll(QByteArray bytes, std::uint32_t encoding);
    /// The class's name, as messages have it.
    virtual const char* className() const { return "QVSubtitles"; }

    void appendSubtitle(std::shared_ptr<QVSubtitle> subtitle);
    void finishLoading();
    /// Decodes exactly these bytes and appends them; leaves the text as it is when they are not valid.
    bool appendBytes(std::string_view bytes, QString& text) { return _decoder.append(bytes, text); }
    /// The same for a piece of the text being read, which stays where it is as long as it can.
    void appendPiece(std::string_view piece, PendingText& text);
    /// Where a cue's text is put together: empty, and with the room that earlier cues needed.
    PendingText& emptiedText() {
        _pendingText.utf8 = {};
        _pendingText.copy.resize(0);
        return _pendingText;
    }
    /// A cue of the track, with white space and newlines taken off both ends of its text.
    std::shared_ptr<QVSubtitle> makeSubtitle(const PendingText& text, std::int32_t start, std::int32_t end);
    SubtitleOwner* owner() const { return _owner; }
    /// Towards zero, clamped to 32 bits; what is not a number is 0.
    static std::int32_t truncated(float value);

    std::atomic<bool> _abort = false;
    /// The last cue read while loading.
    std::shared_ptr<QVSubtitle> _previous;

private:
    /// The cues of a text together with the bytes that they may have their texts in. Each keeps all of them: one
    /// allocation for many cues, and no copies of texts, load a large file in half the time.
    struct TextCues {
        QByteArray bytes;
        /// All of the bytes, when they are valid UTF-8 and are to be read as that.
        std::string_view validUTF8;
        bool bytesInUse = false;
        std::deque<QVSubtitle> subtitles;
    };
    /// What exists only once a track is loaded: the cues, and beside them their ends, which the search walks over.
    struct Cues {
        std::shared_ptr<TextCues> texts; // none for other tracks
        std::vector<std::shared_ptr<QVSubtitle>> subtitles;
        std::vector<std::int32_t> ends;
    };
    struct Guards {
        std::mutex worker; // held for a whole load; taken before `sub`
        mutable std::mutex sub;
    };

    std::unique_lock<std::mutex> lockWorker();
    std::unique_lock<std::mutex> lockSubtitles() const;
    void _workerThread();
    void stopWorker();
    void placeCursor(std::size_t index);
    void followWorker();
    void decodeAgain(std::uint32_t encoding);
    void readAgain();

    QString _path;
    Type _type = typeNone;
    SubtitleOwner* _owner = nullptr;
    std::int32_t _fps = 0;
    float _timeScaleAdjustment = 1.0F;
    std::uint32_t _encoding = noEncoding;
    platform::TextDecoder _decoder;
    PendingText _pendingText;
    std::optional<Cues> _subtitles;
    std::uint32_t _index = 0x7FFFFFFF;
    double _prevEnd = 0;
    std::shared_ptr<QVSubtitle> _current;
    /// The cursor belongs to the main thread: a worker only asks for its reset.
    std::atomic<bool> _resetAsked = false;
    std::unique_ptr<Guards> _guards;
    std::thread _worker;
    std::atomic<bool> _loading = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/DynamicRange.h"
#include "platform/movie/MovieTrack.h"
#include "platform/movie/PictureShape.h"

#include <QSizeF>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class MoviePlayer;

/// A part of a movie that its file names; it lasts until the next one.
struct Chapter {
    std::int32_t start = 0;
    /// One line; may be empty.
    QString title;
    friend bool operator==(const Chapter&, const Chapter&) = default;
};

/// What opening a movie found out, without decoding a picture.
struct MovieInfo {
    QUrl url;
    /// What is played, where the URL is that of a page which shows it; else empty.
    QUrl stream;
    const QUrl& source() const { return stream.isEmpty() ? url : stream; }
    /// Units a second of every time value of the movie: the video track's own where the duration fits 31 bits in it,
    /// else a smaller one; 600 without video.
    std::int32_t timeScale = 600;
    /// In units of timeScale; 0 when it is not known (a live stream).
    std::int32_t duration = 0;
    bool hasVideo = false;
    bool hasAudio = false;
    /// The size of the displayed picture in square pixels: pixel shape and rotation applied. Empty without video.
    QSizeF naturalSize;
    /// Quarter turns clockwise, 0 to 3, that the stored picture takes to stand upright. Other angles count as 0.
    int quarterTurns = 0;
    /// Pictures in the video track: the container's count, else duration times average rate, rounded; 0 without video.
    std::uint32_t videoSampleCount = 0;
    /// Comes from a network as it is made: it has no known end, and no beginning to go back to.
    bool isLive = false;
    /// Whether the container's header says how long the movie lasts. Else `duration` is that of what has arrived.
    bool saysDuration = true;
    /// Units of timeScale that one picture stays on average; 0 when not known.
    double frameDuration = 0;
    /// By their starts, which lie within the movie, each its own.
    std::vector<Chapter> chapters;
    /// Of its picture, as the container says; standard where it does not.
    DynamicRange dynamicRange;
    /// Of the file when it was opened, in bytes; -1 for what is none.
    std::int64_t fileSize = -1;
    /// Of all that the file holds, a second on average; 0 when not known.
    double bitRate = 0;
    /// In the file's order. Some kinds of files show more of them only later (Movie::tracksChanged).
    MovieTracks tracks = {};

    // Of a movie without a picture, as the file says; one line each, empty where it does not.
    QString title;
    QString artist;
    /// Whether a picture is attached to it (MovieToolkit::coverAsync).
    bool hasCover = false;
};

/// The codes of failures, as the alerts and the log show them.
namespace movieError {
inline constexpr std::int16_t none = 0;
inline constexpr std::int16_t fileNotFound = -43;
inline constexpr std::int16_t fileEmpty = -39;
/// A folder, a device, a pipe.
inline constexpr std::int16_t notAFile = -1307;
inline constexpr std::int16_t permissionDenied = -5000;
inline constexpr std::int16_t couldNotOpen = -2000;
/// No movie, or one of whose streams none can be played.
inline constexpr std::int16_t invalidMovie = -2010;
/// The movie opened, but nothing here decodes its picture: it may be kept for its sound.
inline constexpr std::int16_t cannotPlay = -2008;
/// Nothing came for too long.
inline constexpr std::int16_t timedOut = -5016;
/// The libraries that open movies are missing.
inline constexpr std::int16_t noMediaHandler = -2003;
// Addresses.
inline constexpr std::int16_t unknownScheme = -6001;
inline constexpr std::int16_t unknownHost = -6002;
inline constexpr std::int16_t hostUnreachable = -6003;
inline constexpr std::int16_t connectionRefused = -6004;
/// The connection broke, or something other than an answer came.
inline constexpr std::int16_t connectionFailed = -6005;
/// What is needed first stands at the file's end, and the server does not send files from the middle.
inline constexpr std::int16_t needsRanges = -6006;
/// The server's answer: 401, 403, 404, another one of the four hundreds, one of the five hundreds.
inline constexpr std::int16_t serverAsksForLogin = -6401;
inline constexpr std::int16_t serverForbids = -6403;
inline constexpr std::int16_t serverHasNoSuchFile = -6404;
inline constexpr std::int16_t serverRefuses = -6400;
inline constexpr std::int16_t serverFails = -6500;
} // namespace movieError

/// One open movie: its facts, and the time at which it stands. While the movie is the one loaded in the player its time
/// and rate are the player's; else it stands still at the time it was left at. Main thread.
class Movie {
public:
    Movie(MovieInfo info, MoviePlayer& player);
    Movie(const Movie&) = delete;
    Movie& operator=(const Movie&) = delete;
    /// Unloads itself from the player if it is loaded there.
    virtual ~Movie();

    const QUrl& url() const { return _info.url; }
    const MovieInfo& info() const { return _info; }

    /// How its picture is shown; whoever changes it tells the player (MoviePlayer::shapeChanged).
    const PictureShape& shape() const { return _shape; }
    void setShape(const PictureShape& shape) { _shape = shape; }

    std::int32_t time() const;
    std::int32_t timeScale() const { return _info.timeScale; }
    std::int32_t duration() const { return _info.duration; }
    /// 16.16 fixed point; 0 while paused, 0x10000 at normal speed.
    std::int32_t rate() const;

    /// Moves to a time (clamped into the movie) and shows its picture as soon as it is decoded; time() answers the
    /// new time at once. Answers 0 or the error. Does not count as a time jump for callWhenTimeJumps.
    std::int16_t setTimeValue(std::int32_t time);

    /// The time of the next picture after `from` in the direction of the rate, or -1 when there is none (no video, or
    /// the end).
    std::int32_t nextInterestingTime(std::int32_t from, std::int32_t rate) const;

    /// True while the movie's end may only be the end of what has arrived so far: its container does not say how long
    /// it lasts, and it was not played to an end yet at which nothing more arrived.
    bool needsTimeTable() const { return _needsTimeTable; }

    /// Three one-shot callbacks, delivered on the main thread from the event loop or from a call that moves the time.
    /// Arming again replaces what was armed. They act only while the movie is loaded in the player.
    ///
    /// The movie came to its end while moving forward.
    void callWhenStopped(std::function<void()> callback);
    /// The time passed `time` while the movie ran, in either direction, or a picture other than that of the arming was
    /// shown (pictures may last unequally long). With -1, when the time next moves on noticeably (a quarter of a
    /// second): movies without pictures have no next one.
    void callWhenTimePasses(std::int32_t time, std::function<void()> callback);
    /// The time changed other than by playing.
    void callWhenTimeJumps(std::function<void()> callback);
    void cancelStopped() { _stopped = nullptr; }
    void cancelTimePasses() { _timePasses = nullptr; }
    void cancelTimeJumps() { _timeJumps = nullptr; }

    const MovieTracks& tracks() const { return _info.tracks; }
    /// What is played of them. It stays with the movie; numbers that no track has play nothing.
    const TrackSelection& selection() const { return _selection; }
    void select(const TrackSelection& selection);
    /// The text of the selected subtitles that is due as far as the player got, while the movie is loaded there.
    const SubtitleText& subtitleText() const { return _subtitleText; }
    /// The same of the second subtitles; it has no markup.
    const SubtitleText& secondSubtitleText() const { return _secondSubtitleText; }

    /// Takes the facts of a movie that was made of its address alone. It is not loaded in the player.
    void setInfo(MovieInfo info);

    /// Called by the player: the time moved on to `time`, that of the picture shown where there is one.
    void playerShowedFrame(std::int32_t time);
    void playerJumped();
    /// `isWhole`: nothing more of the movie arrives.
    void playerReachedEnd(bool isWhole);
    /// More of it has arrived than was there when it was opened.
    void playerGrew(std::int32_t duration) { _info.duration = duration; }
    /// The player reads the file for itself: it may find more in it.
    void playerFoundTracks(MovieTracks tracks);
    void playerReadSubtitle(const SubtitleText& text);
    void playerReadSecondSubtitle(const SubtitleText& text);
    void playerUnloaded(std::int32_t time) {
        _restingTime = time;
        _shownTime.reset();
        _subtitleText = {};
        _secondSubtitleText = {};
    }

protected:
    /// These do nothing by default.
    virtual void tracksChanged() {}
    virtual void subtitleTextChanged() {}
    virtual void secondSubtitleTextChanged() {}

private:
    MovieInfo _info;
    PictureShape _shape;
    MoviePlayer& _player;
    std::int32_t _restingTime = 0;
    bool _needsTimeTable;
    TrackSelection _selection;
    SubtitleText _subtitleText;
    SubtitleText _secondSubtitleText;
    std::function<void()> _stopped;
    std::function<void()> _timePasses;
    std::int32_t _timeToPass = -1;
    std::int32_t _timeWhenArmed = 0;
    /// The picture that the player reported last; none after a move.
    std::optional<std::int32_t> _shownTime;
    std::function<void()> _timeJumps;
};

} // namespace platform

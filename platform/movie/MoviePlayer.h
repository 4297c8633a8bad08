// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/PictureShape.h"
#include "platform/movie/PlaybackFacts.h"

#include <QImage>

#include <cstdint>
#include <functional>
#include <optional>

namespace platform {

class Movie;
struct TrackSelection;
class VideoLayer;

/// The process's one player: it plays the movie loaded in it. Times are in the loaded movie's time scale. Main thread;
/// what it reports comes on the main thread too.
class MoviePlayer {
public:
    MoviePlayer() = default;
    MoviePlayer(const MoviePlayer&) = delete;
    MoviePlayer& operator=(const MoviePlayer&) = delete;
    virtual ~MoviePlayer() = default;

    /// What playing waits for. Only movies of a network have to be waited for. A connection that broke is made again
    /// for a while; then it is lost, and the player pauses: to play is to try again.
    struct Wait {
        enum class What { nothing, beginning, more, connection, lostConnection };
        What what = What::nothing;
        /// How much of what is needed to go on has come.
        int percent = 0;
        friend bool operator==(const Wait&, const Wait&) = default;
    };

    /// Who shows the frame and the controls.
    class Observer {
    public:
        virtual ~Observer() = default;
        /// A new frame is ready to be rendered, in place of one that may have stood elsewhere.
        virtual void playerFrameChanged() = 0;
        /// The same while playing: now is the moment to show it.
        virtual void playerFrameDue() = 0;
        /// Time, playing or volume changed as a control bar shows them.
        virtual void playerStateChanged() = 0;
        /// The movie is waited for, or is not any more.
        virtual void playerWaitChanged(const Wait&) {}
        /// The movie that is loaded cannot be played, though it was opened.
        virtual void playerFailed() {}
    };
    virtual void setObserver(Observer* observer) = 0;

    /// Loads a movie, paused at the time it stands at, in place of the one loaded before (which is told its last time
    /// by Movie::playerUnloaded). Null unloads. Volume and mute stay.
    virtual void load(Movie* movie) = 0;
    virtual Movie* loaded() const = 0;

    /// Starts at normal speed; stops. Starting at the end begins again from the start.
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual bool isPlaying() const = 0;
    /// 0 while paused. A rate that is not 0 plays; 0 pauses. Backwards, the movie stops at its beginning.
    virtual float rate() const = 0;
    virtual void setRate(float rate) = 0;
    /// How fast rate 1 plays: a factor, kept within 0.25 to 4. It stays from movie to movie; the pitch of the sound is
    /// kept.
    virtual double speed() const = 0;
    virtual void setSpeed(double speed) = 0;
    static constexpr double minimumSpeed = 0.25;
    static constexpr double maximumSpeed = 4.0;

    /// The time asked for last while a move to it is still under way.
    virtual std::int32_t time() const = 0;
    /// Whether the player reports a time jump to the movie when it has moved.
    enum class JumpReport { silent, reported };
    /// Moves to a time within the movie: the keyframe before it is shown at once, then the exact frame.
    virtual void seek(std::int32_t time, JumpReport report) = 0;
    /// One frame forward (+1) or back (-1); pauses. Reports a time jump.
    virtual void step(int direction) = 0;

    /// While it plays, the loaded movie goes back from the end of the section to its beginning, again and again; it
    /// goes there at once when it stands elsewhere. Ends with the movie.
    struct Section {
        std::int32_t from = 0;
        std::int32_t until = 0;
        friend bool operator==(const Section&, const Section&) = default;
    };
    virtual std::optional<Section> repeated() const = 0;
    virtual void repeat(const std::optional<Section>& section) = 0;

    /// By how many seconds a live movie is behind what could be seen of it now: as it began it was not. None for
    /// others.
    virtual std::optional<double> behindLive() const = 0;
    /// Plays a live movie from what can be seen of it now.
    virtual void goLive() = 0;
    /// Up to which time a movie from a network has arrived; 0 where that is not known, and for others.
    virtual std::int32_t arrivedUntil() const = 0;

    /// The loaded movie's shape has changed.
    virtual void shapeChanged() = 0;
    /// Of every movie, from here on.
    virtual PictureAdjustment adjustment() const = 0;
    virtual void setAdjustment(const PictureAdjustment& adjustment) = 0;
    virtual Deinterlacing deinterlacing() const = 0;
    virtual void setDeinterlacing(Deinterlacing when) = 0;

    /// The picture that is shown, as large as the movie's own, without what is shown over it; a null one where there is
    /// none. Comes later, from the run loop.
    virtual void still(std::function<void(QImage)> completion) = 0;

    /// How the loaded movie is played. Comes later, from the run loop.
    virtual void facts(std::function<void(const PlaybackFacts&)> completion) = 0;

    /// Linear, 1.0 is full; kept within 0 to 3.
    virtual float volume() const = 0;
    virtual void setVolume(float volume) = 0;
    virtual bool isMuted() const = 0;
    virtual void setMuted(bool muted) = 0;

    /// Plays these tracks of the loaded movie from here on (Movie::select); load() takes the movie's own selection.
    virtual void select(const TrackSelection& selection) = 0;

    virtual VideoLayer* videoLayer() = 0;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <cstdint>
#include <vector>

namespace platform {

/// A movie of the list, as programs beside the player are told of it. Times are microseconds.
struct MediaTrack {
    /// Its own among all of this run; 0 for no movie.
    std::uint64_t number = 0;
    QString title;
    QString artist;
    QString url;
    /// Below 0 where it is not known.
    std::int64_t length = -1;
    /// The file of a picture of it; empty while there is none.
    QUrl art;
    friend bool operator==(const MediaTrack&, const MediaTrack&) = default;
};

/// What programs beside the player are told of it, but for the list and the time.
struct MediaState {
    enum class Playback { stopped, paused, playing };
    enum class Looping { off, one, all };
    Playback playback = Playback::stopped;
    Looping looping = Looping::off;
    bool isShuffled = false;
    /// 1 is the movie's own speed, and full volume.
    double rate = 1;
    double volume = 1;
    bool canGoNext = false;
    bool canGoPrevious = false;
    bool canPlay = false;
    bool canSeek = false;
    MediaTrack track;
    friend bool operator==(const MediaState&, const MediaState&) = default;
};

/// The player as programs beside it see and drive it. What cannot be done now does nothing. Main thread.
class MediaControlled {
public:
    virtual ~MediaControlled() = default;

    /// Programs can reach the player from here on. Once, and never where there is no bus.
    virtual void mediaControlsStand() = 0;

    virtual MediaState state() const = 0;
    /// That of the list's movies, in their order.
    virtual std::vector<std::uint64_t> tracks() const = 0;
    /// Without a number where the list has none of that.
    virtual MediaTrack track(std::uint64_t number) const = 0;
    virtual std::int64_t position() const = 0;

    virtual void raise() = 0;
    virtual void quit() = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void stop() = 0;
    /// What rests stays at rest.
    virtual void next() = 0;
    virtual void previous() = 0;
    virtual void setPosition(std::int64_t position) = 0;
    virtual void setRate(double rate) = 0;
    virtual void setVolume(double volume) = 0;
    virtual void setLooping(MediaState::Looping looping) = 0;
    virtual void setShuffled(bool shuffled) = 0;
    /// An address that is written as one.
    virtual void open(const QString& address) = 0;
    /// Adds it behind the movie of that number, at the beginning for 0, at the end where there is none of it.
    virtual void addTrack(const QString& address, std::uint64_t after, bool makesCurrent) = 0;
    virtual void removeTrack(std::uint64_t number) = 0;
    virtual void goTo(std::uint64_t number) = 0;
};

/// How programs beside the player reach it: media keys, lock screens, phones. Main thread.
class MediaControls {
public:
    virtual ~MediaControls() = default;

    /// Offers the player, which outlives this; returns at once.
    virtual void start(MediaControlled& player) = 0;
    /// These tell those who listen: of what state() answers by now, of another list, and that the time is not where
    /// playing would have taken it.
    virtual void stateChanged() = 0;
    virtual void tracksChanged() = 0;
    virtual void positionJumped() = 0;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MoviePlayer.h"
#include "platform/movie/MovieTrack.h"
#include "platform/movie/mpv/SeekPlanner.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

namespace platform {

/// What the player has to know of the movie that it plays; times in the movie's units.
struct LoadedMovie {
    std::int32_t duration = 0; ///< 0 when it is not known.
    std::int32_t timeScale = 600;
    enum class Content { sound, frames } content = Content::frames;
    /// How its decoder seeks: as it was made, or with several threads once it is made anew for them.
    enum class Seeking { asLoaded, withMoreThreads } seeking = Seeking::asLoaded;
    friend bool operator==(const LoadedMovie&, const LoadedMovie&) = default;
};

/// The timers that the player asks for. The scrubbing one repeats.
enum class PlayerTimer { keyframe, failure, growth, scrub, text, step };
inline constexpr std::size_t playerTimerCount = 6;

/// Whether the core has nothing more to play: for now, or for good.
enum class CoreEnd { no, ofArrived, ofMovie };

/// What happens to the player. Times in seconds are the core's, `now` is the run loop's.
namespace playerEvent {

struct CoreReady {};
struct CoreDropped {};

/// A movie is loaded in place of the one before, at a time of its own; none unloads.
struct Load {
    std::optional<LoadedMovie> movie;
    std::int32_t time = 0;
    TrackSelection tracks = {};
};
struct Select {
    TrackSelection tracks;
};
struct Play {};
struct SetRate {
    float rate;
    double now;
};
struct SetSpeed {
    double speed;
    double now;
};
struct Repeat {
    std::optional<MoviePlayer::Section> section;
};
struct Seek {
    std::int32_t time;
    MoviePlayer::JumpReport report;
};
/// One frame forward (+1) or back (-1).
struct Step {
    int direction;
};
struct SetVolume {
    float volume;
};
struct SetMuted {
    bool muted;
};
struct TimerFired {
    PlayerTimer timer;
    double now;
};

// The core numbers what it loads from 1.
struct FileStarted {
    std::int64_t entry;
};
struct FileFailed {
    std::int64_t entry;
    int error;
};
/// Frames come again, after a load or a seek.
struct PlaybackRestarted {};
struct TimeChanged {
    double seconds;
};
/// More of a file that grows has arrived: it lasts longer than was known.
struct DurationGrew {
    double seconds;
};
/// The core stands at the end, or does not any more. The end of what has arrived is not the movie's while its file
/// grows.
struct EndChanged {
    CoreEnd end;
};
/// The core cannot go where it was sent: a live stream goes no further back than what is kept of it.
struct SeekFailed {};
/// The movie is loaded once more, at that many seconds; it goes on as it did.
struct Reload {
    double seconds;
};
/// A frame is to be taken from the core.
struct FrameDue {};

} // namespace playerEvent

using PlayerEvent =
    std::variant<playerEvent::CoreReady, playerEvent::CoreDropped, playerEvent::Load, playerEvent::Play,
                 playerEvent::SetRate, playerEvent::SetSpeed, playerEvent::Repeat, playerEvent::Seek, playerEvent::Step,
                 playerEvent::SetVolume, playerEvent::SetMuted, playerEvent::Select, playerEvent::TimerFired,
                 playerEvent::FileStarted, playerEvent::FileFailed, playerEvent::PlaybackRestarted,
                 playerEvent::TimeChanged, playerEvent::DurationGrew, playerEvent::EndChanged, playerEvent::SeekFailed,
                 playerEvent::Reload, playerEvent::FrameDue>;

/// What is to be done: commands to the core, which stands when one is asked for, and timers.
namespace playerEffect {

/// Loads the movie so that it starts at that many seconds, with the tracks selected.
struct LoadFile {
    double start;
};
struct StopFile {};
struct SendSeek {
    SeekPlanner::Seek seek;
};
/// Has the movie decoded by several threads; a seek follows at once.
struct UseMoreThreads {};
/// One frame forward (+1) or back (-1).
struct SendStep {
    int direction;
};
struct SetPaused {
    bool paused;
};
struct SetSpeed {
    double speed;
};
/// From and until so many seconds; none for no repeating.
struct SetRepeated {
    std::optional<std::pair<double, double>> seconds;
};
/// In hundredths, on the core's scale.
struct SetVolume {
    double volume;
};
struct SetMuted {
    bool muted;
};
// Of the selection that the state holds.
struct SelectVideo {};
struct SelectAudio {};
struct SelectSubtitles {};
struct SelectSecondSubtitles {};
struct SetDelays {
    double audio;
    double subtitles;
    double subtitleSpeed;
};
/// The timer fires that many seconds from now, whether it was armed or not.
struct ArmTimer {
    PlayerTimer timer;
    double seconds;
};
struct CancelTimer {
    PlayerTimer timer;
};
struct CancelTimers {};
/// The frames of the core are the movie's from here on.
struct UseCoreFrame {};
/// Takes a frame that is not to be shown: the core waits until each was taken.
struct SkipFrame {};
/// No frame of the movie will come: the one that stands in for it goes.
struct DropHeldFrame {};

} // namespace playerEffect

using PlayerEffect =
    std::variant<playerEffect::LoadFile, playerEffect::StopFile, playerEffect::UseMoreThreads, playerEffect::SendSeek,
                 playerEffect::SendStep, playerEffect::SetPaused, playerEffect::SetSpeed, playerEffect::SetRepeated,
                 playerEffect::SetVolume, playerEffect::SetMuted, playerEffect::SelectVideo, playerEffect::SelectAudio,
                 playerEffect::SelectSubtitles, playerEffect::SelectSecondSubtitles, playerEffect::SetDelays,
                 playerEffect::ArmTimer, playerEffect::CancelTimer, playerEffect::CancelTimers,
                 playerEffect::UseCoreFrame, playerEffect::SkipFrame, playerEffect::DropHeldFrame>;

/// What the observer and the movie are told.
namespace playerReport {

struct FrameChanged {};
struct FrameDue {};
struct StateChanged {};
struct ShowedFrame {
    std::int32_t time;
};
struct Jumped {};
struct ReachedEnd {};
/// The movie lasts that long by what has arrived of it.
struct Grew {
    std::int32_t duration;
};
struct Failed {
    int error;
};

} // namespace playerReport

using PlayerReport = std::variant<playerReport::FrameChanged, playerReport::FrameDue, playerReport::StateChanged,
                                  playerReport::ShowedFrame, playerReport::Jumped, playerReport::ReachedEnd,
                                  playerReport::Grew, playerReport::Failed>;

/// A list that lies within itself: an event for each frame allocates nothing.
template <class Item>
class ShortList {
public:
    void push(const Item& item) {
        assert(_count < _items.size());
        _items[_count++] = item;
    }
    const Item* begin() const { return _items.data(); }
    const Item* end() const { return _items.data() + _count; }

private:
    std::array<Item, 12> _items; // more than any event leads to
    std::size_t _count = 0;
};

} // namespace platform

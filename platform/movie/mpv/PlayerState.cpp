// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/PlayerState.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace platform {

namespace {

using namespace playerEffect;
using namespace playerReport;
using File = PlayerState::File;
using JumpReport = MoviePlayer::JumpReport;
using Precision = SeekPlanner::Precision;
using Seeking = LoadedMovie::Seeking;
using SeekStage = PlayerState::SeekStage;
using TimeSource = PlayerState::TimeSource;

constexpr double maximumPlayedRate = 4.0;
constexpr double scrubInterval = 1.0 / 12;
// How long the frame of a keyframe may take to reach the screen before the exact frame is asked for anyway.
constexpr double keyframeTimeout = 0.1;
// A movie that fails at once counts as ended after a moment: a list of nothing else must not spin.
constexpr double failureDelay = 0.25;
// How often it is tried whether more of a growing file has arrived.
constexpr double growthInterval = 0.5;
constexpr float maximumVolume = 3.0F;
// A step that shows nothing, as one before the first frame might, does not hold up the next ones for longer.
constexpr double stepTimeout = 2.0;
// A key held down asks for more steps than a large film can take: it stops soon after the key is let go.
constexpr int maximumStepsWaiting = 8;
// A resting core reads nothing of a track that was just selected before it is sent to where it stands; and it forgets
// that track's part of the file where it is sent there at once.
constexpr double textDelay = 0.2;

/// One transition under way.
class Transition {
public:
    explicit Transition(const PlayerState& state)
        : _result{state, {}, {}} {}
    PlayerTransition result() && { return std::move(_result); }

    // Loading

    void operator()(const playerEvent::CoreReady&) {
        _s.core = PlayerState::Core();
        sendVolume();
        effect(playerEffect::SetMuted{_s.muted});
        if (_s.repeated)
            sendRepeated();
        if (_s.movie)
            sendLoad();
    }

    void operator()(const playerEvent::CoreDropped&) {
        _s.core.reset();
        effect(CancelTimers{});
    }

    void operator()(const playerEvent::Load& load) {
        const bool hadRepeated = _s.repeated.has_value();
        endStep();
        PlayerState fresh;
        fresh.movie = load.movie;
        fresh.time = load.time;
        fresh.tracks = load.tracks;
        fresh.volume = _s.volume;
        fresh.muted = _s.muted;
        fresh.speed = _s.speed;
        fresh.core = _s.core;
        fresh.seeks.hold();
        _s = fresh;
        effect(CancelTimers{});
        if (_s.core && hadRepeated)
            sendRepeated();
        if (_s.core && _s.movie)
            sendLoad();
        else if (_s.core)
            effect(StopFile{});
        report(FrameChanged{});
    }

    void operator()(const playerEvent::FileStarted& started) {
        if (_s.core)
            _s.core->entryStarted = started.entry;
    }

    void operator()(const playerEvent::FileFailed& failed) {
        if (!_s.core || !_s.movie || failed.entry != _s.core->entriesSent)
            return;
        _s.file = File::failed;
        effect(DropHeldFrame{});
        report(FrameChanged{});
        report(Failed{failed.error});
        endIfFailed();
    }

    // Motion

    void operator()(const playerEvent::Play&) {
        if (_s.movie && _s.end == CoreEnd::ofArrived)
            request(toSeconds(_s.time), Precision::exact);
        else if (_s.movie && (_s.end == CoreEnd::ofMovie || (_s.movie->duration > 0 && _s.time >= _s.movie->duration)))
            seek(0, JumpReport::reported);
        setRate(1.0F, 0);
    }

    void operator()(const playerEvent::SetRate& asked) { setRate(asked.rate, asked.now); }

    void operator()(const playerEvent::SetSpeed& asked) {
        if (std::isnan(asked.speed))
            return;
        if (_s.scrub) // what has passed until now did so at the old speed
            scrub(asked.now);
        _s.speed = std::clamp(asked.speed, MoviePlayer::minimumSpeed, MoviePlayer::maximumSpeed);
        updateScrubbing(asked.now);
        applyMotion();
        report(StateChanged{});
    }

    void operator()(const playerEvent::Repeat& asked) {
        if (!_s.movie || asked.section == _s.repeated)
            return;
        _s.repeated = asked.section;
        if (_s.core)
            sendRepeated();
        // The core goes back at the end only from within.
        if (_s.repeated && (_s.time < _s.repeated->from || _s.time >= _s.repeated->until))
            seek(_s.repeated->from, JumpReport::reported);
    }

    void operator()(const playerEvent::Seek& asked) { seek(asked.time, asked.report); }

    void operator()(const playerEvent::Step& asked) {
        if (!hasFrames())
            return;
        setRate(0, 0);
        _s.stepsWaiting += asked.direction > 0 ? 1 : -1;
        _s.stepsWaiting = std::clamp(_s.stepsWaiting, -maximumStepsWaiting, maximumStepsWaiting);
        sendStep();
    }

    void operator()(const playerEvent::TimerFired& fired) {
        switch (fired.timer) {
        case PlayerTimer::keyframe:
            seekDone();
            break;
        case PlayerTimer::failure:
            if (_s.rate > 0)
                reachEnd();
            break;
        case PlayerTimer::growth:
            if (_s.rate > 0 && _s.end == CoreEnd::ofArrived && !_s.seeks.isBusy())
                request(toSeconds(_s.time), Precision::exact);
            break;
        case PlayerTimer::text:
            if (_s.rate == 0 && hasSubtitles(_s.tracks) && !_s.seeks.isBusy())
                request(toSeconds(_s.time), Precision::exact);
            break;
        case PlayerTimer::scrub:
            scrub(fired.now);
            break;
        case PlayerTimer::step:
            endStep();
            sendStep();
            break;
        }
    }

    // What the core reports

    void operator()(const playerEvent::PlaybackRestarted&) {
        if (!isOfMovie())
            return;
        if (_s.file == File::loading) {
            _s.file = File::shown;
            effect(UseCoreFrame{});
            sendTracks();
            report(FrameChanged{});
        }
        // The keyframe's frame has to be taken from the core before the next seek drops it.
        if (hasFrames() && (_s.seekStage == SeekStage::sent || _s.seekStage == SeekStage::restarted)) {
            _s.seekStage = SeekStage::restarted;
            effect(ArmTimer{PlayerTimer::keyframe, keyframeTimeout});
            return;
        }
        if (_s.seekStage == SeekStage::shown)
            effect(CancelTimer{PlayerTimer::keyframe});
        if (_s.stepUnderWay < 0)
            endStep();
        seekDone();
    }

    void operator()(const playerEvent::FrameDue&) {
        // While it loads the core waits for its first frame to be taken, then for the next ones, a fifth of a second
        // each; and what is due now may still be of the movie before.
        if (_s.movie && _s.file == File::loading) {
            effect(SkipFrame{});
            return;
        }
        report(playerReport::FrameDue{});
        // The next seek waits until the frame was taken.
        if (_s.seekStage == SeekStage::restarted)
            effect(ArmTimer{PlayerTimer::keyframe, 0});
        if (_s.seekStage != SeekStage::none)
            _s.seekStage = SeekStage::shown;
    }

    void operator()(const playerEvent::TimeChanged& changed) {
        // While it loads the seeks are held, and while it scrubs the time is the one asked for.
        if (!isOfMovie() || _s.seeks.isBusy())
            return;
        _s.coreSeconds = changed.seconds;
        if (_s.timeSource == TimeSource::asked)
            return;
        std::int32_t time = toUnits(changed.seconds);
        if (_s.movie->duration > 0)
            time = std::min(time, _s.movie->duration);
        if (std::exchange(_s.timeSource, TimeSource::core) == TimeSource::step) {
            _s.time = time;
            report(StateChanged{});
            report(Jumped{});
        } else {
            showTime(time);
        }
        if (_s.stepUnderWay > 0) {
            stepDone();
            sendStep();
        }
    }

    void operator()(const playerEvent::DurationGrew& grew) {
        if (!isOfMovie())
            return;
        const std::int32_t duration = toUnits(grew.seconds);
        // A stream without a known end has none either when more of it has arrived.
        if (_s.movie->duration <= 0 || duration <= _s.movie->duration)
            return;
        _s.movie->duration = duration;
        report(Grew{duration});
        report(StateChanged{});
    }

    void operator()(const playerEvent::EndChanged& changed) {
        if (!isOfMovie())
            return;
        _s.end = changed.end;
        if (_s.end == CoreEnd::no)
            return;
        _s.core->paused = true; // the core pauses itself there
        if (_s.stepUnderWay > 0)
            stepDone();
        if (_s.rate > 0 && !_s.seeks.isBusy() && !_s.scrub)
            reachCoreEnd();
    }

    void operator()(const playerEvent::SeekFailed&) {
        if (!isOfMovie() || _s.seekStage == SeekStage::none)
            return;
        effect(CancelTimer{PlayerTimer::keyframe});
        _s.seeks = SeekPlanner();
        _s.seekStage = SeekStage::none;
        _s.time = toUnits(_s.coreSeconds);
        if (_s.rate != 0 && !_s.scrub)
            _s.timeSource = TimeSource::core;
        applyMotion();
        report(StateChanged{});
    }

    void operator()(const playerEvent::Reload& again) {
        if (!_s.core || !_s.movie)
            return;
        effect(CancelTimers{});
        endStep();
        endScrubbing();
        _s.file = File::loading;
        _s.end = CoreEnd::no;
        _s.seeks = SeekPlanner();
        _s.seeks.hold();
        _s.seekStage = SeekStage::none;
        _s.stepsWaiting = 0;
        _s.time = toUnits(again.seconds);
        _s.timeSource = TimeSource::asked;
        sendLoad();
        report(Jumped{});
        report(StateChanged{});
    }

    // The rest

    void operator()(const playerEvent::SetVolume& asked) {
        if (std::isnan(asked.volume))
            return;
        _s.volume = std::clamp(asked.volume, 0.0F, maximumVolume);
        if (_s.core)
            sendVolume();
        report(StateChanged{});
    }

    void operator()(const playerEvent::SetMuted& asked) {
        _s.muted = asked.muted;
        if (_s.core)
            effect(playerEffect::SetMuted{_s.muted});
        report(StateChanged{});
    }

    void operator()(const playerEvent::Select& asked) {
        if (!_s.movie)
            return;
        _s.tracks = asked.tracks;
        // While the movie is being loaded the core would take it for the one before. One that it has not begun with is
        // loaded otherwise: a track that is selected later has the core seek, and rest at another keyframe for a
        // moment.
        if (_s.core && _s.file == File::shown)
            sendTracks();
        else if (_s.core && _s.file == File::loading && !isOfMovie() && isLoadedOtherwise())
            sendLoad();
    }

private:
    void effect(const PlayerEffect& wanted) { _result.effects.push(wanted); }
    void report(const PlayerReport& told) { _result.reports.push(told); }

    bool hasFrames() const { return _s.movie && _s.movie->content == LoadedMovie::Content::frames; }
    bool isOfMovie() const { return platform::isOfMovie(_s); }

    std::int32_t toUnits(double seconds) const {
        constexpr double largest = std::numeric_limits<std::int32_t>::max();
        return static_cast<std::int32_t>(std::clamp(std::round(seconds * _s.movie->timeScale), 0.0, largest));
    }
    double toSeconds(std::int32_t units) const { return static_cast<double>(units) / _s.movie->timeScale; }

    void sendRepeated() {
        if (_s.repeated)
            effect(SetRepeated{std::pair(toSeconds(_s.repeated->from), toSeconds(_s.repeated->until))});
        else
            effect(SetRepeated{});
    }

    void sendVolume() {
        // The core's volume is the cube root of the linear one, in hundredths.
        effect(playerEffect::SetVolume{100.0 * std::cbrt(static_cast<double>(_s.volume))});
    }

    static bool hasSubtitles(const TrackSelection& tracks) {
        return tracks.subtitles > 0 && tracks.subtitleFile.isEmpty();
    }

    bool haveOtherTimes(const TrackSelection& told) const {
        return told.subtitleDelay != _s.tracks.subtitleDelay || told.subtitleSpeed != _s.tracks.subtitleSpeed;
    }

    void sendDelays() {
        TrackSelection& told = _s.core->tracks;
        if (told.audioDelay != _s.tracks.audioDelay || haveOtherTimes(told))
            effect(SetDelays{_s.tracks.audioDelay, _s.tracks.subtitleDelay, _s.tracks.subtitleSpeed});
    }

    /// Whether the tracks are others than those that the movie was loaded with.
    bool isLoadedOtherwise() const {
        const TrackSelection& told = _s.core->tracks;
        return told.video != _s.tracks.video || told.audio != _s.tracks.audio ||
               told.subtitles != _s.tracks.subtitles || told.drawn != _s.tracks.drawn ||
               told.secondSubtitles != _s.tracks.secondSubtitles;
    }

    /// What differs from what the core was told.
    void sendTracks() {
        TrackSelection& told = _s.core->tracks;
        if (told.video != _s.tracks.video)
            effect(SelectVideo{});
        if (told.audio != _s.tracks.audio)
            effect(SelectAudio{});
        const bool areOthers = told.subtitles != _s.tracks.subtitles || told.subtitleFile != _s.tracks.subtitleFile ||
                               told.drawn != _s.tracks.drawn;
        if (areOthers)
            effect(SelectSubtitles{});
        const bool isOtherSecond = told.secondSubtitles != _s.tracks.secondSubtitles;
        if (isOtherSecond)
            effect(SelectSecondSubtitles{});
        sendDelays();
        const bool haveText = (hasSubtitles(_s.tracks) && (areOthers || haveOtherTimes(told))) ||
                              (_s.tracks.secondSubtitles > 0 && (isOtherSecond || haveOtherTimes(told)));
        if (haveText && _s.rate == 0)
            effect(ArmTimer{PlayerTimer::text, textDelay});
        told = _s.tracks;
    }

    void sendLoad() {
        applyMotion();
        sendDelays();
        _s.core->tracks = _s.tracks;
        _s.core->tracks.subtitleFile.clear(); // added when the movie is there
        ++_s.core->entriesSent;
        effect(LoadFile{toSeconds(_s.time)});
    }

    /// Brings the core's pause and speed to what is wanted.
    void applyMotion() {
        if (!_s.core)
            return;
        // Paused while it seeks, so that nothing is heard of the keyframe's place.
        const bool paused = _s.rate == 0 || _s.scrub || _s.seekStage != SeekStage::none;
        const double speed = _s.rate > 0 && !_s.scrub ? playedRate() : 1.0;
        if (std::exchange(_s.core->speed, speed) != speed)
            effect(SetSpeed{speed});
        if (std::exchange(_s.core->paused, paused) != paused)
            effect(SetPaused{paused});
    }

    double playedRate() const { return static_cast<double>(_s.rate) * _s.speed; }

    void setRate(float rate, double now) {
        if (!_s.movie || std::isnan(rate) || rate == _s.rate)
            return;
        const bool isThere = (rate < 0 && _s.time <= 0) || (rate > 0 && _s.end != CoreEnd::no && !_s.seeks.isBusy());
        _s.rate = isThere ? 0 : rate;
        updateScrubbing(now);
        if (_s.rate != 0) {
            endStep();
            _s.stepsWaiting = 0;
        }
        applyMotion();
        endIfFailed();
        report(StateChanged{});
    }

    /// Begins or ends it as rate and speed want it.
    void updateScrubbing(double now) {
        const bool scrubs = _s.rate < 0 || playedRate() > maximumPlayedRate;
        if (scrubs && !_s.scrub) {
            _s.scrub = {now, toSeconds(_s.time)};
            effect(ArmTimer{PlayerTimer::scrub, scrubInterval});
        } else if (!scrubs && _s.scrub) {
            endScrubbing();
            seek(_s.time, JumpReport::silent);
        }
        if (_s.rate != 0)
            _s.timeSource = scrubs ? TimeSource::asked : TimeSource::core;
    }

    void endScrubbing() {
        if (std::exchange(_s.scrub, std::nullopt))
            effect(CancelTimer{PlayerTimer::scrub});
    }

    void scrub(double now) {
        if (!_s.scrub)
            return;
        const double position = _s.scrub->position + playedRate() * (now - std::exchange(_s.scrub->last, now));
        if (_s.rate < 0 && position <= 0) {
            _s.rate = 0;
            endScrubbing();
            seek(0, JumpReport::silent);
            showTime(0);
        } else if (_s.rate > 0 && position >= toSeconds(_s.movie->duration)) {
            _s.rate = 0;
            endScrubbing();
            seek(_s.movie->duration, JumpReport::silent);
            reachEnd();
        } else {
            _s.scrub->position = position;
            request(position, Precision::keyframeOnly);
            showTime(toUnits(position));
        }
    }

    void seek(std::int32_t time, JumpReport jumpReport) {
        if (!_s.movie)
            return;
        const std::int32_t end = _s.movie->duration > 0 ? _s.movie->duration : std::numeric_limits<std::int32_t>::max();
        _s.time = std::clamp(time, 0, end);
        _s.timeSource = TimeSource::asked;
        _s.stepsWaiting = 0;
        if (_s.scrub)
            _s.scrub->position = toSeconds(_s.time);
        request(toSeconds(_s.time), hasFrames() ? Precision::keyframeThenExact : Precision::exact);
        if (jumpReport == JumpReport::reported)
            report(Jumped{});
        report(StateChanged{});
    }

    void request(double seconds, Precision precision) {
        if (const auto next = _s.seeks.request(seconds, precision))
            send(*next);
    }

    void send(const SeekPlanner::Seek& seek) {
        _s.end = CoreEnd::no;
        _s.seekStage = SeekStage::sent;
        endStep();
        applyMotion();
        // The picture of a keyframe needs no others; before an exact one many may have to be decoded.
        if (seek.kind == SeekPlanner::Kind::exact && seek.seconds > 0 &&
            std::exchange(_s.movie->seeking, Seeking::asLoaded) == Seeking::withMoreThreads)
            effect(UseMoreThreads{});
        effect(SendSeek{seek});
    }

    void seekDone() {
        if (const auto next = _s.seeks.done()) {
            send(*next);
            return;
        }
        _s.seekStage = SeekStage::none;
        if (_s.rate != 0 && !_s.scrub)
            _s.timeSource = TimeSource::core;
        if (_s.end != CoreEnd::no && _s.rate > 0) {
            reachCoreEnd();
            return;
        }
        applyMotion();
        if (_s.rate == 0)
            sendStep();
    }

    /// The next one, once the core is done with what it does. A step back is a seek to the core: it forgets a step
    /// forward that it is told of meanwhile, and plays on to the end.
    void sendStep() {
        if (_s.stepsWaiting == 0 || _s.stepUnderWay != 0 || _s.seeks.isBusy() || !_s.core)
            return;
        if (_s.stepsWaiting > 0 && _s.end != CoreEnd::no) { // there is no frame after the last
            _s.stepsWaiting = 0;
            return;
        }
        _s.stepUnderWay = _s.stepsWaiting > 0 ? 1 : -1;
        _s.stepsWaiting -= _s.stepUnderWay;
        _s.timeSource = TimeSource::step;
        effect(SendStep{_s.stepUnderWay});
        effect(ArmTimer{PlayerTimer::step, stepTimeout});
    }

    void stepDone() {
        _s.stepUnderWay = 0;
        effect(CancelTimer{PlayerTimer::step});
    }

    /// Whether it is done or not: a core that steps forward plays until its frame is there.
    void endStep() {
        if (_s.stepUnderWay == 0)
            return;
        if (_s.stepUnderWay > 0 && _s.core)
            effect(SetPaused{true});
        stepDone();
    }

    void showTime(std::int32_t time) {
        _s.time = time;
        report(StateChanged{});
        report(ShowedFrame{time});
    }

    /// A movie that cannot be played is at its end as soon as it is to play.
    void endIfFailed() {
        if (_s.file == File::failed && _s.rate > 0)
            effect(ArmTimer{PlayerTimer::failure, failureDelay});
    }

    /// The movie goes on playing where more of it is to arrive.
    void reachCoreEnd() {
        if (_s.end == CoreEnd::ofArrived)
            effect(ArmTimer{PlayerTimer::growth, growthInterval});
        else
            reachEnd();
    }

    void reachEnd() {
        _s.rate = 0;
        _s.timeSource = TimeSource::asked;
        endScrubbing();
        applyMotion();
        if (_s.movie->duration > 0)
            _s.time = _s.movie->duration;
        report(StateChanged{});
        report(ReachedEnd{});
    }

    PlayerTransition _result;
    PlayerState& _s = _result.state;
};

} // namespace

bool isOfMovie(const PlayerState& state) {
    return state.core && state.movie && state.core->entryStarted == state.core->entriesSent;
}

PlayerTransition transition(const PlayerState& state, const PlayerEvent& event) {
    Transition made(state);
    std::visit(made, event);
    return std::move(made).result();
}

} // namespace platform

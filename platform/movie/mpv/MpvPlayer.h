// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RegularFile.h"
#include "platform/base/RunLoop.h"
#include "platform/movie/Movie.h"
#include "platform/movie/MoviePlayer.h"
#include "platform/movie/mpv/FirstFrameDecoder.h"
#include "platform/movie/mpv/HardwareDecoding.h"
#include "platform/movie/mpv/MpvVideoLayer.h"
#include "platform/movie/mpv/PlaybackFactsReader.h"
#include "platform/movie/mpv/PlayerState.h"
#include "platform/movie/mpv/StreamWatch.h"
#include "platform/movie/mpv/SubtitleTextReader.h"

#include <QObject>
#include <QUrl>

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

struct mpv_event;
struct mpv_event_log_message;
struct mpv_event_property;

namespace platform {

class MpvCore;

/// The player on libmpv. What is asked of it is kept as the wanted state, answered at once, and carried out
/// asynchronously, so that it never waits for the core and can be asked before the core stands. What follows from what
/// is PlayerState's to say: here events become its events, and its effects commands and timers. Main thread.
class MpvPlayer final : public QObject, public MoviePlayer {
public:
    MpvPlayer();
    ~MpvPlayer() override;

    /// Shows it with the movie at its URL, once it is there, in place of one prepared before.
    void setPreparedFrame(PreparedFrame prepared);
    /// Calls `work` once the prepared frame was shown, or soon, when there is none to wait for.
    void whenFirstFrameIsDone(std::function<void()> work);
    /// Unloads the movie and ends the core.
    void dropCore();

    void setObserver(Observer* observer) override { _observer = observer; }
    void load(Movie* movie) override;
    Movie* loaded() const override { return _movie; }
    void play() override;
    void pause() override { setRate(0); }
    bool isPlaying() const override { return _state.rate != 0; }
    float rate() const override { return _state.rate; }
    void setRate(float rate) override { apply(playerEvent::SetRate{rate, RunLoop::main().now()}); }
    double speed() const override { return _state.speed; }
    void setSpeed(double speed) override { apply(playerEvent::SetSpeed{speed, RunLoop::main().now()}); }
    std::int32_t time() const override { return _state.time; }
    void seek(std::int32_t time, JumpReport report) override;
    void step(int direction) override { apply(playerEvent::Step{direction}); }
    std::optional<Section> repeated() const override { return _state.repeated; }
    void repeat(const std::optional<Section>& section) override { apply(playerEvent::Repeat{section}); }
    std::optional<double> behindLive() const override;
    void goLive() override;
    std::int32_t arrivedUntil() const override;
    void shapeChanged() override;
    PictureAdjustment adjustment() const override { return _adjustment; }
    void setAdjustment(const PictureAdjustment& adjustment) override;
    Deinterlacing deinterlacing() const override { return _deinterlacing; }
    void setDeinterlacing(Deinterlacing when) override {
        _deinterlacing = when;
        updateFilters();
    }
    void still(std::function<void(QImage)> completion) override;
    void facts(std::function<void(const PlaybackFacts&)> completion) override;
    float volume() const override { return _state.volume; }
    void setVolume(float volume) override { apply(playerEvent::SetVolume{volume}); }
    bool isMuted() const override { return _state.muted; }
    void setMuted(bool muted) override { apply(playerEvent::SetMuted{muted}); }
    void select(const TrackSelection& selection) override { apply(playerEvent::Select{selection}); }
    VideoLayer* videoLayer() override { return &_video; }

    /// Called where the core is stuck in a file that does not answer, to have another one made and delivered. Until it
    /// is, the player is as before the first one.
    void setCoreMaker(std::function<void()> maker) { _makeCore = std::move(maker); }
    /// Hands the core over, which is made on another thread; null when there will be none. Any thread, once for each
    /// that is made.
    void deliverCore(std::unique_ptr<MpvCore> core);

private:
    bool event(QEvent* event) override;
    void adoptCore();
    /// Ends the core, and forgets what belonged to it.
    void releaseCore();
    void replaceStuckCore();
    /// Decodes it beside the core, which takes three times as long for it.
    void prepareFrame(std::int32_t time);
    void showPreparedFrame();
    void handleEvents();
    void handle(const mpv_event& event);
    /// Whether what the core says means something to the player, and is no error for the log.
    bool takeWord(const mpv_event_log_message& message);
    void propertyChanged(std::uint64_t property, const mpv_event_property& value);
    void answerStill(const mpv_event& event);
    void answerProperty(const mpv_event& event);
    /// What the core's filters are to do to the loaded movie.
    QByteArray filters() const;
    void updateFilters();
    /// Tells the core's renderer, where that is one that does it.
    void sendAdjustment();
    /// Has the core say whether the picture that it shows is interlaced.
    void askForFields(double seconds);
    void framesDue();
    /// How the decoded pictures code light: a container may say less than they do, or something else.
    void takeTransfer(const char* transfer);
    /// Since the movie was loaded; and lately.
    std::optional<FileFacts> grownFile() const;
    bool isFileGrowing() const;

    void apply(const PlayerEvent& event);

    void carryOut(const playerEffect::LoadFile& effect);
    void carryOut(const playerEffect::StopFile&) { command({"stop"}); }
    void carryOut(const playerEffect::SendSeek& effect);
    void carryOut(const playerEffect::UseMoreThreads&);
    void carryOut(const playerEffect::SendStep& effect);
    void carryOut(const playerEffect::SetPaused& effect) { setFlag("pause", effect.paused); }
    void carryOut(const playerEffect::SetSpeed& effect) { setNumber("speed", effect.speed); }
    void carryOut(const playerEffect::SetRepeated& effect);
    void carryOut(const playerEffect::SetVolume& effect) { setNumber("volume", effect.volume); }
    void carryOut(const playerEffect::SetMuted& effect) { setFlag("mute", effect.muted); }
    void carryOut(const playerEffect::SelectVideo&);
    void carryOut(const playerEffect::SelectAudio&);
    void carryOut(const playerEffect::SelectSubtitles&);
    void carryOut(const playerEffect::SelectSecondSubtitles&);
    void carryOut(const playerEffect::SetDelays& effect);
    void carryOut(const playerEffect::ArmTimer& effect);
    void carryOut(const playerEffect::CancelTimer& effect) { timer(effect.timer).reset(); }
    void carryOut(const playerEffect::CancelTimers&) { _timers = {}; }
    void carryOut(const playerEffect::UseCoreFrame&) {
        _firstFrames.cancel();
        _video.coreFrameReady();
    }
    void carryOut(const playerEffect::SkipFrame&) { _video.skip(); }
    void carryOut(const playerEffect::DropHeldFrame&) { _video.dropLastFrame(); }

    void updateWait();
    void connectionBroke();
    /// While it is broken.
    void followConnection();
    void takeArrived(std::optional<double> until);
    /// What the core says to be its end.
    void takeEnd(bool isAtEnd);
    /// A live movie whose connection broke is loaded again and again.
    bool isReloading() const;
    void reloadSoon();

    /// The core has let go of the picture, with the renderer of which it was.
    void selectPictureAnew();
    /// What the core needs to draw the selected subtitles, or to tell their text.
    void prepareSubtitles();

    void tell(const playerReport::FrameChanged&);
    void tell(const playerReport::FrameDue&);
    void tell(const playerReport::StateChanged&);
    void tell(const playerReport::ShowedFrame& report);
    void tell(const playerReport::Jumped&);
    void tell(const playerReport::ReachedEnd&);
    void tell(const playerReport::Grew& report);
    void tell(const playerReport::Failed& report);

    void command(std::initializer_list<const char*> words, std::uint64_t reply = 0);
    void setFlag(const char* property, bool value);
    void setNumber(const char* property, double value);
    std::unique_ptr<Timer>& timer(PlayerTimer which) { return _timers[static_cast<std::size_t>(which)]; }

    std::unique_ptr<MpvCore> _delivered;
    std::unique_ptr<MpvCore> _core;
    std::function<void()> _makeCore;
    std::unique_ptr<Timer> _startWait; // while the core ends the movie before
    MpvVideoLayer _video;
    FirstFrameDecoder _firstFrames;
    PreparedFrame _prepared;
    std::shared_ptr<const FirstFrame> _preparedFrame; // come, and not shown yet
    std::unique_ptr<Timer> _firstFrameWait;
    Observer* _observer = nullptr;
    Movie* _movie = nullptr;
    PlayerState _state;
    DecoderInUse _decoder;
    std::uint64_t _loads = 0;
    std::int64_t _sizeWhenLoaded = 0; // bytes of the movie's file
    Wait _wait;                       // as the observer was told
    bool _isBeginning = false;
    std::optional<int> _bufferPercent; // while playing waits for it
    bool _seeksWithinBuffer = false;   // alone
    StreamWatch _stream;
    std::unique_ptr<Timer> _streamTimer;
    std::unique_ptr<Timer> _reloadTimer;
    SubtitleTextReader _text{SubtitleTextReader::Track::first, [this](const SubtitleText& text) {
                                 if (_movie)
                                     _movie->playerReadSubtitle(text);
                             }};
    SubtitleTextReader _secondText{SubtitleTextReader::Track::second, [this](const SubtitleText& text) {
                                       if (_movie)
                                           _movie->playerReadSecondSubtitle(text);
                                   }};
    PlaybackFactsReader _facts;
    std::array<std::unique_ptr<Timer>, playerTimerCount> _timers;

    /// The stills that were asked for, by the number of the core's reply.
    std::map<std::uint64_t, std::function<void(QImage)>> _stills;
    std::uint64_t _lastStill = 0;
    PictureAdjustment _adjustment;
    Deinterlacing _deinterlacing = Deinterlacing::automatic;
    bool _isInterlaced = false;             // the loaded movie
    int _fieldsAskedAt = -1;                // whole seconds of the movie
    std::optional<QByteArray> _sentFilters; // of the movie that the core has loaded

    std::atomic<bool> _eventsPosted{false};
    std::atomic<bool> _framesPosted{false};
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"
#include "platform/movie/MoviePlayer.h"
#include "platform/movie/mpv/MpvPicture.h"
#include "platform/movie/mpv/SeekPlanner.h"

#include <QObject>
#include <QUrl>

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <utility>

struct mpv_event;

namespace platform {

class MpvCore;

/// A first picture that is being decoded ahead, of the movie at the URL.
struct PreparedPicture {
    QUrl url;
    std::future<std::shared_ptr<const FirstPicture>> picture;
};

/// The player on libmpv. What is asked of it is kept as the wanted state, answered at once, and carried out
/// asynchronously, so that it never waits for the core and can be asked before the core stands. Main thread.
class MpvPlayer final : public QObject, public MoviePlayer {
public:
    MpvPlayer();
    ~MpvPlayer() override;

    void setPreparedPicture(PreparedPicture prepared) { _prepared = std::move(prepared); }
    /// Calls `work` once the prepared picture was shown, or soon, when there is none to wait for.
    void whenFirstPictureIsDone(std::function<void()> work);
    /// Unloads the movie and ends the core.
    void dropCore();

    void setObserver(Observer* observer) override { _observer = observer; }
    void load(Movie* movie) override;
    Movie* loaded() const override { return _movie; }
    void play() override;
    void pause() override;
    bool isPlaying() const override { return _rate != 0; }
    float rate() const override { return _rate; }
    void setRate(float rate) override;
    std::int32_t time() const override { return _time; }
    void seek(std::int32_t time, JumpReport report) override;
    void step(int direction) override;
    float volume() const override { return _volume; }
    void setVolume(float volume) override;
    bool isMuted() const override { return _muted; }
    void setMuted(bool muted) override;
    PictureLayer* pictureLayer() override { return &_picture; }

    /// Hands the core over, which is made on another thread; null when there will be none. Any thread, once.
    void deliverCore(std::unique_ptr<MpvCore> core);

private:
    bool event(QEvent* event) override;
    void adoptCore();
    void takePreparedPicture();
    void handleEvents();
    void handle(const mpv_event& event);
    void fileFailed(int error);
    /// A movie that cannot be played is at its end as soon as it is to play.
    void endFailed();
    void playbackRestarted();
    void timeChanged(double seconds);
    void endChanged(bool atEnd);
    void seekDone();
    void reachedEnd();
    void picturesDue();

    void command(std::initializer_list<const char*> words);
    void setFlag(const char* property, bool value);
    void setNumber(const char* property, double value);
    void sendLoad();
    void send(const SeekPlanner::Seek& seek);
    void sendSteps();
    /// Brings the core's pause and speed to what is wanted.
    void applyMotion();
    bool isScrubbing() const { return _scrubTimer != nullptr; }
    void startScrubbing();
    void scrub();
    void showTime(std::int32_t time);
    std::int32_t toUnits(double seconds) const;
    double toSeconds(std::int32_t units) const;

    std::unique_ptr<MpvCore> _delivered;
    std::unique_ptr<MpvCore> _core;
    MpvPicture _picture;
    PreparedPicture _prepared;
    std::unique_ptr<Timer> _preparedPoll;
    std::unique_ptr<Timer> _firstPictureWait;
    Observer* _observer = nullptr;
    Movie* _movie = nullptr;

    // Wanted.
    float _rate = 0;
    float _volume = 1.0F;
    bool _muted = false;
    std::int32_t _time = 0;

    // Where the core is.
    std::int64_t _entriesSent = 0; // loads sent: the core numbers its entries alike
    std::int64_t _entryStarted = 0;
    bool _fileLoaded = false; // and its first picture shown
    bool _corePaused = true;
    double _coreSpeed = 1.0;
    SeekPlanner _seeks;
    bool _seekInFlight = false;
    bool _pictureSinceSeek = false;
    std::unique_ptr<Timer> _keyframeTimer;
    std::unique_ptr<Timer> _failureTimer;
    bool _failed = false;
    bool _atEnd = false;
    int _stepsWaiting = 0; // for the seek under way
    bool _jumpToReport = false;
    bool _holdsTime = false; // time() is what was asked for, until pictures move on from there

    // Rates that the core cannot play are shown as a run of keyframes on a clock of our own.
    std::unique_ptr<Timer> _scrubTimer;
    double _scrubLast = 0;
    double _scrubPosition = 0;

    std::atomic<bool> _eventsPosted{false};
    std::atomic<bool> _picturesPosted{false};
};

} // namespace platform

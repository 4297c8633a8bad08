// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvPlayer.h"

#include "platform/base/Log.h"
#include "platform/movie/Movie.h"
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieProbe.h"
#include "platform/movie/mpv/MpvCore.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr QEvent::Type eventsDueEvent = QEvent::User;
constexpr QEvent::Type picturesDueEvent = static_cast<QEvent::Type>(QEvent::User + 1);
constexpr QEvent::Type coreDeliveredEvent = static_cast<QEvent::Type>(QEvent::User + 2);

// What is observed, by the number that its changes carry.
constexpr std::uint64_t timeProperty = 1;
constexpr std::uint64_t endProperty = 2;

constexpr float fastestPlayed = 4.0F;
constexpr double scrubInterval = 1.0 / 12;
// How long the picture of a keyframe may take to reach the screen before the exact picture is asked for anyway.
constexpr double keyframePatience = 0.1;
// A movie that fails at once counts as ended after a moment: a list of nothing else must not spin.
constexpr double failureDelay = 0.25;
// The first picture is worth asking for often: nothing else holds up the start then.
constexpr double preparedPollInterval = 0.001;
// How long the core is kept back for it at most.
constexpr double firstPicturePatience = 0.15;
constexpr float loudest = 3.0F;
constexpr double largestForOneThread = 1920.0 * 1088.0;

} // namespace

MpvPlayer::MpvPlayer() = default;

MpvPlayer::~MpvPlayer() {
    dropCore();
}

void MpvPlayer::dropCore() {
    if (_movie)
        load(nullptr);
    _failureTimer.reset();
    _preparedPoll.reset();
    _firstPictureWait.reset();
    _picture.setFirstShown(nullptr);
    _picture.setCore(nullptr);
    _core.reset();
    _delivered.reset();
}

void MpvPlayer::whenFirstPictureIsDone(std::function<void()> work) {
    const bool isComing = !_prepared.url.isEmpty() && !_picture.usesOpenGL();
    _firstPictureWait = RunLoop::main().schedule(isComing ? firstPicturePatience : 0, false, std::move(work));
    _picture.setFirstShown([this] { _firstPictureWait->rearm(0); });
}

void MpvPlayer::deliverCore(std::unique_ptr<MpvCore> core) {
    _delivered = std::move(core);
    QCoreApplication::postEvent(this, new QEvent(coreDeliveredEvent), Qt::HighEventPriority);
}

void MpvPlayer::adoptCore() {
    if (!_delivered)
        return;
    _core = std::move(_delivered);
    _picture.setCore(_core.get());
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv.mpv_request_log_messages(_core->handle(), "error");
    mpv.mpv_observe_property(_core->handle(), timeProperty, "time-pos", MPV_FORMAT_DOUBLE);
    mpv.mpv_observe_property(_core->handle(), endProperty, "eof-reached", MPV_FORMAT_FLAG);
    // Posted once until it is handled: pictures and events come faster than they are worth handling one by one.
    _core->setCallbacks(
        [this] {
            if (!_eventsPosted.exchange(true))
                QCoreApplication::postEvent(this, new QEvent(eventsDueEvent), Qt::HighEventPriority);
        },
        [this] {
            if (!_picturesPosted.exchange(true))
                QCoreApplication::postEvent(this, new QEvent(picturesDueEvent), Qt::HighEventPriority);
        });
    setVolume(_volume);
    setMuted(_muted);
    if (_movie)
        sendLoad();
    handleEvents();
}

bool MpvPlayer::event(QEvent* event) {
    if (event->type() == coreDeliveredEvent) {
        adoptCore();
        return true;
    }
    if (event->type() == eventsDueEvent) {
        _eventsPosted = false;
        handleEvents();
        return true;
    }
    if (event->type() == picturesDueEvent) {
        _picturesPosted = false;
        picturesDue();
        return true;
    }
    return QObject::event(event);
}

// Loading

void MpvPlayer::load(Movie* movie) {
    const std::int32_t start = movie ? movie->time() : 0;
    if (_movie && _movie != movie)
        _movie->playerUnloaded(_time);
    _movie = movie;
    _rate = 0;
    _time = start;
    _holdsTime = true;
    _scrubTimer.reset();
    _keyframeTimer.reset();
    _fileLoaded = false;
    _failed = false;
    _failureTimer.reset();
    _atEnd = false;
    _jumpToReport = false;
    _stepsWaiting = 0;
    _seekInFlight = false;
    _seeks.reset();
    _seeks.hold();
    _picture.begin(movie ? movie->info().naturalSize : QSizeF());
    if (_core) {
        if (movie)
            sendLoad();
        else
            command({"stop"});
    }
    if (_observer)
        _observer->playerPictureChanged();
    takePreparedPicture();
}

void MpvPlayer::takePreparedPicture() {
    if (!_prepared.picture.valid() || !_movie || _movie->url() != _prepared.url || _time != 0 ||
        _picture.hasCorePicture()) {
        _preparedPoll.reset();
        return;
    }
    if (_prepared.picture.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        _preparedPoll = RunLoop::main().schedule(preparedPollInterval, false, [this] { takePreparedPicture(); });
        return;
    }
    _preparedPoll.reset();
    auto first = _prepared.picture.get();
    if (!first && _firstPictureWait)
        _firstPictureWait->rearm(0);
    _picture.setFirst(std::move(first));
    if (_observer)
        _observer->playerPictureChanged();
}

void MpvPlayer::sendLoad() {
    applyMotion();
    QByteArray options;
    if (_time > 0)
        options = "start=" + QByteArray::number(toSeconds(_time), 'f', 6);
    // The player leaves turning to its renderers, and the software renderer crashes on a turned picture instead.
    static constexpr const char* turns[] = {nullptr, "lavfi=[transpose=clock]", "lavfi=[hflip,vflip]",
                                            "lavfi=[transpose=cclock]"};
    if (const char* turn = turns[_movie->info().quarterTurns]) {
        const QByteArray length = QByteArray::number(static_cast<int>(std::strlen(turn)));
        options += QByteArray(options.isEmpty() ? "" : ",") + "video-rotate=no,vf=%" + length + "%" + turn;
    }
    const QSizeF size = _movie->info().naturalSize;
    if (size.width() * size.height() > largestForOneThread)
        options += QByteArray(options.isEmpty() ? "" : ",") + "vd-lavc-threads=0";
    ++_entriesSent;
    // The player takes an absolute path as it stands, whatever characters are in it.
    const QUrl& url = _movie->url();
    const QByteArray address = url.isLocalFile() ? QFile::encodeName(url.toLocalFile()) : addressOf(url);
    if (options.isEmpty())
        command({"loadfile", address.constData(), "replace"});
    else
        command({"loadfile", address.constData(), "replace", options.constData()});
}

void MpvPlayer::fileFailed(int error) {
    if (!_movie)
        return;
    Log::write(QStringLiteral("ERROR: MpvPlayer: Can't play %1: %2")
                   .arg(_movie->url().toString(), QString::fromUtf8(MpvLibrary::get()->mpv_error_string(error))));
    _failed = true;
    endFailed();
}

void MpvPlayer::endFailed() {
    if (!_failed || _rate <= 0)
        return;
    _failureTimer = RunLoop::main().schedule(failureDelay, false, [this] {
        if (_rate > 0)
            reachedEnd();
    });
}

// Motion

void MpvPlayer::play() {
    if (!_movie)
        return;
    if (_atEnd || (_movie->duration() > 0 && _time >= _movie->duration()))
        seek(0, JumpReport::reported);
    setRate(1.0F);
}

void MpvPlayer::pause() {
    setRate(0);
}

void MpvPlayer::setRate(float rate) {
    if (!_movie || std::isnan(rate) || rate == _rate)
        return;
    const bool wasScrubbing = isScrubbing();
    _rate = rate;
    if (rate < 0 && _time <= 0)
        _rate = 0;
    if (rate > 0 && _atEnd && !_seeks.isBusy())
        _rate = 0;
    if (_rate < 0 || _rate > fastestPlayed) {
        if (!wasScrubbing)
            startScrubbing();
    } else if (wasScrubbing) {
        _scrubTimer.reset();
        seek(_time, JumpReport::silent);
    }
    if (_rate != 0 && !isScrubbing())
        _holdsTime = false;
    if (_rate != 0) {
        _stepsWaiting = 0;
        _jumpToReport = false;
    }
    applyMotion();
    endFailed();
    if (_observer)
        _observer->playerStateChanged();
}

void MpvPlayer::applyMotion() {
    if (!_core)
        return;
    const bool paused = _rate == 0 || isScrubbing() || _seekInFlight;
    const double speed = _rate > 0 && !isScrubbing() ? static_cast<double>(_rate) : 1.0;
    if (speed != _coreSpeed) {
        setNumber("speed", speed);
        _coreSpeed = speed;
    }
    if (paused != _corePaused) {
        setFlag("pause", paused);
        _corePaused = paused;
    }
}

void MpvPlayer::startScrubbing() {
    RunLoop& loop = RunLoop::main();
    _scrubLast = loop.now();
    _scrubPosition = toSeconds(_time);
    _scrubTimer = loop.schedule(scrubInterval, true, [this] { scrub(); });
}

void MpvPlayer::scrub() {
    const double now = RunLoop::main().now();
    _scrubPosition += static_cast<double>(_rate) * (now - _scrubLast);
    _scrubLast = now;
    const double end = toSeconds(_movie->duration());
    const bool atStart = _rate < 0 && _scrubPosition <= 0;
    const bool atEnd = _rate > 0 && _scrubPosition >= end;
    _scrubPosition = std::clamp(_scrubPosition, 0.0, std::max(end, 0.0));
    if (atStart || atEnd) {
        _scrubTimer.reset();
        seek(atEnd ? _movie->duration() : 0, JumpReport::silent);
        if (atEnd) {
            reachedEnd();
        } else {
            _rate = 0;
            showTime(0);
        }
        return;
    }
    _holdsTime = true;
    if (const auto next = _seeks.request(_scrubPosition, SeekPlanner::Precision::keyframeOnly, _movie->info().hasVideo))
        send(*next);
    showTime(toUnits(_scrubPosition));
}

void MpvPlayer::seek(std::int32_t time, JumpReport report) {
    if (!_movie)
        return;
    if (_movie->duration() > 0)
        time = std::clamp(time, 0, _movie->duration());
    _time = std::max(time, 0);
    _holdsTime = true;
    _stepsWaiting = 0;
    if (isScrubbing())
        _scrubPosition = toSeconds(_time);
    if (const auto next = _seeks.request(toSeconds(_time), SeekPlanner::Precision::exact, _movie->info().hasVideo))
        send(*next);
    if (report == JumpReport::reported)
        _movie->playerJumped();
    if (_observer)
        _observer->playerStateChanged();
}

void MpvPlayer::send(const SeekPlanner::Seek& seek) {
    _atEnd = false;
    _seekInFlight = true;
    _pictureSinceSeek = false;
    _keyframeTimer.reset();
    // Paused meanwhile, so that nothing is heard of the keyframe's place.
    applyMotion();
    const QByteArray seconds = QByteArray::number(seek.seconds, 'f', 6);
    command({"seek", seconds.constData(),
             seek.kind == SeekPlanner::Kind::keyframe ? "absolute+keyframes" : "absolute+exact"});
}

void MpvPlayer::step(int direction) {
    if (!_movie || !_movie->info().hasVideo)
        return;
    setRate(0);
    // Sent while the core seeks, a step would play on to the end.
    _stepsWaiting += direction > 0 ? 1 : -1;
    if (!_seeks.isBusy())
        sendSteps();
}

void MpvPlayer::sendSteps() {
    if (_stepsWaiting == 0)
        return;
    _holdsTime = false;
    _jumpToReport = true;
    for (; _stepsWaiting > 0; --_stepsWaiting)
        command({"frame-step"});
    for (; _stepsWaiting < 0; ++_stepsWaiting)
        command({"frame-back-step"});
}

// What the core reports

void MpvPlayer::handleEvents() {
    if (!_core)
        return;
    for (;;) {
        const mpv_event* event = MpvLibrary::get()->mpv_wait_event(_core->handle(), 0);
        if (event->event_id == MPV_EVENT_NONE)
            return;
        handle(*event);
    }
}

void MpvPlayer::handle(const mpv_event& event) {
    switch (event.event_id) {
    case MPV_EVENT_LOG_MESSAGE: {
        const auto* message = static_cast<const mpv_event_log_message*>(event.data);
        // The ways to sound are tried one by one; those that are not there are no errors.
        if (QByteArrayView(message->prefix).startsWith("ao"))
            break;
        Log::write(QStringLiteral("ERROR: libmpv: %1: %2")
                       .arg(QString::fromUtf8(message->prefix), QString::fromUtf8(message->text).trimmed()));
        break;
    }
    case MPV_EVENT_START_FILE:
        _entryStarted = static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id;
        break;
    case MPV_EVENT_END_FILE: {
        const auto* end = static_cast<const mpv_event_end_file*>(event.data);
        if (end->playlist_entry_id == _entriesSent && end->reason == MPV_END_FILE_REASON_ERROR)
            fileFailed(end->error);
        break;
    }
    case MPV_EVENT_PLAYBACK_RESTART:
        if (_entryStarted == _entriesSent && _movie)
            playbackRestarted();
        break;
    case MPV_EVENT_PROPERTY_CHANGE: {
        const auto* property = static_cast<const mpv_event_property*>(event.data);
        if (!property->data || !_movie || _entryStarted != _entriesSent)
            break;
        if (event.reply_userdata == timeProperty)
            timeChanged(*static_cast<const double*>(property->data));
        else if (event.reply_userdata == endProperty)
            endChanged(*static_cast<const int*>(property->data) != 0);
        break;
    }
    default:
        break;
    }
}

void MpvPlayer::playbackRestarted() {
    _fileLoaded = true;
    if (!_picture.hasCorePicture()) {
        _picture.corePictureReady();
        if (_observer)
            _observer->playerPictureChanged();
    }
    // The keyframe's picture has to be taken from the core before the next seek drops it.
    if (_seekInFlight && !_pictureSinceSeek && _movie->info().hasVideo) {
        _keyframeTimer = RunLoop::main().schedule(keyframePatience, false, [this] { seekDone(); });
        return;
    }
    seekDone();
}

void MpvPlayer::seekDone() {
    _keyframeTimer.reset();
    if (const auto next = _seeks.done()) {
        send(*next);
        return;
    }
    _seekInFlight = false;
    if (_rate != 0 && !isScrubbing())
        _holdsTime = false;
    applyMotion();
    if (_atEnd && _rate > 0)
        reachedEnd();
    else if (_rate == 0)
        sendSteps();
}

void MpvPlayer::timeChanged(double seconds) {
    if (!_fileLoaded || _seeks.isBusy() || isScrubbing() || _holdsTime)
        return;
    std::int32_t time = std::max(toUnits(seconds), 0);
    if (_movie->duration() > 0)
        time = std::min(time, _movie->duration());
    if (std::exchange(_jumpToReport, false)) {
        _time = time;
        if (_observer)
            _observer->playerStateChanged();
        _movie->playerJumped();
        return;
    }
    showTime(time);
}

void MpvPlayer::showTime(std::int32_t time) {
    _time = time;
    if (_observer)
        _observer->playerStateChanged();
    if (_movie)
        _movie->playerShowedFrame(time);
}

void MpvPlayer::endChanged(bool atEnd) {
    _atEnd = atEnd;
    if (!atEnd)
        return;
    _corePaused = true; // the core pauses itself there
    if (_rate > 0 && !_seeks.isBusy() && !isScrubbing())
        reachedEnd();
}

void MpvPlayer::reachedEnd() {
    _rate = 0;
    _holdsTime = true;
    _scrubTimer.reset();
    applyMotion();
    if (_movie->duration() > 0)
        _time = _movie->duration();
    if (_observer)
        _observer->playerStateChanged();
    _movie->playerReachedEnd();
}

void MpvPlayer::picturesDue() {
    if (!_core || !_core->renderContext())
        return;
    const std::uint64_t due = MpvLibrary::get()->mpv_render_context_update(_core->renderContext());
    if (!(due & MPV_RENDER_UPDATE_FRAME))
        return;
    _pictureSinceSeek = true;
    if (_observer)
        _observer->playerPictureDue();
    else
        _picture.skip();
    if (_keyframeTimer)
        _keyframeTimer->rearm(0);
}

// The rest

void MpvPlayer::setVolume(float volume) {
    if (std::isnan(volume))
        return;
    _volume = std::clamp(volume, 0.0F, loudest);
    // The core's volume is the cube root of the linear one, in hundredths.
    setNumber("volume", 100.0 * std::cbrt(static_cast<double>(_volume)));
    if (_observer)
        _observer->playerStateChanged();
}

void MpvPlayer::setMuted(bool muted) {
    _muted = muted;
    setFlag("mute", muted);
    if (_observer)
        _observer->playerStateChanged();
}

void MpvPlayer::command(std::initializer_list<const char*> words) {
    if (!_core)
        return;
    std::vector<const char*> arguments(words);
    arguments.push_back(nullptr);
    MpvLibrary::get()->mpv_command_async(_core->handle(), 0, arguments.data());
}

void MpvPlayer::setFlag(const char* property, bool value) {
    int flag = value ? 1 : 0;
    if (_core)
        MpvLibrary::get()->mpv_set_property_async(_core->handle(), 0, property, MPV_FORMAT_FLAG, &flag);
}

void MpvPlayer::setNumber(const char* property, double value) {
    if (_core)
        MpvLibrary::get()->mpv_set_property_async(_core->handle(), 0, property, MPV_FORMAT_DOUBLE, &value);
}

std::int32_t MpvPlayer::toUnits(double seconds) const {
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::round(seconds * _movie->timeScale()), 0.0, largest));
}

double MpvPlayer::toSeconds(std::int32_t units) const {
    return static_cast<double>(units) / _movie->timeScale();
}

} // namespace platform

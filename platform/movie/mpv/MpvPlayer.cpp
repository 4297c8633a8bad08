// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvPlayer.h"

#include "platform/base/Background.h"
#include "platform/base/Log.h"
#include "platform/base/PathNames.h"
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/LoadOptions.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/movie/mpv/MpvCore.h"
#include "platform/movie/mpv/TrackProbe.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

namespace {

constexpr QEvent::Type eventsDueEvent = QEvent::User;
constexpr QEvent::Type framesDueEvent = static_cast<QEvent::Type>(QEvent::User + 1);
constexpr QEvent::Type coreDeliveredEvent = static_cast<QEvent::Type>(QEvent::User + 2);

// What is observed, by the number that its changes carry.
constexpr std::uint64_t timeProperty = 1;
constexpr std::uint64_t endProperty = 2;
constexpr std::uint64_t durationProperty = 3;
constexpr std::uint64_t waitProperty = 4;
constexpr std::uint64_t bufferProperty = 5;
constexpr std::uint64_t decoderProperty = 6;
constexpr std::uint64_t tracksProperty = 7;
constexpr std::uint64_t transferProperty = 8;
constexpr std::uint64_t arrivedProperty = 9;
constexpr std::uint64_t reachProperty = 10;

// How long the core is kept back for it at most.
constexpr double firstFrameTimeout = 0.15;

// How long the core may take to end a movie before another core takes its place.
constexpr double startTimeout = 1;

// A file that was written to within these seconds is still growing.
constexpr qint64 growingSeconds = 3;

} // namespace

MpvPlayer::MpvPlayer() {
    _video.setRendererRenewed([this] { selectPictureAnew(); });
}

MpvPlayer::~MpvPlayer() {
    dropCore();
}

void MpvPlayer::dropCore() {
    if (_movie)
        load(nullptr);
    setPreparedFrame({});
    _firstFrames.cancel();
    _firstFrameWait.reset();
    _video.setFirstShown(nullptr);
    releaseCore();
    _delivered.reset();
}

void MpvPlayer::releaseCore() {
    _startWait.reset();
    _video.setCore(nullptr);
    apply(playerEvent::CoreDropped{});
    _text.forget();
    _secondText.forget();
    _facts.forget();
    _core.reset();
}

void MpvPlayer::replaceStuckCore() {
    if (!_core || !_makeCore || isOfMovie(_state))
        return;
    Log::write(QStringLiteral("WARNING: MpvPlayer: The movie before %1 does not end; the player goes on without it")
                   .arg(_movie ? _movie->url().toString() : QString()));
    _core->leave();
    releaseCore();
    for (const auto& [number, completion] : std::exchange(_stills, {}))
        completion(QImage());
    _makeCore();
}

void MpvPlayer::whenFirstFrameIsDone(std::function<void()> work) {
    const bool isComing = !_prepared.url.isEmpty() && !_video.usesOpenGL();
    _firstFrameWait = RunLoop::main().schedule(isComing ? firstFrameTimeout : 0, false, std::move(work));
    _video.setFirstShown([this] { _firstFrameWait->rearm(0); });
}

void MpvPlayer::deliverCore(std::unique_ptr<MpvCore> core) {
    _delivered = std::move(core);
    QCoreApplication::postEvent(this, new QEvent(coreDeliveredEvent), Qt::HighEventPriority);
}

void MpvPlayer::adoptCore() {
    if (!_delivered)
        return;
    _core = std::move(_delivered);
    _video.setCore(_core.get());
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv.mpv_request_log_messages(_core->handle(), "warn");
    mpv.mpv_observe_property(_core->handle(), timeProperty, "time-pos", MPV_FORMAT_DOUBLE);
    mpv.mpv_observe_property(_core->handle(), durationProperty, "duration", MPV_FORMAT_DOUBLE);
    mpv.mpv_observe_property(_core->handle(), endProperty, "eof-reached", MPV_FORMAT_FLAG);
    mpv.mpv_observe_property(_core->handle(), waitProperty, "paused-for-cache", MPV_FORMAT_FLAG);
    mpv.mpv_observe_property(_core->handle(), bufferProperty, "cache-buffering-state", MPV_FORMAT_INT64);
    mpv.mpv_observe_property(_core->handle(), decoderProperty, "hwdec-current", MPV_FORMAT_STRING);
    mpv.mpv_observe_property(_core->handle(), tracksProperty, "track-list", MPV_FORMAT_NODE);
    mpv.mpv_observe_property(_core->handle(), transferProperty, "video-params/gamma", MPV_FORMAT_STRING);
    mpv.mpv_observe_property(_core->handle(), arrivedProperty, "demuxer-cache-time", MPV_FORMAT_DOUBLE);
    mpv.mpv_observe_property(_core->handle(), reachProperty, "partially-seekable", MPV_FORMAT_FLAG);
    // Posted once until it is handled: frames and events come faster than they are worth handling one by one.
    _core->setCallbacks(
        [this] {
            if (!_eventsPosted.exchange(true))
                QCoreApplication::postEvent(this, new QEvent(eventsDueEvent), Qt::HighEventPriority);
        },
        [this] {
            if (!_framesPosted.exchange(true))
                QCoreApplication::postEvent(this, new QEvent(framesDueEvent), Qt::HighEventPriority);
        });
    if (_adjustment != PictureAdjustment())
        sendAdjustment();
    apply(playerEvent::CoreReady{});
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
    if (event->type() == framesDueEvent) {
        _framesPosted = false;
        framesDue();
        return true;
    }
    return QObject::event(event);
}

// What is asked

void MpvPlayer::load(Movie* movie) {
    std::optional<LoadedMovie> facts;
    if (movie) {
        facts = {movie->duration(), movie->timeScale(),
                 movie->info().hasVideo ? LoadedMovie::Content::frames : LoadedMovie::Content::sound,
                 movie->info().hasVideo && isDecodedByOneThread(movie->info()) ? LoadedMovie::Seeking::withMoreThreads
                                                                               : LoadedMovie::Seeking::asLoaded};
    }
    const std::int32_t start = movie ? movie->time() : 0;
    if (_movie && _movie != movie)
        _movie->playerUnloaded(time());
    _text.clear();
    _secondText.clear();
    _movie = movie;
    ++_loads;
    _stream = {};
    _streamTimer.reset();
    _reloadTimer.reset();
    _bufferPercent.reset();
    _isBeginning = false;
    _sizeWhenLoaded = movie ? std::max<std::int64_t>(movie->info().fileSize, 0) : 0;
    const bool hasFrames = facts && facts->content == LoadedMovie::Content::frames;
    _isInterlaced = false;
    _fieldsAskedAt = -1;
    _sentFilters.reset();
    _video.begin(movie ? movie->shape().applied(movie->info().naturalSize, PictureShape::By::file) : QSizeF(),
                 hasFrames ? MpvVideoLayer::LastFrame::stays : MpvVideoLayer::LastFrame::goes);
    _video.setDynamicRange(movie ? movie->info().dynamicRange : DynamicRange{});
    apply(playerEvent::Load{facts, start, movie ? movie->selection() : TrackSelection()});
    if (hasFrames)
        prepareFrame(start);
    else
        _firstFrames.cancel();
    showPreparedFrame();
    if (_movie != movie) // whoever was told has loaded another one
        return;
    _isBeginning = movie && isNetworkURL(movie->url());
    updateWait();
}

void MpvPlayer::apply(const PlayerEvent& event) {
    const PlayerTransition next = transition(_state, event);
    _state = next.state;
    for (const PlayerEffect& effect : next.effects)
        std::visit([this](const auto& wanted) { carryOut(wanted); }, effect);
    // Whoever is told may load another movie, which the rest is not about.
    const std::uint64_t load = _loads;
    for (const PlayerReport& report : next.reports) {
        if (_loads == load)
            std::visit([this](const auto& told) { tell(told); }, report);
    }
}

void MpvPlayer::prepareFrame(std::int32_t time) {
    // It would be seen as the file has it.
    if (_movie->shape() != PictureShape() || _adjustment != PictureAdjustment()) {
        setPreparedFrame({});
        _firstFrames.cancel();
        return;
    }
    const bool isPrepared = _prepared.url == _movie->url() && _prepared.time == time;
    if (!isPrepared && _movie->url().isLocalFile() && !_video.usesOpenGL())
        setPreparedFrame(_firstFrames.decode(_movie->url(), time, static_cast<double>(time) / _movie->timeScale()));
}

void MpvPlayer::setPreparedFrame(PreparedFrame prepared) {
    if (_prepared.frame)
        _prepared.frame->abandon();
    _preparedFrame = nullptr;
    _prepared = std::move(prepared);
    if (!_prepared.frame)
        return;
    _prepared.frame->receive([this](std::shared_ptr<const FirstFrame> first) {
        _preparedFrame = std::move(first);
        if (_preparedFrame) {
            showPreparedFrame();
            return;
        }
        // There is nothing to wait for.
        _prepared.url.clear();
        if (_firstFrameWait)
            _firstFrameWait->rearm(0);
    });
}

void MpvPlayer::showPreparedFrame() {
    if (!_preparedFrame || !_movie || _movie->url() != _prepared.url)
        return;
    _prepared.url.clear(); // used up, also where it comes too late
    std::shared_ptr<const FirstFrame> first = std::exchange(_preparedFrame, nullptr);
    if (time() != _prepared.time || _video.hasCoreFrame())
        return;
    _video.setFirst(std::move(first));
    if (_observer)
        _observer->playerFrameChanged();
}

// What the core reports

void MpvPlayer::handleEvents() {
    while (_core) {
        const mpv_event* event = MpvLibrary::get()->mpv_wait_event(_core->handle(), 0);
        if (event->event_id == MPV_EVENT_NONE)
            return;
        handle(*event);
    }
}

void MpvPlayer::handle(const mpv_event& event) {
    if (_text.handle(event) || _secondText.handle(event) || _facts.handle(event))
        return;
    switch (event.event_id) {
    case MPV_EVENT_LOG_MESSAGE: {
        const auto* message = static_cast<const mpv_event_log_message*>(event.data);
        // The ways to sound are tried one by one; those that are not there are no errors.
        if (QByteArrayView(message->prefix).startsWith("ao") || isMissingDriver(message->text) || takeWord(*message))
            break;
        Log::write(QStringLiteral("ERROR: libmpv: %1: %2")
                       .arg(QString::fromUtf8(message->prefix), QString::fromUtf8(message->text).trimmed()));
        break;
    }
    case MPV_EVENT_START_FILE:
        apply(playerEvent::FileStarted{static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id});
        if (isOfMovie(_state))
            _startWait.reset();
        break;
    case MPV_EVENT_END_FILE: {
        const auto* end = static_cast<const mpv_event_end_file*>(event.data);
        if (end->reason == MPV_END_FILE_REASON_ERROR && isReloading())
            reloadSoon();
        else if (end->reason == MPV_END_FILE_REASON_ERROR)
            apply(playerEvent::FileFailed{end->playlist_entry_id, end->error});
        break;
    }
    case MPV_EVENT_PLAYBACK_RESTART:
        _fieldsAskedAt = -1;
        askForFields(0);
        if (_state.file == PlayerState::File::loading && isOfMovie(_state) && _movie->info().isLive)
            _stream.liveAt(static_cast<double>(_state.time) / _movie->timeScale(), RunLoop::main().now());
        _isBeginning = false;
        updateWait();
        apply(playerEvent::PlaybackRestarted{});
        break;
    case MPV_EVENT_GET_PROPERTY_REPLY:
        answerProperty(event);
        break;
    case MPV_EVENT_COMMAND_REPLY:
        answerStill(event);
        break;
    case MPV_EVENT_PROPERTY_CHANGE: {
        const auto* property = static_cast<const mpv_event_property*>(event.data);
        if (event.reply_userdata == arrivedProperty)
            takeArrived(property->data ? std::optional(*static_cast<const double*>(property->data)) : std::nullopt);
        else if (property->data)
            propertyChanged(event.reply_userdata, *property);
        break;
    }
    default:
        break;
    }
}

void MpvPlayer::propertyChanged(std::uint64_t property, const mpv_event_property& value) {
    if (property == timeProperty) {
        askForFields(*static_cast<const double*>(value.data));
        apply(playerEvent::TimeChanged{*static_cast<const double*>(value.data)});
    } else if (property == endProperty)
        takeEnd(*static_cast<const int*>(value.data) != 0);
    else if (property == durationProperty && grownFile())
        apply(playerEvent::DurationGrew{*static_cast<const double*>(value.data)});
    else if (property == decoderProperty) {
        const QString line = _decoder.changed(QString::fromUtf8(*static_cast<const char* const*>(value.data)));
        if (!line.isEmpty())
            Log::write(line);
    } else if (property == waitProperty) {
        _bufferPercent = *static_cast<const int*>(value.data) != 0 ? std::optional(0) : std::nullopt;
        updateWait();
    } else if (property == bufferProperty && _bufferPercent) {
        _bufferPercent = static_cast<int>(*static_cast<const std::int64_t*>(value.data));
        updateWait();
    } else if (property == reachProperty)
        _seeksWithinBuffer = *static_cast<const int*>(value.data) != 0;
    else if (property == tracksProperty && _movie && isOfMovie(_state))
        _movie->playerFoundTracks(mergedTracks(_movie->tracks(), tracksOf(*static_cast<const mpv_node*>(value.data))));
    else if (property == transferProperty && _movie)
        takeTransfer(*static_cast<const char* const*>(value.data));
}

/// Not waiting for a drive that hangs.
std::optional<FileFacts> MpvPlayer::grownFile() const {
    constexpr double timeout = 0.3;
    if (_sizeWhenLoaded == 0)
        return std::nullopt;
    const auto file = background::runFor<std::optional<FileFacts>>(
        timeout, [path = nativePath(_movie->url())] { return factsOfFile(path); });
    return file && *file && (*file)->size > _sizeWhenLoaded ? *file : std::nullopt;
}

bool MpvPlayer::isFileGrowing() const {
    const auto file = grownFile();
    return file && file->changed.secsTo(QDateTime::currentDateTime()) <= growingSeconds;
}

void MpvPlayer::framesDue() {
    if (!_core || !_core->renderContext())
        return;
    if (MpvLibrary::get()->mpv_render_context_update(_core->renderContext()) & MPV_RENDER_UPDATE_FRAME)
        apply(playerEvent::FrameDue{});
}

// What follows

void MpvPlayer::carryOut(const playerEffect::LoadFile& effect) {
    // The player takes an absolute path as it stands, whatever characters are in it.
    const QUrl& url = _movie->info().source();
    const QByteArray address = url.isLocalFile() ? nativePath(url) : addressOf(url);
    _sentFilters = _movie->info().hasVideo ? filters() : QByteArray();
    const QByteArray options = loadOptions(_movie->info(), effect.start, _state.tracks, *_sentFilters);
    prepareSubtitles();
    // It starts when the one before has ended, which takes milliseconds unless its file does not answer.
    if (_state.core->entriesSent > 1 && !_startWait)
        _startWait = RunLoop::main().schedule(startTimeout, false, [this] { replaceStuckCore(); });
    if (MpvLibrary::get()->dialect().loadArguments == MpvDialect::LoadArguments::flags)
        command({"loadfile", address.constData(), "replace", options.constData()});
    else
        command({"loadfile", address.constData(), "replace", "-1", options.constData()});
}

void MpvPlayer::carryOut(const playerEffect::SendSeek& effect) {
    const QByteArray seconds = QByteArray::number(effect.seek.seconds, 'f', 6);
    command({"seek", seconds.constData(),
             effect.seek.kind == SeekPlanner::Kind::keyframe ? "absolute+keyframes" : "absolute+exact"});
}

void MpvPlayer::carryOut(const playerEffect::UseMoreThreads&) {
    if (_decoder.isHardware() || MpvLibrary::get()->dialect().newDecoder != MpvDialect::NewDecoder::seeksAtOnce)
        return;
    command({"set", "file-local-options/vd-lavc-threads", "0"});
    // Another way to say no: the decoder is made anew at any change. The core then seeks to where it stands, in place
    // of which comes the seek that follows.
    command({"set", "file-local-options/hwdec", "no,"});
}

void MpvPlayer::carryOut(const playerEffect::SetRepeated& effect) {
    const auto [from, until] = effect.seconds.value_or(std::pair(0.0, 0.0));
    const auto text = [&](double seconds) {
        return effect.seconds ? QByteArray::number(seconds, 'f', 6) : QByteArray("no");
    };
    command({"set", "ab-loop-a", text(from).constData()});
    command({"set", "ab-loop-b", text(until).constData()});
}

void MpvPlayer::facts(std::function<void(const PlaybackFacts&)> completion) {
    if (!_core || !_movie) {
        RunLoop::main().post([completion = std::move(completion)] { completion({}); });
        return;
    }
    _facts.ask(_core->handle(), [this, completion = std::move(completion)](const PlaybackFacts& told) {
        PlaybackFacts facts = told;
        facts.framesShown = _video.counts().shown;
        facts.framesLate = _video.counts().late;
        facts.behindLive = behindLive();
        completion(facts);
    });
}

void MpvPlayer::carryOut(const playerEffect::SendStep& effect) {
    command({effect.direction > 0 ? "frame-step" : "frame-back-step"});
}

void MpvPlayer::prepareSubtitles() {
    const TrackSelection& tracks = _state.tracks;
    if (_core && tracks.secondSubtitles > 0)
        _secondText.observe(_core->handle());
    if (!_core || (tracks.subtitles <= 0 && tracks.subtitleFile.isEmpty()))
        return;
    const bool isDrawn = tracks.drawn == TrackSelection::Drawn::inPicture;
    if (isDrawn)
        command({"set", "sub-font-provider", "auto"}); // before the track's decoder is made
    else
        _text.observe(_core->handle());
    setFlag("sub-visibility", isDrawn);
}

void MpvPlayer::carryOut(const playerEffect::SelectVideo&) {
    command({"set", "vid", videoOption(_state.tracks).constData()});
}

void MpvPlayer::carryOut(const playerEffect::SelectAudio&) {
    command({"set", "aid", audioOption(_state.tracks).constData()});
}

void MpvPlayer::carryOut(const playerEffect::SelectSubtitles&) {
    _text.clear();
    prepareSubtitles();
    // A file that was added before is selected again.
    if (const QString& file = _state.tracks.subtitleFile; !file.isEmpty())
        command({"sub-add", bytesOfPath(file).constData(), "cached"});
    else
        command({"set", "sid", subtitleOption(_state.tracks).constData()});
}

void MpvPlayer::carryOut(const playerEffect::SelectSecondSubtitles&) {
    _secondText.clear();
    prepareSubtitles();
    command({"set", "secondary-sid", secondSubtitleOption(_state.tracks).constData()});
}

void MpvPlayer::carryOut(const playerEffect::SetDelays& effect) {
    setNumber("audio-delay", effect.audio);
    setNumber("sub-delay", effect.subtitles);
    setNumber("sub-speed", effect.subtitleSpeed);
}

void MpvPlayer::carryOut(const playerEffect::ArmTimer& effect) {
    timer(effect.timer) =
        RunLoop::main().schedule(effect.seconds, effect.timer == PlayerTimer::scrub, [this, which = effect.timer] {
            apply(playerEvent::TimerFired{which, RunLoop::main().now()});
        });
}

void MpvPlayer::tell(const playerReport::FrameChanged&) {
    if (_observer)
        _observer->playerFrameChanged();
}

void MpvPlayer::tell(const playerReport::FrameDue&) {
    if (_observer)
        _observer->playerFrameDue();
    else
        _video.skip();
}

void MpvPlayer::tell(const playerReport::StateChanged&) {
    if (_observer)
        _observer->playerStateChanged();
}

void MpvPlayer::tell(const playerReport::ShowedFrame& report) {
    if (_movie)
        _movie->playerShowedFrame(report.time);
}

void MpvPlayer::tell(const playerReport::Jumped&) {
    if (_movie)
        _movie->playerJumped();
}

void MpvPlayer::tell(const playerReport::ReachedEnd&) {
    if (_movie)
        _movie->playerReachedEnd(!isFileGrowing());
}

void MpvPlayer::tell(const playerReport::Grew& report) {
    if (_movie)
        _movie->playerGrew(report.duration);
}

void MpvPlayer::tell(const playerReport::Failed& report) {
    Log::write(
        QStringLiteral("ERROR: MpvPlayer: Can't play %1: %2")
            .arg(_movie->url().toString(), QString::fromUtf8(MpvLibrary::get()->mpv_error_string(report.error))));
    _isBeginning = false;
    updateWait();
    if (_observer)
        _observer->playerFailed();
}

void MpvPlayer::command(std::initializer_list<const char*> words, std::uint64_t reply) {
    if (!_core)
        return;
    std::vector<const char*> arguments(words);
    arguments.push_back(nullptr);
    MpvLibrary::get()->mpv_command_async(_core->handle(), reply, arguments.data());
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

} // namespace platform

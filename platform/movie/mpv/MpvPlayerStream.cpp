// SPDX-License-Identifier: GPL-3.0-or-later
// What the player does for movies that come from a network.
#include "platform/base/Log.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/movie/mpv/MpvPlayer.h"

#include <mpv/client.h>

#include <QByteArrayView>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace platform {

namespace {

/// So many seconds before its end a movie does not end by itself: what was to come of it does not.
constexpr double noEnd = 5;
constexpr double reloadInterval = 2;

} // namespace

void MpvPlayer::play() {
    if (_stream.connection() == StreamWatch::Connection::lost) {
        _stream.tryAgain(RunLoop::main().now());
        followConnection();
    }
    apply(playerEvent::Play{});
}

void MpvPlayer::seek(std::int32_t time, JumpReport report) {
    // Of a live movie nothing more is there than has arrived.
    if (_movie && _movie->info().isLive && time > arrivedUntil())
        goLive();
    else
        apply(playerEvent::Seek{time, report});
}

bool MpvPlayer::takeWord(const mpv_event_log_message& message) {
    const QByteArrayView text(message.text);
    if (text.contains("Will reconnect at"))
        connectionBroke();
    else if (text.startsWith("Cannot seek in this"))
        apply(playerEvent::SeekFailed{});
    else
        // What follows the line about the seek is advice for users of another program.
        return message.log_level > MPV_LOG_LEVEL_ERROR || text.startsWith("You can force it");
    return true;
}

void MpvPlayer::connectionBroke() {
    if (!_movie || !isNetworkURL(_movie->url()) || !_stream.broke(RunLoop::main().now()))
        return;
    Log::write(QStringLiteral("WARNING: MpvPlayer: The connection of %1 broke").arg(_movie->url().host()));
    followConnection();
}

void MpvPlayer::followConnection() {
    constexpr double interval = 1;
    _streamTimer = RunLoop::main().schedule(interval, true, [this] {
        if (!_stream.giveUp(RunLoop::main().now()))
            return;
        _streamTimer.reset();
        _reloadTimer.reset();
        apply(playerEvent::SetRate{0, RunLoop::main().now()});
        updateWait();
    });
    updateWait();
}

void MpvPlayer::takeArrived(std::optional<double> until) {
    const bool wasSteady = _stream.connection() == StreamWatch::Connection::steady;
    if (!_stream.arrived(until))
        return;
    if (!wasSteady) {
        _streamTimer.reset();
        updateWait();
    }
    if (_observer && _movie && isNetworkURL(_movie->url()))
        _observer->playerStateChanged();
}

void MpvPlayer::takeEnd(bool isAtEnd) {
    const bool isRemote = _movie && isNetworkURL(_movie->url()) && isOfMovie(_state);
    if (isAtEnd && isRemote && _movie->duration() > 0 && !_seeksWithinBuffer &&
        _movie->duration() - _state.time > noEnd * _movie->timeScale()) {
        // Tried again as often as one tries whether more of a growing file has come.
        connectionBroke();
        apply(playerEvent::EndChanged{CoreEnd::ofArrived});
    } else if (isAtEnd && isRemote && isReloading()) {
        reloadSoon();
    } else {
        apply(playerEvent::EndChanged{!isAtEnd          ? CoreEnd::no
                                      : isFileGrowing() ? CoreEnd::ofArrived
                                                        : CoreEnd::ofMovie});
    }
}

bool MpvPlayer::isReloading() const {
    return _movie && _movie->info().isLive && _stream.connection() == StreamWatch::Connection::broken;
}

void MpvPlayer::reloadSoon() {
    _reloadTimer = RunLoop::main().schedule(reloadInterval, false, [this] { apply(playerEvent::Reload{0}); });
}

void MpvPlayer::updateWait() {
    using Connection = StreamWatch::Connection;
    using What = Wait::What;
    const Connection connection = _stream.connection();
    const Wait wait{_isBeginning                       ? What::beginning
                    : connection == Connection::lost   ? What::lostConnection
                    : connection == Connection::broken ? What::connection
                    : _bufferPercent                   ? What::more
                                                       : What::nothing,
                    _bufferPercent && connection == Connection::steady && !_isBeginning ? *_bufferPercent : 0};
    if (wait != std::exchange(_wait, wait) && _observer)
        _observer->playerWaitChanged(wait);
}

std::optional<double> MpvPlayer::behindLive() const {
    return _movie ? _stream.behindLive(static_cast<double>(_state.time) / _movie->timeScale(), RunLoop::main().now())
                  : std::nullopt;
}

void MpvPlayer::goLive() {
    const std::optional<double> behind = behindLive();
    if (!behind)
        return;
    const double place = static_cast<double>(_state.time) / _movie->timeScale() + *behind;
    // What was not fetched meanwhile is not to be had any more.
    if (place <= _stream.arrivedUntil())
        apply(playerEvent::Seek{static_cast<std::int32_t>(std::lround(place * _movie->timeScale())),
                                JumpReport::reported});
    else
        apply(playerEvent::Reload{0});
}

std::int32_t MpvPlayer::arrivedUntil() const {
    if (!_movie || !isNetworkURL(_movie->url()))
        return 0;
    const double end = _stream.arrivedUntil() * _movie->timeScale();
    return static_cast<std::int32_t>(std::clamp(end, 0.0, 2e9));
}

} // namespace platform

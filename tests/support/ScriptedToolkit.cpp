// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ScriptedToolkit.h"

#include "platform/movie/Movie.h"

#include <algorithm>
#include <cmath>
#include <utility>

void ScriptedPlayer::advance(double seconds) {
    platform::Movie* const movie = _movie;
    if (!movie || _rate == 0.0F)
        return;
    const platform::MovieInfo& info = movie->info();
    const double picture = info.hasVideo && info.frameDuration > 0 ? info.frameDuration : info.timeScale * 0.05;
    double left = seconds * std::abs(double{_rate}) * info.timeScale;
    while (left > 1e-6 && _movie == movie && _rate != 0.0F) {
        const double here = _time + _fraction;
        const double direction = _rate > 0 ? 1 : -1;
        const double next = (std::floor(here / picture * direction + 1e-6) + 1) * picture * direction;
        const double move = std::min(left, std::abs(next - here));
        left -= move;
        const double there = here + direction * move;
        if (direction > 0 && info.duration > 0 && there >= info.duration) {
            reachEnd();
            return;
        }
        if (direction < 0 && there <= 0) {
            _time = 0;
            _fraction = 0;
            pause();
            return;
        }
        _time = static_cast<std::int32_t>(std::floor(there + 1e-6));
        _fraction = there - _time;
        if (std::abs(there - next) < 1e-6) {
            stateChanged();
            movie->playerShowedFrame(_time);
        }
    }
}

void ScriptedPlayer::showFrame(std::int32_t time) {
    _time = time;
    _fraction = 0;
    if (_movie)
        _movie->playerShowedFrame(time);
}

void ScriptedPlayer::reachEnd() {
    if (!_movie)
        return;
    _time = _movie->duration();
    _fraction = 0;
    _rate = 0;
    stateChanged();
    if (_movie)
        _movie->playerReachedEnd();
}

void ScriptedPlayer::load(platform::Movie* movie) {
    ++loads;
    const std::int32_t time = movie ? movie->time() : 0;
    platform::Movie* const before = std::exchange(_movie, nullptr);
    if (before && before != movie)
        before->playerUnloaded(_time);
    _time = time;
    _fraction = 0;
    _rate = 0;
    _movie = movie;
    if (_observer)
        _observer->playerPictureChanged();
    stateChanged();
}

void ScriptedPlayer::play() {
    if (!_movie)
        return;
    if (_movie->duration() > 0 && _time >= _movie->duration())
        _time = 0;
    _rate = 1;
    stateChanged();
}

void ScriptedPlayer::pause() {
    _rate = 0;
    stateChanged();
}

void ScriptedPlayer::setRate(float rate) {
    _rate = _movie ? rate : 0;
    stateChanged();
}

void ScriptedPlayer::seek(std::int32_t time, JumpReport report) {
    seeks.push_back({time, report});
    _time = time;
    _fraction = 0;
    stateChanged();
    if (_movie && report == JumpReport::reported)
        _movie->playerJumped();
    if (_movie)
        _movie->playerShowedFrame(time);
}

void ScriptedPlayer::step(int direction) {
    steps.push_back(direction);
    if (!_movie)
        return;
    pause();
    const std::int32_t next = _movie->nextInterestingTime(_time, direction);
    if (next >= 0)
        _time = next;
    _movie->playerJumped();
}

void ScriptedPlayer::setVolume(float volume) {
    _volume = std::clamp(volume, 0.0F, 3.0F);
    stateChanged();
}

void ScriptedPlayer::setMuted(bool muted) {
    _muted = muted;
    stateChanged();
}

void ScriptedPlayer::stateChanged() {
    if (_observer)
        _observer->playerStateChanged();
}

ScriptedToolkit::ScriptedToolkit() {
    setShared(this);
}

ScriptedToolkit::~ScriptedToolkit() {
    setShared(nullptr);
}

platform::MovieInfo ScriptedToolkit::plainMovie(const QUrl& url) {
    platform::MovieInfo info;
    info.url = url;
    info.timeScale = 600;
    info.duration = 60 * 600;
    info.hasVideo = true;
    info.hasAudio = true;
    info.naturalSize = QSizeF(640, 480);
    info.videoSampleCount = 60 * 25;
    info.frameDuration = 24;
    return info;
}

void ScriptedToolkit::setMovie(const QUrl& url, platform::MovieInfo info, std::int16_t error) {
    info.url = url;
    _scripts[url] = {std::move(info), error};
}

void ScriptedToolkit::setFailure(const QUrl& url, std::int16_t error) {
    _scripts[url] = {std::nullopt, error};
}

std::optional<platform::MovieInfo> ScriptedToolkit::open(const QUrl& url) {
    opened.append(url);
    if (whileOpening)
        whileOpening(url);
    const auto script = _scripts.constFind(url);
    if (script == _scripts.cend())
        return plainMovie(url);
    if (script->error != 0)
        _stickyError = script->error;
    return script->info;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ScriptedToolkit.h"

#include "platform/base/RunLoop.h"
#include "platform/movie/Movie.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <utility>

void ScriptedPlayer::advance(double seconds) {
    platform::Movie* const movie = _movie;
    if (!movie || _rate == 0.0F)
        return;
    const platform::MovieInfo& info = movie->info();
    const int picture = info.hasVideo ? static_cast<int>(info.frameDuration) : info.timeScale / 20;
    for (_left += seconds * info.timeScale; _movie == movie && _rate != 0.0F;) {
        const double taken = picture / std::abs(_rate * _speed);
        if (_left < taken - 1e-6)
            return;
        _left -= taken;
        const std::int32_t next = _time + (_rate > 0 ? picture : -picture);
        if (next >= info.duration)
            return reachEnd();
        _time = std::max(next, 0);
        if (next <= 0)
            return pause();
        stateChanged();
        movie->playerShowedFrame(_time);
    }
}

void ScriptedPlayer::reachEnd(bool isWhole) {
    _time = _movie->duration();
    _rate = 0;
    stateChanged();
    if (_movie)
        _movie->playerReachedEnd(isWhole);
}

void ScriptedPlayer::load(platform::Movie* movie) {
    ++loads;
    const std::int32_t time = movie ? movie->time() : 0;
    platform::Movie* const before = std::exchange(_movie, nullptr);
    if (before && before != movie)
        before->playerUnloaded(_time);
    _time = time;
    loadedAt = time;
    _left = 0;
    _rate = 0;
    _repeated.reset();
    _movie = movie;
    if (_observer)
        _observer->playerFrameChanged();
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

void ScriptedPlayer::setRate(float rate) {
    _rate = _movie ? rate : 0;
    stateChanged();
}

void ScriptedPlayer::seek(std::int32_t time, JumpReport report) {
    _time = time;
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

platform::MovieInfo ScriptedToolkit::plainMovie(const QUrl& url) {
    platform::MovieInfo info;
    if (url.isLocalFile())
        info.fileSize = QFileInfo(url.toLocalFile()).size();
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

platform::OpenedMovie ScriptedToolkit::answerOf(const QUrl& url) const {
    platform::MovieInfo movie = plainMovie(url);
    movie.duration = duration;
    movie.tracks = tracks;
    const auto script = scripts.constFind(url);
    if (script == scripts.cend())
        return {movie, platform::movieError::none};
    return {script->opens ? std::optional(movie) : std::nullopt, script->error};
}

std::unique_ptr<platform::MovieOpening>
ScriptedToolkit::openAsync(const QUrl& url, std::function<void(platform::OpenedMovie)> completion) {
    struct Opening final : platform::MovieOpening {
        std::shared_ptr<Completion> completion;
    };
    if (whileOpening)
        whileOpening(url);
    auto opening = std::make_unique<Opening>();
    opening->completion = std::make_shared<Completion>(std::move(completion));
    if (hanging.contains(url))
        _held.emplace_back(url, opening->completion);
    else
        post(opening->completion, answerOf(url));
    return opening;
}

void ScriptedToolkit::post(const std::weak_ptr<Completion>& completion, const platform::OpenedMovie& opened) {
    platform::RunLoop::main().post([completion, opened] {
        if (const auto call = completion.lock())
            (*call)(opened);
    });
}

void ScriptedToolkit::answer(const QUrl& url) {
    for (const auto& [held, completion] : std::exchange(_held, {})) {
        if (held == url)
            post(completion, answerOf(url));
        else
            _held.emplace_back(held, completion);
    }
}

int ScriptedToolkit::waiting() const {
    return static_cast<int>(std::ranges::count_if(_held, [](const auto& held) { return !held.second.expired(); }));
}

std::unique_ptr<platform::MovieOpening> ScriptedToolkit::keyframeAsync(const QUrl&, double seconds, const QSize& bounds,
                                                                       std::function<void(QImage)> completion) {
    struct Asked final : platform::MovieOpening {
        std::shared_ptr<std::function<void(QImage)>> completion;
    };
    auto asked = std::make_unique<Asked>();
    asked->completion = std::make_shared<std::function<void(QImage)>>(std::move(completion));
    keyframes.push_back({seconds, bounds, asked->completion});
    return asked;
}

std::unique_ptr<platform::MovieOpening> ScriptedToolkit::coverAsync(const QUrl& url,
                                                                    std::function<void(QImage)> completion) {
    coversAsked.append(url);
    return openAsync(url,
                     [this, completion = std::move(completion)](const platform::OpenedMovie&) { completion(cover); });
}

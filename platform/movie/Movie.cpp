// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/Movie.h"

#include "platform/movie/MoviePlayer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace platform {

namespace {

/// Takes the callback out of its slot before it runs: it may arm itself again, or destroy the movie.
void fireOnce(std::function<void()>& slot) {
    if (auto callback = std::exchange(slot, nullptr))
        callback();
}

} // namespace

Movie::Movie(MovieInfo info, MoviePlayer& player)
    : _info(std::move(info))
    , _player(player)
    , _needsTimeTable(!_info.saysDuration) {}

void Movie::setInfo(MovieInfo info) {
    _info = std::move(info);
    _needsTimeTable = !_info.saysDuration;
}

Movie::~Movie() {
    _stopped = nullptr;
    _timePasses = nullptr;
    _timeJumps = nullptr;
    if (_player.loaded() == this)
        _player.load(nullptr);
}

std::int32_t Movie::time() const {
    return _player.loaded() == this ? _player.time() : _restingTime;
}

std::int32_t Movie::rate() const {
    if (_player.loaded() != this)
        return 0;
    constexpr double limit = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::round(double{_player.rate()} * 0x10000), -limit, limit));
}

std::int16_t Movie::setTimeValue(std::int32_t time) {
    time = std::max(time, 0);
    if (_info.duration > 0)
        time = std::min(time, _info.duration);
    _shownTime.reset();
    if (_player.loaded() == this)
        _player.seek(time, MoviePlayer::JumpReport::silent);
    else
        _restingTime = time;
    return movieError::none;
}

std::int32_t Movie::nextInterestingTime(std::int32_t from, std::int32_t rate) const {
    if (!_info.hasVideo || !(_info.frameDuration > 0))
        return -1;
    // A picture of less than a unit has no time of its own.
    const double frame = std::max(_info.frameDuration, 1.0);
    const double direction = rate < 0 ? -1 : 1;
    double picture = rate < 0 ? std::ceil(from / frame) : std::floor(from / frame);
    double time = 0;
    do {
        picture += direction;
        time = std::round(picture * frame);
    } while ((time - from) * direction <= 0);
    const std::int32_t end = _info.duration > 0 ? _info.duration : std::numeric_limits<std::int32_t>::max();
    return time < 0 || time >= end ? -1 : static_cast<std::int32_t>(time);
}

void Movie::select(const TrackSelection& selection) {
    _selection = selection;
    if (_player.loaded() == this)
        _player.select(selection);
}

void Movie::playerFoundTracks(MovieTracks tracks) {
    if (tracks == _info.tracks)
        return;
    _info.tracks = std::move(tracks);
    tracksChanged();
}

void Movie::playerReadSubtitle(const SubtitleText& text) {
    _subtitleText = text;
    subtitleTextChanged();
}

void Movie::playerReadSecondSubtitle(const SubtitleText& text) {
    _secondSubtitleText = text;
    secondSubtitleTextChanged();
}

void Movie::callWhenStopped(std::function<void()> callback) {
    _stopped = std::move(callback);
}

void Movie::callWhenTimePasses(std::int32_t time, std::function<void()> callback) {
    _timePasses = std::move(callback);
    _timeToPass = time;
    _timeWhenArmed = _shownTime.value_or(this->time());
}

void Movie::callWhenTimeJumps(std::function<void()> callback) {
    _timeJumps = std::move(callback);
}

void Movie::playerShowedFrame(std::int32_t time) {
    _shownTime = time;
    // What is shown while the movie rests is the picture of a jump, which was reported as such or silent.
    if (!_timePasses || rate() == 0)
        return;
    // A picture other than that of the arming has passed the armed time, or comes in its place where pictures last
    // unequally long.
    const bool due = _timeToPass >= 0
                         ? time != _timeWhenArmed
                         : std::abs(std::int64_t{time} - _timeWhenArmed) >= std::max(_info.timeScale / 4, 1);
    if (due)
        fireOnce(_timePasses);
}

void Movie::playerJumped() {
    _shownTime.reset();
    fireOnce(_timeJumps);
}

void Movie::playerReachedEnd(bool isWhole) {
    if (isWhole)
        _needsTimeTable = false;
    fireOnce(_stopped);
}

} // namespace platform

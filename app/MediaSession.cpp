// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MediaSession.h"

#include "app/OpeningFiles.h"
#include "context/CommandTarget.h"
#include "context/Notifications.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MoviePlayer.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/Arrangement.h"
#include "playlist/QVPlaylistController.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Playback = platform::MediaState::Playback;
using Looping = platform::MediaState::Looping;

constexpr std::int64_t microseconds = 1'000'000;
/// What changes together is told together, seconds.
constexpr double gathering = 0.05;

std::int64_t inMicroseconds(std::int64_t time, std::int32_t scale) {
    return scale > 0 ? time * microseconds / scale : 0;
}

Playback playbackOf(const QVMovieView& view) {
    if (view.isPlaying())
        return Playback::playing;
    // At rest at its beginning a movie is where stopping leaves it.
    return view.movie() && view.time() > 0 ? Playback::paused : Playback::stopped;
}

double reckonedRate(const platform::MediaState& state) {
    return state.playback == Playback::playing ? state.rate : 0;
}

} // namespace

MediaSession::MediaSession(const Environment& environment, Collaborators collaborators)
    : _environment(environment)
    , _with(std::move(collaborators))
    , _artwork(environment, _with.toolkit, [this] { changed(); })
    , _arrangement(Arrangement::asAdded)
    , _beginning(environment, [this] { _with.controls.start(*this); }) {}

MediaSession::~MediaSession() = default;

void MediaSession::mediaControlsStand() {
    platform::NotificationCenter& center = _environment.notifications;
    const auto onChange = [this](const auto&) { changed(); };
    const auto onList = [this](const auto&) { tellList(); };
    _subscriptions.push_back(center.observe<QVPlayerStateChangedNotification>(onChange));
    _subscriptions.push_back(center.observe<QVMovieInterestingTimeNotification>(onChange));
    _subscriptions.push_back(center.observe<QVMovieVolumeChangedNotification>(onChange));
    _subscriptions.push_back(center.observe<QVPlaylistLoopingChangedNotification>(onChange));
    _subscriptions.push_back(center.observe<QVPlaylistChangedNotification>(onList));
    _subscriptions.push_back(center.observe<QVPlaylistMovieChangedNotification>([this](const auto&) {
        follow();
        tellList();
    }));
    _subscriptions.push_back(
        center.observe<QVPreferencesChangedNotification>([this](const QVPreferencesChangedNotification& changes) {
            if (changes.key == kQVPlaylistDefaultArrangement)
                tellList();
        }));
    follow();
    _told = state();
    _toldPosition.tell(position(), reckonedRate(_told), _environment.loop.now());
}

void MediaSession::follow() {
    _artwork.follow(_with.view.movie());
}

void MediaSession::changed() {
    if (_subscriptions.empty())
        return;
    const platform::MediaState now = state();
    if (now != _told) {
        if (!_telling)
            _telling = _environment.loop.schedule(gathering, false, [this] { tell(); });
        return; // a place is told of with what else is new
    }
    if (!_toldPosition.isOff(position(), _environment.loop.now()))
        return;
    _toldPosition.tell(position(), reckonedRate(now), _environment.loop.now());
    _with.controls.positionJumped();
}

void MediaSession::tell() {
    _telling.reset();
    const double now = _environment.loop.now();
    const std::uint64_t before = _told.track.number;
    _told = state();
    const double rate = reckonedRate(_told);
    const bool jumped = _told.track.number == before && _toldPosition.isOffAtEither(position(), rate, now);
    _toldPosition.tell(position(), rate, now);
    _with.controls.stateChanged();
    if (jumped)
        _with.controls.positionJumped();
}

void MediaSession::tellList() {
    std::erase_if(_numbers, [](const auto& entry) { return entry.first.expired(); });
    _with.controls.tracksChanged();
    changed();
}

// What is told

std::uint64_t MediaSession::numberOf(const std::shared_ptr<QVMovie>& movie) const {
    if (!movie)
        return 0;
    const auto [found, isNew] = _numbers.try_emplace(movie, 0);
    if (isNew)
        found->second = ++_lastNumber;
    return found->second;
}

std::uint32_t MediaSession::indexOf(std::uint64_t number) const {
    for (std::uint32_t index = 0; index < _with.playlist.count(); ++index) {
        if (numberOf(_with.playlist.movieAtIndex(index)) == number)
            return index;
    }
    return NSNotFound;
}

platform::MediaTrack MediaSession::trackOf(const std::shared_ptr<QVMovie>& movie) const {
    platform::MediaTrack track;
    if (!movie)
        return track;
    track.number = numberOf(movie);
    track.title = movie->info().title.isEmpty() ? movie->displayName() : movie->info().title;
    track.artist = movie->info().artist;
    track.url = movie->address();
    const std::int32_t seconds = movie->knownSeconds();
    track.length = movie->isOpened() && movie->duration() > 0 ? inMicroseconds(movie->duration(), movie->timeScale())
                   : seconds < 0                              ? -1
                                                              : seconds * microseconds;
    if (movie == _with.view.movie())
        track.art = _artwork.url();
    return track;
}

platform::MediaTrack MediaSession::track(std::uint64_t number) const {
    return trackOf(_with.playlist.movieAtIndex(indexOf(number)));
}

std::vector<std::uint64_t> MediaSession::tracks() const {
    std::vector<std::uint64_t> numbers;
    numbers.reserve(_with.playlist.count());
    for (std::uint32_t index = 0; index < _with.playlist.count(); ++index)
        numbers.push_back(numberOf(_with.playlist.movieAtIndex(index)));
    return numbers;
}

platform::MediaState MediaSession::state() const {
    const auto movie = _with.view.movie();
    platform::MediaState state;
    state.playback = playbackOf(_with.view);
    state.looping = _with.playlist.looping() == looping::one   ? Looping::one
                    : _with.playlist.looping() == looping::all ? Looping::all
                                                               : Looping::off;
    state.isShuffled = _environment.settings.integerForKey(kQVPlaylistDefaultArrangement) == Arrangement::shuffled;
    state.rate = _with.view.speed();
    state.volume = _with.view.isMuted() ? 0 : static_cast<double>(_with.view.volume());
    state.canGoNext = _with.playlist.willPlayNext();
    state.canGoPrevious = _with.playlist.willPlayPrevious();
    state.canPlay = _with.playlist.index() < _with.playlist.count();
    state.track = trackOf(movie);
    state.canSeek = movie && state.track.length > 0 && !movie->info().isLive;
    return state;
}

std::int64_t MediaSession::position() const {
    const auto movie = _with.view.movie();
    return movie ? inMicroseconds(movie->time(), movie->timeScale()) : 0;
}

// What is asked

void MediaSession::raise() {
    _with.raise();
}

void MediaSession::quit() {
    // Whoever asked gets an answer first.
    _quitting = _environment.loop.schedule(0, false, [this] { _with.desktop.terminate(); });
}

void MediaSession::play() {
    if (_with.view.isPlaying())
        return;
    if (_with.view.movie())
        _with.commands.performAction(action::playPause, Feedback::yes);
    else
        _with.playlist.play();
}

void MediaSession::pause() {
    if (!_with.view.isPlaying())
        return;
    // Pausing fast motion by the command would go back to the usual speed.
    if (_with.view.rate() == 1.0F)
        _with.commands.performAction(action::playPause, Feedback::yes);
    else
        _with.view.stop();
}

void MediaSession::stop() {
    _with.commands.performCommand("stop", Feedback::yes);
}

void MediaSession::next() {
    if (_with.playlist.willPlayNext())
        change(_with.playlist.index() + 1 < _with.playlist.count() ? _with.playlist.index() + 1 : 0);
}

void MediaSession::previous() {
    if (_with.playlist.willPlayPrevious())
        change(_with.playlist.index() > 0 ? _with.playlist.index() - 1 : _with.playlist.count() - 1);
}

void MediaSession::change(std::uint32_t index) {
    if (_with.view.isPlaying())
        _with.playlist.play(index);
    else
        _with.playlist.setIndex(index);
}

void MediaSession::setPosition(std::int64_t position) {
    const auto movie = _with.view.movie();
    if (!movie)
        return;
    const double time = static_cast<double>(position) / microseconds * movie->timeScale();
    _with.view.setTime(static_cast<std::int32_t>(std::clamp(std::round(time), 0.0, double(movie->duration()))));
    changed();
}

void MediaSession::setRate(double rate) {
    _with.view.setSpeed(std::clamp(rate, platform::MoviePlayer::minimumSpeed, platform::MoviePlayer::maximumSpeed));
    changed();
}

void MediaSession::setVolume(double volume) {
    if (_with.view.isMuted() && volume > 0)
        _with.view.setMuted(false);
    _with.view.setVolume(static_cast<float>(volume));
}

void MediaSession::setLooping(Looping mode) {
    _with.playlist.setLooping(mode == Looping::one ? looping::one : mode == Looping::all ? looping::all : looping::off);
}

void MediaSession::setShuffled(bool shuffled) {
    const std::int32_t now = _environment.settings.integerForKey(kQVPlaylistDefaultArrangement);
    if (shuffled == (now == Arrangement::shuffled))
        return;
    _environment.settings.setInteger(shuffled ? Arrangement::shuffled : _arrangement, kQVPlaylistDefaultArrangement);
    if (shuffled)
        _arrangement = now;
    _environment.notifications.post(QVPreferencesChangedNotification{kQVPlaylistDefaultArrangement, {}});
}

void MediaSession::open(const QString& address) {
    _with.open(address);
}

void MediaSession::addTrack(const QString& address, std::uint64_t after, bool makesCurrent) {
    const QList<QUrl> urls = urlsWithURLStrings({address});
    if (urls.isEmpty())
        return;
    const bool isAfterAny = after == 0 || indexOf(after) != NSNotFound;
    const std::uint64_t place = isAfterAny ? after : UINT64_MAX;
    _with.playlist.addURLs(
        urls, Adding::append, Starting::no,
        [this, before = tracks(), place, makesCurrent, alive = std::weak_ptr<bool>(_alive)](bool added) {
            if (added && !alive.expired())
                takePlace(before, place, makesCurrent);
        });
}

void MediaSession::takePlace(const std::vector<std::uint64_t>& before, std::uint64_t after, bool makesCurrent) {
    const std::vector<std::uint64_t> now = tracks();
    const auto isNew = [&before](std::uint64_t number) { return std::ranges::find(before, number) == before.end(); };
    const auto found = std::ranges::find_if(now, isNew);
    if (found == now.end())
        return;
    const std::uint64_t number = *found;
    const std::uint32_t target = after == 0 ? 0 : indexOf(after) == NSNotFound ? NSNotFound : indexOf(after) + 1;
    _with.playlist.moveEntries({indexOf(number)}, std::min(target, _with.playlist.count()));
    if (makesCurrent)
        change(indexOf(number));
}

void MediaSession::removeTrack(std::uint64_t number) {
    const std::uint32_t index = indexOf(number);
    if (index == NSNotFound)
        return;
    // The current one gives way to another first; the list's last movie stays.
    if (index == _with.playlist.index() && _with.playlist.count() > 1)
        change(index + 1 < _with.playlist.count() ? index + 1 : index - 1);
    _with.playlist.removeEntries({index});
}

void MediaSession::goTo(std::uint64_t number) {
    if (const std::uint32_t index = indexOf(number); index != NSNotFound)
        _with.playlist.play(index);
}

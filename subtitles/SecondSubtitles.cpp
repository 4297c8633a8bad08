// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/SecondSubtitles.h"

#include "platform/base/Localization.h"
#include "subtitles/QVSubtitlesController.h"
#include "subtitles/SubtitleOwner.h"
#include "subtitles/SubtitleView.h"

#include <algorithm>
#include <utility>

namespace {

// Seconds.
constexpr double readingInterval = 0.1;

/// By which the movie keeps it: its place among those of its file, and the file.
QString nameOf(const QVSubtitles& track) {
    return QString::number(track.streamIndex()) + u' ' + track.path();
}

} // namespace

SecondSubtitles::SecondSubtitles(const Environment& environment, SubtitleScene& scene,
                                 const QVSubtitlesController& first)
    : _environment(environment)
    , _scene(scene)
    , _first(first) {
    platform::NotificationCenter& center = environment.notifications;
    _onMovie = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { movieChanged(notification.movie); });
    _onTime = center.observe<QVMovieInterestingTimeNotification>([this](const auto& notification) {
        if (_current && _scene.ownerOf(notification.movie) == _movie)
            showCueOfNow();
    });
    // Some turn up while the movie plays.
    _onTracks = center.observe<QVMovieTracksChangedNotification>([this](const auto& notification) {
        if (_movie && !_current && _scene.ownerOf(notification.movie) == _movie)
            restore();
    });
    _onSubtitles = center.observe<QVSubtitlesChangedNotification>([this](const auto&) {
        if (!_current)
            restore();
        else if (!canShow(_current))
            select(-1);
    });
}

SecondSubtitles::~SecondSubtitles() {
    if (_current)
        _current->setSecond(false, nullptr);
}

std::vector<std::shared_ptr<QVSubtitles>> SecondSubtitles::tracks() const {
    return _movie ? _movie->subtitles() : std::vector<std::shared_ptr<QVSubtitles>>();
}

bool SecondSubtitles::canShow(const std::shared_ptr<QVSubtitles>& track) const {
    return track->isTextBased() && track != _first.shownTrack();
}

bool SecondSubtitles::select(std::int32_t position) {
    const auto all = tracks();
    const bool isOne = position >= 0 && static_cast<std::size_t>(position) < all.size();
    const auto track = isOne ? all[static_cast<std::size_t>(position)] : nullptr;
    if (track && !canShow(track))
        return false;
    show(track);
    if (_movie)
        _movie->setSecondTrack(track ? nameOf(*track) : QString());
    return true;
}

void SecondSubtitles::cycle(int direction) {
    const auto all = tracks();
    const auto count = static_cast<std::int32_t>(all.size());
    const auto found = std::ranges::find(all, _current);
    std::int32_t position = _current && found != all.end() ? static_cast<std::int32_t>(found - all.begin())
                            : direction > 0                ? -1
                                                           : count;
    do
        position += direction;
    while (position >= 0 && position < count && !canShow(all[static_cast<std::size_t>(position)]));
    select(position);
}

QString SecondSubtitles::currentInfoAsString() const {
    const auto all = tracks();
    const bool hasOthers = std::ranges::any_of(all, [this](const auto& track) { return canShow(track); });
    const QString info = _current    ? _current->title()
                         : hasOthers ? platform::localizedString(QStringLiteral("Off"))
                                     : platform::localizedString(QStringLiteral("None"));
    return platform::localizedFormat(QStringLiteral("Second subtitles: %@"), {info});
}

void SecondSubtitles::show(const std::shared_ptr<QVSubtitles>& track) {
    if (track == _current)
        return;
    _reading.reset();
    if (_current)
        _current->setSecond(false, nullptr);
    _current = track;
    if (track) {
        track->preload();
        track->setSecond(true, [this] { showCueOfNow(); });
        if (track->isLoading())
            _reading = _environment.loop.schedule(readingInterval, true, [this] {
                showCueOfNow();
                if (!_current || !_current->isLoading())
                    _reading.reset();
            });
    }
    showCueOfNow();
}

void SecondSubtitles::movieChanged(const std::shared_ptr<QVMovie>& movie) {
    show(nullptr);
    _movie = _scene.ownerOf(movie);
    restore();
}

/// What the user chose for this movie.
void SecondSubtitles::restore() {
    const QString name = _movie ? _movie->secondTrack() : QString();
    const auto all = tracks();
    const auto found = std::ranges::find_if(all, [&](const auto& track) { return nameOf(*track) == name; });
    if (found != all.end() && canShow(*found))
        show(*found);
}

void SecondSubtitles::showCueOfNow() {
    const std::shared_ptr<SubtitleOwner> movie = _scene.shownMovie();
    const auto cue = _current && movie ? _current->secondCueForTime(movie->time()) : nullptr;
    // A view is not made before its first cue: its fonts would hold up the movie's first picture.
    if (cue && !_view) {
        _view = _scene.createSecondTextView();
        if (_view)
            _view->orderFront();
    }
    if (_view)
        _view->setSubtitle(cue);
}

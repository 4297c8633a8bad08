// SPDX-License-Identifier: GPL-3.0-or-later
// The movie controller's commands for the tracks of sound.
#include "control/QVMovieController.h"

#include "context/FeedbackDisplay.h"
#include "platform/base/Localization.h"
#include "platform/base/Log.h"
#include "platform/window/WindowHost.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playback/TrackNames.h"

#include <algorithm>

using platform::MovieTrack;
using platform::MovieTracks;

namespace {

MovieTracks audioTracksOf(const std::shared_ptr<QVMovie>& movie) {
    return movie ? movie->audioTracks() : MovieTracks();
}

/// The position of a track among them, -1 for one that is not there.
std::ptrdiff_t positionOf(int id, const MovieTracks& tracks) {
    const auto found = std::ranges::find(tracks, id, &MovieTrack::id);
    return found == tracks.end() ? -1 : found - tracks.begin();
}

/// Of an item that is a title: no track has it, so that it cannot be chosen.
constexpr int noTrack = -1;

} // namespace

void QVMovieController::changeAudio(std::int32_t id, Feedback feedback) {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    if (!movie || positionOf(id, audioTracksOf(movie)) < 0)
        return;
    movie->setAudioTrack(id);
    if (feedback == Feedback::yes)
        sayAudio();
}

void QVMovieController::cycleAudio(std::int32_t direction, Feedback feedback) {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    const MovieTracks tracks = audioTracksOf(movie);
    const auto count = static_cast<std::ptrdiff_t>(tracks.size());
    if (count > 1) {
        const std::ptrdiff_t position = positionOf(movie->audioTrack(), tracks);
        const std::ptrdiff_t next = position < 0 ? 0 : (position + direction + count) % count;
        movie->setAudioTrack(tracks[static_cast<std::size_t>(next)].id);
    }
    if (feedback == Feedback::yes)
        sayAudio();
}

void QVMovieController::sayAudio() {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    const MovieTracks tracks = audioTracksOf(movie);
    const std::ptrdiff_t position = movie ? positionOf(movie->audioTrack(), tracks) : -1;
    if (position < 0) {
        post("Audio: %@", platform::localizedString(QStringLiteral("None")));
        return;
    }
    post("Audio: %@", platform::formatted(QStringLiteral("%@ (%d/%d)"),
                                          {TrackNames::nameOf(tracks[static_cast<std::size_t>(position)]),
                                           QString::number(position + 1), QString::number(tracks.size())}));
}

void QVMovieController::showTracks(std::int32_t, Feedback) {
    if (!_with.view.movie() || !_with.window.host())
        return;
    fillTracksMenu(_tracksMenu);
    _with.window.host()->showMenu(_tracksMenu);
}

void QVMovieController::fillTracksMenu(platform::Menu& menu) const {
    menu.removeAllItems();
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    const QString ofSound = QString::fromLatin1(changeAudioOperation);
    const auto title = [&](const char* text) {
        menu.addItem(platform::localizedString(QString::fromLatin1(text)), ofSound, noTrack);
    };
    title("Audio");
    for (const MovieTrack& track : audioTracksOf(movie))
        menu.addItem(TrackNames::nameOf(track), ofSound, track.id);
    menu.addSeparator();
    title("Subtitles");
    const QString ofSubtitles = QStringLiteral("changeSubtitles");
    if (!movie || movie->subtitles().empty())
        return;
    menu.addItem(platform::localizedString(QStringLiteral("Off")), ofSubtitles, -1);
    int index = 0;
    for (const auto& track : movie->subtitles())
        menu.addItem(track->title(), ofSubtitles, index++);
}

bool QVMovieController::validateAudio(platform::MenuItem& item) const {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    item.state = movie && item.tag > 0 && movie->audioTrack() == item.tag;
    return positionOf(item.tag, audioTracksOf(movie)) >= 0;
}

void QVMovieController::fillAudioMenu(platform::Menu& menu) {
    menu.removeAllItems();
    const MovieTracks tracks = audioTracksOf(_with.view.movie());
    for (const MovieTrack& track : tracks)
        menu.addItem(TrackNames::nameOf(track), QString::fromLatin1(changeAudioOperation), track.id);
    if (tracks.empty())
        menu.addItem(platform::localizedString(QStringLiteral("None")), QString::fromLatin1(changeAudioOperation), 0);
}

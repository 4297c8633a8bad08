// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CurrentTexts.h"

#include "context/QVAppContext.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "subtitles/QVSubtitlesController.h"

namespace {

/// The movie that the view shows, or none.
std::shared_ptr<QVMovie> shownMovie() {
    QVMovieView* view = gAppController ? gAppController->movieView() : nullptr;
    return view ? view->movie() : nullptr;
}

QVPlaylistController* playlist() {
    return gAppController ? gAppController->playlist() : nullptr;
}

} // namespace

std::int32_t CurrentTexts::timeInSeconds() const {
    const auto movie = shownMovie();
    return movie ? movie->timeInSeconds() : 0;
}

std::int32_t CurrentTexts::durationInSeconds() const {
    const auto movie = shownMovie();
    return movie ? movie->durationInSeconds() : 0;
}

QString CurrentTexts::currentMovieInfo() const {
    return playlist() ? playlist()->currentInfoAsString() : QString();
}

QString CurrentTexts::currentSubtitlesInfo() const {
    QVSubtitlesController* subtitles = gAppController ? gAppController->subtitles() : nullptr;
    return subtitles ? subtitles->currentInfoAsString() : QString();
}

QString CurrentTexts::loopingInfo() const {
    return playlist() ? playlist()->loopingInfoAsString() : QString();
}

QString CurrentTexts::volumeInfo() const {
    QVMovieView* view = gAppController ? gAppController->movieView() : nullptr;
    return view ? view->volumeInfoAsString() : QString();
}

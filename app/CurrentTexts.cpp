// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CurrentTexts.h"

#include "playback/Chapters.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "subtitles/QVSubtitlesController.h"

std::int32_t CurrentTexts::timeInSeconds() const {
    const auto movie = _view.movie();
    return movie ? movie->timeInSeconds() : 0;
}

std::int32_t CurrentTexts::durationInSeconds() const {
    const auto movie = _view.movie();
    return movie ? movie->durationInSeconds() : 0;
}

QString CurrentTexts::currentMovieInfo() const {
    const auto movie = _view.movie();
    const QString chapter =
        movie ? Chapters::text(movie->info().chapters, Chapters::positionAt(movie->info().chapters, movie->time()))
              : QString();
    const QString text = _playlist.currentInfoAsString();
    return chapter.isEmpty() ? text : text + u'\n' + chapter;
}

QString CurrentTexts::currentSubtitlesInfo() const {
    return _subtitles.currentInfoAsString();
}

QString CurrentTexts::loopingInfo() const {
    return _playlist.loopingInfoAsString();
}

QString CurrentTexts::volumeInfo() const {
    return _view.volumeInfoAsString();
}

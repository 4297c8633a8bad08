// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SubtitlesOverMovie.h"

#include "overlays/QVImageSubView.h"
#include "overlays/QVTextSubView.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"

std::unique_ptr<SubtitleView> SubtitlesOverMovie::createTextView() {
    return std::make_unique<QVTextSubView>(_environment, _window, _view);
}

std::unique_ptr<ImageSubtitleView> SubtitlesOverMovie::createImageView() {
    return std::make_unique<QVImageSubView>(_environment, _window, _view);
}

std::unique_ptr<SubtitleView> SubtitlesOverMovie::createSecondTextView() {
    return std::make_unique<QVTextSubView>(_environment, _window, _view, kQVSubtitlesOverlayStyle,
                                           QVTextSubView::Row::top);
}

std::shared_ptr<SubtitleOwner> SubtitlesOverMovie::ownerOf(const std::shared_ptr<QVMovie>& movie) {
    return movie;
}

std::shared_ptr<SubtitleOwner> SubtitlesOverMovie::shownMovie() {
    return _view.movie();
}

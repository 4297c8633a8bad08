// SPDX-License-Identifier: GPL-3.0-or-later
// The movie controller's commands for what comes from a network.
#include "control/QVMovieController.h"
#include "platform/base/Localization.h"
#include "platform/base/Log.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playback/StreamQuality.h"

using platform::MovieTrack;
using platform::MovieTracks;

void QVMovieController::changeQuality(std::int32_t id, Feedback feedback) {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    if (!movie)
        return;
    movie->setQuality(id);
    const MovieTracks offered = movie->qualities();
    const MovieTrack* const played = StreamQuality::find(offered, movie->quality());
    if (feedback == Feedback::yes && played)
        post("Quality: %@",
             platform::formatted(QStringLiteral("%@ (%d/%d)"),
                                 {StreamQuality::nameOf(*played), QString::number(played - offered.data() + 1),
                                  QString::number(offered.size())}));
}

void QVMovieController::nextQuality(std::int32_t, Feedback feedback) {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    const MovieTracks offered = movie ? movie->qualities() : MovieTracks();
    if (offered.empty()) {
        post("Only One Quality");
        return;
    }
    const MovieTrack* const played = StreamQuality::find(offered, movie->quality());
    const bool isLast = !played || played == &offered.back();
    changeQuality(isLast ? offered.front().id : (played + 1)->id, feedback);
}

bool QVMovieController::validateQuality(platform::MenuItem& item) const {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    item.state = movie && item.tag > 0 && movie->quality() == item.tag;
    return movie && StreamQuality::find(movie->qualities(), item.tag);
}

void QVMovieController::fillQualityMenu(platform::Menu& menu) {
    menu.removeAllItems();
    const QString operation = QString::fromLatin1(changeQualityOperation);
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    const MovieTracks offered = movie ? movie->qualities() : MovieTracks();
    for (const MovieTrack& track : offered)
        menu.addItem(StreamQuality::nameOf(track), operation, track.id);
    if (offered.empty())
        menu.addItem(platform::localizedString(QStringLiteral("Only One Quality")), operation, 0);
}

void QVMovieController::goLive(std::int32_t, Feedback) {
    if (!_with.view.behindLive()) {
        post("Not a Live Stream");
        return;
    }
    _with.view.goLive();
    post("Live");
}

bool QVMovieController::validateLive(platform::MenuItem&) const {
    return _with.view.behindLive().has_value();
}

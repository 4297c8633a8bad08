// SPDX-License-Identifier: GPL-3.0-or-later
// The playlist's movies that are opened when they are needed: the current one, and the one that follows it.
#include "playlist/QVPlaylistController.h"

#include "platform/base/RunLoop.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"
#include "playlist/OpeningReport.h"
#include "settings/Tracing.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* className = "QVPlaylistController";

} // namespace

void QVPlaylistController::showCurrent() {
    _currentOpening.reset();
    _aheadOpening.reset();
    _isCurrentAwaited = false;
    const std::shared_ptr<QVMovie> current = movie();
    _shown = current;
    sayWhatIsAwaited();
    reportSkipped();
    _environment.notifications.post(QVPlaylistMovieChangedNotification{current, _startTime});
    openAhead();
}

void QVPlaylistController::openCurrent() {
    _aheadOpening.reset();
    _isCurrentAwaited = true;
    _currentOpening = movie()->open([this](std::int16_t error) { currentOpened(error); });
    sayWhatIsAwaited();
}

void QVPlaylistController::currentOpened(std::int16_t error) {
    // Its completion is running.
    const std::unique_ptr<platform::MovieOpening> opening = std::move(_currentOpening);
    const std::shared_ptr<QVMovie> current = movie();
    if (!current->isOpened()) {
        logAlways("ERROR: %@: QT failed to open movie.", className);
        _skipped.append({current->url(), error});
        skipCurrent();
        return;
    }
    if (error != platform::movieError::none)
        logAlways("ERROR: %@: QT sticky error: %d.", className, error);
    if (error == platform::movieError::cannotPlay && _reports_error) {
        askForCurrent(current);
        return;
    }
    const bool plays = std::exchange(_playsWhenOpened, false);
    showCurrent();
    if (plays)
        play();
}

void QVPlaylistController::askForCurrent(const std::shared_ptr<QVMovie>& current) {
    report([this, current] {
        const bool isKept = _with.desktop.runAlert(OpeningReport::mayNotPlay({current->url()})) == 1;
        // Meanwhile the user may have gone on to another one.
        if (!_isCurrentAwaited || movie() != current)
            return;
        if (!isKept) {
            logAlways("ERROR: %@: Cancelled effort to open movie.", className);
            skipCurrent();
            return;
        }
        const bool plays = std::exchange(_playsWhenOpened, false);
        showCurrent();
        if (plays)
            play();
    });
}

/// The one that cannot be opened leaves the list; the next in the direction of the last step takes its place.
void QVPlaylistController::skipCurrent() {
    _isCurrentAwaited = false;
    const bool plays = std::exchange(_playsWhenOpened, false);
    const std::uint32_t gone = std::exchange(_index, NSNotFound);
    _playlist.erase(_playlist.begin() + gone);
    _environment.notifications.post(QVPlaylistChangedNotification{_playlist});
    const bool goesBack = _direction == Direction::back && gone > 0;
    const std::uint32_t next = goesBack ? gone - 1 : gone;
    if (next < count()) {
        setIndex(next);
        _direction = goesBack ? Direction::back : Direction::forth;
        if (plays)
            play();
        return;
    }
    // The movie before stays the current one at the list's end.
    const std::shared_ptr<QVMovie> shown = _shown.lock();
    _index = shown ? indexOfMovie(*shown) : NSNotFound;
    sayWhatIsAwaited();
    reportSkipped();
    if (_playlist.empty() && _additions.empty())
        report([this] { offerToOpenOthers({}, true, _reports_error); });
    else if (plays && _index < count())
        onPlaylistEnd();
}

void QVPlaylistController::reportSkipped() {
    const QList<OpeningFailure> skipped = std::exchange(_skipped, {});
    if (!skipped.isEmpty() && _reports_error)
        report([this, skipped] { _with.desktop.runAlert(OpeningReport::failed(skipped)); });
}

/// So that the next movie comes as quickly as one that was opened with the list.
void QVPlaylistController::openAhead() {
    const std::uint32_t next = _index + 1 < count() ? _index + 1 : 0;
    const std::shared_ptr<QVMovie> movie = movieAtIndex(next);
    if (!movie || movie->isOpened())
        return;
    // One that fails is tried again when it is reached, and reported then.
    _aheadOpening = movie->open([](std::int16_t) {});
}

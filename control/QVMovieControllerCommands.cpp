// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands do.
#include "control/QVMovieController.h"

#include "context/MainWindow.h"
#include "context/QVAppContext.h"
#include "control/ApplicationServices.h"
#include "control/FastMotion.h"
#include "control/ScreenWalk.h"
#include "control/VolumeSteps.h"
#include "overlays/QVFeedbackOverlay.h"
#include "platform/base/Localization.h"
#include "platform/desktop/Desktop.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "settings/QVUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitlesController.h"

using platform::localizedFormat;

namespace {

constexpr const char* className = "QVMovieController";

/// The window leaves this much after the confirmation stands in full, so that it is read.
constexpr double screenSwitchMargin = 0.1;

QVFeedbackOverlay& feedbackOverlay() {
    return QVFeedbackOverlay::sharedFeedbackOverlay();
}

void postFormat(const char* format, const QString& argument) {
    feedbackOverlay().postFeedback(localizedFormat(QString::fromUtf8(format), {argument}));
}

/// How long a confirmation takes to be read.
double readingTime() {
    return feedbackOverlay().fadingInInterval() + feedbackOverlay().fadingDelayInterval();
}

QVPlaylistController* currentPlaylist() {
    return gAppController ? gAppController->playlist() : nullptr;
}

QVSubtitlesController* currentSubtitles() {
    return gAppController ? gAppController->subtitles() : nullptr;
}

} // namespace

// Playing, and how fast

void QVMovieController::startStop(std::int32_t, Feedback feedback) {
    if (!_movieView)
        return;
    if (!_movieView->isPlaying()) {
        _movieView->start();
        if (gAppController)
            gAppController->scheduleCursorHide();
    } else if (_movieView->rate() == 1.0F) {
        _movieView->stop();
    } else {
        restorePlayback();
        if (gAppController)
            gAppController->scheduleCursorHide();
    }
    if (feedback == Feedback::yes)
        post(_movieView->isPlaying() ? "Movie: Play" : "Movie: Pause");
}

void QVMovieController::normalSpeed(std::int32_t, Feedback) {
    restorePlayback();
}

void QVMovieController::restorePlayback() {
    if (!_movieView)
        return;
    _movieView->setRate(1.0F);
    trace("%@: Restoring normal playback.", className);
    setForceMuted(false);
}

void QVMovieController::muteForFastMotion() {
    // Fast sound is noise. It stays as the user has it where it is off already.
    if (!_movieView->isMuted())
        setForceMuted(true);
}

void QVMovieController::fastForward(std::int32_t, Feedback feedback) {
    if (!_movieView)
        return;
    const float rate = fastForwardRate(_movieView->rate());
    const QString shown = QString::number(static_cast<int>(rate));
    muteForFastMotion();
    if (feedback == Feedback::yes)
        postFormat("Fast Forward x%d", shown);
    _movieView->setRate(rate);
    trace("%@: Fast Forward with rate: x%d", className, shown);
}

void QVMovieController::fastRewind(std::int32_t, Feedback feedback) {
    if (!_movieView)
        return;
    const float rate = fastRewindRate(_movieView->rate(), _movieView->time() <= 0);
    const QString shown = QString::number(static_cast<int>(-rate));
    muteForFastMotion();
    if (feedback == Feedback::yes)
        postFormat("Fast Rewind x%d", shown);
    _movieView->setRate(rate);
    trace("%@: Fast Rewind with rate: x%d", className, shown);
}

void QVMovieController::fastForwardRewind(std::int32_t direction, Feedback feedback) {
    if (!isMoviePlaying())
        step(direction, feedback);
    else if (direction == 1)
        fastForward(direction, feedback);
    else if (direction == -1)
        fastRewind(direction, feedback);
}

// Moving in the movie, and in the list

void QVMovieController::step(std::int32_t direction, Feedback) {
    if (direction == 1) {
        if (_movieView)
            _movieView->stepForward();
        post("Step Forward");
    } else if (direction == -1) {
        if (_movieView)
            _movieView->stepBack();
        post("Step Backward");
    }
}

void QVMovieController::jump(std::int32_t direction, Feedback feedback) {
    const std::int32_t interval = QVUserDefaults::standardUserDefaults().integerForKey(kQVJumpInterval);
    if (_movieView)
        _movieView->jump(direction, static_cast<double>(interval));
    if (feedback == Feedback::yes)
        postFormat(direction == -1 ? "Jump Backward %d s" : "Jump Forward %d s", QString::number(interval));
}

void QVMovieController::beginningEnd(std::int32_t direction, Feedback) {
    if (direction == 1) {
        post("Movie: End");
        if (_movieView)
            _movieView->gotoEnd();
    } else if (direction == -1) {
        post("Movie: Beginning");
        if (_movieView)
            _movieView->gotoBeginning();
    }
}

void QVMovieController::playPrevNext(std::int32_t direction, Feedback) {
    QVPlaylistController* playlist = currentPlaylist();
    if (!playlist)
        return;
    if (direction == 1) {
        playlist->playNext();
        postFormat("Next: %@", playlist->currentInfoAsString());
    } else if (direction == -1) {
        playlist->playPrevious();
        postFormat("Previous: %@", playlist->currentInfoAsString());
    }
}

void QVMovieController::changeMovie(std::int32_t position, Feedback) {
    if (QVPlaylistController* playlist = currentPlaylist())
        playlist->play(static_cast<std::uint32_t>(position));
}

void QVMovieController::changeLooping(std::int32_t mode, Feedback) {
    if (QVPlaylistController* playlist = currentPlaylist())
        playlist->setLooping(mode);
}

void QVMovieController::toggleLooping(std::int32_t direction, Feedback feedback) {
    QVPlaylistController* playlist = currentPlaylist();
    if (!playlist)
        return;
    playlist->toggleLooping(direction);
    if (feedback == Feedback::yes)
        feedbackOverlay().postFeedback(playlist->loopingInfoAsString());
}

// Sound

void QVMovieController::changeVolume(std::int32_t control, Feedback feedback) {
    if (!_movieView)
        return;
    if (control == volumeControl::mute) {
        _movieView->setMuted(!_movieView->isMuted());
        if (feedback == Feedback::yes)
            feedbackOverlay().postFeedback(_movieView->mutedInfoAsString());
        return;
    }
    if (_movieView->isMuted())
        _movieView->setMuted(false);
    else
        _movieView->setVolume(steppedVolume(control, _movieView->volume()));
    if (feedback == Feedback::yes)
        feedbackOverlay().postFeedback(_movieView->volumeInfoAsString());
}

// The picture, and what is shown over it

void QVMovieController::changeSize(std::int32_t code, Feedback) {
    if (_movieView)
        _movieView->setMovieSize(code, QVMovieView::Recalculation::ifChanged);
}

void QVMovieController::toggleController(std::int32_t, Feedback feedback) {
    if (!_movieView)
        return;
    _movieView->toggleController();
    if (feedback == Feedback::yes)
        post(_movieView->isControllerVisible() ? "Controller: On" : "Controller: Off");
}

void QVMovieController::cycleDisplays(std::int32_t direction, Feedback) {
    _application.cycleDisplays(direction);
}

void QVMovieController::changeSubtitles(std::int32_t position, Feedback) {
    if (QVSubtitlesController* subtitles = currentSubtitles())
        subtitles->setCurrenWithIndex(position);
}

void QVMovieController::cycleSubtitles(std::int32_t direction, Feedback feedback) {
    QVSubtitlesController* subtitles = currentSubtitles();
    if (!subtitles)
        return;
    subtitles->cycleSubtitles(direction);
    if (feedback == Feedback::yes)
        feedbackOverlay().postFeedback(subtitles->currentInfoAsString());
}

// Screens, the application, the computer

void QVMovieController::switchScreen(std::int32_t direction, Feedback feedback) {
    const platform::Window* window = gAppController ? gAppController->window() : nullptr;
    const MainWindow* mainWindow = gAppController ? gAppController->mainWindow() : nullptr;
    if (!window || !mainWindow)
        return;
    const std::vector<platform::Screen> screens = platform::Desktop::shared().screens();
    const auto found = nextScreen(screens, screenHolding(screens, window->frame()), direction);
    if (!found)
        return;
    QVUserDefaults::standardUserDefaults().setInteger(static_cast<std::int32_t>(*found), kQVMainWindowScreen);

    const double delay = feedback == Feedback::yes ? readingTime() + screenSwitchMargin : 0.0;
    const double fading = mainWindow->fadingOutInterval();
    performLater(delay, [this, fading, screen = screens[*found]] {
        if (MainWindow* leaving = gAppController ? gAppController->mainWindow() : nullptr)
            leaving->hide();
        performLater(fading, [screen] {
            if (MainWindow* adopting = gAppController ? gAppController->mainWindow() : nullptr)
                adopting->adoptScreen(screen);
        });
    });
    if (feedback == Feedback::yes)
        post(direction == 1 ? "Screen: Next" : "Screen: Previous");
}

void QVMovieController::doOpen(std::int32_t, Feedback) {
    _application.doOpen();
}

void QVMovieController::showHelp(std::int32_t, Feedback) {
    _application.showHelp();
}

void QVMovieController::quit(std::int32_t, Feedback feedback) {
    performLater(feedback == Feedback::yes ? readingTime() : 0.0, [] { platform::Desktop::shared().terminate(); });
}

void QVMovieController::sleep(std::int32_t, Feedback) {
    performLater(readingTime(), [] { platform::Desktop::shared().sleep(); });
}

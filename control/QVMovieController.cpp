// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/QVMovieController.h"

#include "context/MainWindow.h"
#include "context/Notifications.h"
#include "context/QVAppContext.h"
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

#include <utility>

using platform::localizedFormat;
using platform::localizedString;

namespace {

constexpr const char* className = "QVMovieController";

/// The window leaves this much after the confirmation stands in full, so that it is read.
constexpr double screenSwitchMargin = 0.1;

QVFeedbackOverlay& feedbackOverlay() {
    return QVFeedbackOverlay::sharedFeedbackOverlay();
}

void post(const char* key) {
    feedbackOverlay().postFeedback(localizedString(QString::fromUtf8(key)));
}

void postFormat(const char* format, const QString& argument) {
    feedbackOverlay().postFeedback(localizedFormat(QString::fromUtf8(format), {argument}));
}

/// How long a confirmation takes to be read.
double readingTime() {
    return feedbackOverlay().fadingInInterval() + feedbackOverlay().fadingDelayInterval();
}

} // namespace

QVMovieController::QVMovieController()
    : _movieView(gAppController ? gAppController->movieView() : nullptr) {
    auto& center = platform::NotificationCenter::defaultCenter();
    _movieChanged = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { currentMovieChanged(notification); });
    _playlistChanged = center.observe<QVPlaylistChangedNotification>(
        [this](const auto& notification) { playlistChanged(notification); });
}

QVMovieController::~QVMovieController() {
    stopRepeatingAction();
}

void QVMovieController::performAction(std::int32_t action, Feedback feedback) {
    switch (action) {
    case action::playPause:
        return _startStop(feedback);
    case action::fastRewind:
        return _fastRewind(feedback);
    case action::fastForward:
        return _fastForward(feedback);
    case action::stepBackward:
        return _step(-1);
    case action::stepForward:
        return _step(1);
    case action::jumpBackward:
        return _jump(-1, feedback);
    case action::jumpForward:
        return _jump(1, feedback);
    case action::volumeUp:
        return _setVolumeCtrl(volumeControl::up, feedback);
    case action::volumeDown:
        return _setVolumeCtrl(volumeControl::down, feedback);
    case action::nextSubtitles:
        return _cycleSubtitles(1, feedback);
    case action::previousSubtitles:
        return _cycleSubtitles(-1, feedback);
    case action::nextScreen:
        return _switchScreen(1, feedback);
    case action::previousScreen:
        return _switchScreen(-1, feedback);
    case action::sleep:
        return _sleep(feedback);
    case action::quit:
        return _quit(feedback);
    default:
        return;
    }
}

void QVMovieController::startRepeatingAction(std::int32_t action, double interval, Feedback feedback) {
    _repeatingAction = action;
    _repeatingActionFeedback = feedback;
    _repeatingActionTimer = platform::RunLoop::main().schedule(interval, true, [this] { repeatingActionTimer(); });
    repeatingActionTimer();
}

void QVMovieController::stopRepeatingAction() {
    _repeatingActionTimer.reset();
}

void QVMovieController::repeatingActionTimer() {
    performAction(_repeatingAction, _repeatingActionFeedback);
}

void QVMovieController::setForceMuted(bool muted) {
    if (muted == _forceMuted)
        return;
    if (_movieView)
        _movieView->setMuted(muted);
    _forceMuted = muted;
}

bool QVMovieController::isMoviePlaying() const {
    return _movieView && _movieView->isPlaying();
}

void QVMovieController::_startStop(Feedback feedback) {
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

void QVMovieController::_fastForward(Feedback feedback) {
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

void QVMovieController::_fastRewind(Feedback feedback) {
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

void QVMovieController::_setVolumeCtrl(std::int32_t control, Feedback feedback) {
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

void QVMovieController::_jump(std::int32_t direction, Feedback feedback) {
    const std::int32_t interval = QVUserDefaults::standardUserDefaults().integerForKey(kQVJumpInterval);
    if (_movieView)
        _movieView->jump(direction, static_cast<double>(interval));
    if (feedback == Feedback::yes)
        postFormat(direction == -1 ? "Jump Backward %d s" : "Jump Forward %d s", QString::number(interval));
}

void QVMovieController::_step(std::int32_t direction) {
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

void QVMovieController::_beginEnd(std::int32_t direction) {
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

void QVMovieController::_prevNext(std::int32_t direction) {
    QVPlaylistController* playlist = gAppController ? gAppController->playlist() : nullptr;
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

void QVMovieController::_cycleSubtitles(std::int32_t direction, Feedback feedback) {
    QVSubtitlesController* subtitles = gAppController ? gAppController->subtitles() : nullptr;
    if (!subtitles)
        return;
    subtitles->cycleSubtitles(direction);
    if (feedback == Feedback::yes)
        feedbackOverlay().postFeedback(subtitles->currentInfoAsString());
}

void QVMovieController::_switchScreen(std::int32_t direction, Feedback feedback) {
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

void QVMovieController::_quit(Feedback feedback) {
    performLater(feedback == Feedback::yes ? readingTime() : 0.0, [] { platform::Desktop::shared().terminate(); });
    if (feedback == Feedback::yes)
        post("Quit");
}

void QVMovieController::_sleep(Feedback feedback) {
    performLater(readingTime(), [] { platform::Desktop::shared().sleep(); });
    if (feedback == Feedback::yes)
        post("Sleep");
}

void QVMovieController::performLater(double delay, std::function<void()> work) {
    std::erase_if(_delayedWork, [](const auto& timer) { return !timer->isValid(); });
    _delayedWork.push_back(platform::RunLoop::main().schedule(delay, false, std::move(work)));
}

void QVMovieController::windowDidBecomeKey(platform::Window& window) {
    if (gAppController)
        gAppController->windowDidBecomeKey(window);
}

void QVMovieController::windowDidResignKey(platform::Window& window) {
    if (gAppController)
        gAppController->windowDidResignKey(window);
}

void QVMovieController::windowDidResize(platform::Window& window) {
    if (!gAppController || gAppController->window() != &window)
        return;
    if (MainWindow* mainWindow = gAppController->mainWindow()) {
        mainWindow->removeTrackingRects();
        mainWindow->addTrackingRects();
    }
    if (_movieView)
        _movieView->setMovieSize(_movieView->movieSize(), QVMovieView::Recalculation::forced);
}

bool QVMovieController::windowShouldClose(platform::Window&) {
    // Closing the window ends the program, on the road that lets the window fade and the state be saved.
    performAction(action::quit, Feedback::no);
    return false;
}

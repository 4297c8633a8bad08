// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands do.
#include "control/QVMovieController.h"

#include "context/FeedbackDisplay.h"
#include "context/MainWindow.h"
#include "context/PointerHiding.h"
#include "control/ApplicationServices.h"
#include "control/FastMotion.h"
#include "control/ScreenWalk.h"
#include "control/VolumeSteps.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/Menu.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitlesController.h"

#include <iterator>

namespace {

constexpr const char* className = "QVMovieController";

/// The window leaves this much after the confirmation stands in full, so that it is read.
constexpr double screenSwitchMargin = 0.1;

/// By the numbers of ControllerOverPicture.
constexpr const char* waysOfBar[] = {"Bar over the Picture: Off", "Bar over the Picture: Always",
                                     "Bar over the Picture: When the Pointer Moves"};

/// What no way is counts as off.
std::size_t wayOfBar(const platform::UserDefaults& settings) {
    const std::int32_t way = settings.integerForKey(kQVControllerOverPicture);
    return way >= 0 && static_cast<std::size_t>(way) < std::size(waysOfBar) ? static_cast<std::size_t>(way) : 0;
}

} // namespace

// Playing, and how fast

void QVMovieController::startStop(std::int32_t, Feedback feedback) {
    if (!_with.view.isPlaying()) {
        _with.view.start();
        _with.pointer.scheduleCursorHide();
    } else if (_with.view.rate() == 1.0F) {
        _with.view.stop();
    } else {
        restorePlayback();
        _with.pointer.scheduleCursorHide();
    }
    if (feedback == Feedback::yes)
        post(_with.view.isPlaying() ? "Movie: Play" : "Movie: Pause");
}

void QVMovieController::stop(std::int32_t, Feedback) {
    _with.view.stop();
    _with.view.gotoBeginning();
}

void QVMovieController::normalSpeed(std::int32_t, Feedback) {
    restorePlayback();
}

void QVMovieController::restorePlayback() {
    _with.view.setRate(1.0F);
    trace("%@: Restoring normal playback.", className);
    setForceMuted(false);
}

void QVMovieController::muteForFastMotion() {
    // Fast sound is noise. It stays as the user has it where it is off already.
    if (!_with.view.isMuted())
        setForceMuted(true);
}

void QVMovieController::fastForward(std::int32_t, Feedback feedback) {
    const float rate = fastForwardRate(_with.view.rate());
    const QString shown = QString::number(static_cast<int>(rate));
    muteForFastMotion();
    if (feedback == Feedback::yes)
        post("Fast Forward x%d", shown);
    _with.view.setRate(rate);
    trace("%@: Fast Forward with rate: x%d", className, shown);
}

void QVMovieController::fastRewind(std::int32_t, Feedback feedback) {
    const float rate = fastRewindRate(_with.view.rate(), _with.view.time() <= 0);
    const QString shown = QString::number(static_cast<int>(-rate));
    muteForFastMotion();
    if (feedback == Feedback::yes)
        post("Fast Rewind x%d", shown);
    _with.view.setRate(rate);
    trace("%@: Fast Rewind with rate: x%d", className, shown);
}

void QVMovieController::fastForwardRewind(std::int32_t direction, Feedback feedback) {
    if (!_with.view.isPlaying())
        step(direction, feedback);
    else if (direction == 1)
        fastForward(direction, feedback);
    else if (direction == -1)
        fastRewind(direction, feedback);
}

// Moving in the movie, and in the list

void QVMovieController::step(std::int32_t direction, Feedback) {
    if (direction == 1) {
        _with.view.stepForward();
        post("Step Forward");
    } else if (direction == -1) {
        _with.view.stepBack();
        post("Step Backward");
    }
}

void QVMovieController::jump(std::int32_t direction, Feedback feedback) {
    const std::int32_t interval = _environment.settings.integerForKey(kQVJumpInterval);
    _with.view.jump(direction, static_cast<double>(interval));
    if (feedback == Feedback::yes)
        post(direction == -1 ? "Jump Backward %d s" : "Jump Forward %d s", QString::number(interval));
}

void QVMovieController::beginningEnd(std::int32_t direction, Feedback) {
    if (direction == 1) {
        post("Movie: End");
        _with.view.gotoEnd();
    } else if (direction == -1) {
        post("Movie: Beginning");
        _with.view.gotoBeginning();
    }
}

void QVMovieController::playPrevNext(std::int32_t direction, Feedback) {
    if (direction == 1) {
        _with.playlist.playNext();
        post("Next: %@", _with.playlist.currentInfoAsString());
    } else if (direction == -1) {
        _with.playlist.playPrevious();
        post("Previous: %@", _with.playlist.currentInfoAsString());
    }
}

void QVMovieController::changeMovie(std::int32_t position, Feedback) {
    _with.playlist.play(static_cast<std::uint32_t>(position));
}

void QVMovieController::changeLooping(std::int32_t mode, Feedback) {
    _with.playlist.setLooping(mode);
}

void QVMovieController::toggleLooping(std::int32_t direction, Feedback feedback) {
    _with.playlist.toggleLooping(direction);
    if (feedback == Feedback::yes)
        _with.feedback.postFeedback(_with.playlist.loopingInfoAsString());
}

// Sound

void QVMovieController::changeVolume(std::int32_t control, Feedback feedback) {
    if (control == volumeControl::mute) {
        _with.view.setMuted(!_with.view.isMuted());
        if (feedback == Feedback::yes)
            _with.feedback.postFeedback(_with.view.mutedInfoAsString());
        return;
    }
    if (_with.view.isMuted())
        _with.view.setMuted(false);
    else
        _with.view.setVolume(steppedVolume(control, _with.view.volume()));
    if (feedback == Feedback::yes)
        _with.feedback.postFeedback(_with.view.volumeInfoAsString());
}

// The picture, and what is shown over it

void QVMovieController::changeSize(std::int32_t code, Feedback) {
    _with.view.setMovieSize(code, QVMovieView::Recalculation::ifChanged);
}

void QVMovieController::toggleController(std::int32_t, Feedback feedback) {
    _with.view.toggleController();
    if (feedback == Feedback::yes)
        post(_with.view.isControllerVisible() ? "Controller: On" : "Controller: Off");
}

void QVMovieController::nextControllerOverPicture(std::int32_t, Feedback feedback) {
    const std::size_t next = (wayOfBar(_environment.settings) + 1) % std::size(waysOfBar);
    _environment.settings.setInteger(static_cast<std::int32_t>(next), kQVControllerOverPicture);
    _environment.notifications.post(QVPreferencesChangedNotification{kQVControllerOverPicture, {}});
    if (feedback == Feedback::yes)
        post(waysOfBar[next]);
}

bool QVMovieController::validateControllerOverPicture(platform::MenuItem& item) const {
    item.title = platform::localizedString(QString::fromLatin1(waysOfBar[wayOfBar(_environment.settings)]));
    return true;
}

void QVMovieController::cycleDisplays(std::int32_t direction, Feedback) {
    _with.application.cycleDisplays(direction);
}

// Screens, the application, the computer

void QVMovieController::switchScreen(std::int32_t direction, Feedback feedback) {
    const std::vector<platform::Screen> screens = _with.desktop.screens();
    const auto found = nextScreen(screens, screenHolding(screens, _with.window.frame()), direction);
    if (!found)
        return;
    _environment.settings.setInteger(static_cast<std::int32_t>(*found), kQVMainWindowScreen);

    const double delay = feedback == Feedback::yes ? _with.feedback.readingTime() + screenSwitchMargin : 0.0;
    performLater(delay, [this, fading = _with.mainWindow.fadingOutInterval(), screen = screens[*found]] {
        _with.mainWindow.hide();
        performLater(fading, [this, screen] { _with.mainWindow.adoptScreen(screen); });
    });
    if (feedback == Feedback::yes)
        post(direction == 1 ? "Screen: Next" : "Screen: Previous");
}

void QVMovieController::doOpen(std::int32_t, Feedback) {
    _with.application.doOpen();
}

void QVMovieController::doOpenFolder(std::int32_t, Feedback) {
    _with.application.doOpenFolder();
}

void QVMovieController::doOpenURL(std::int32_t type, Feedback) {
    _with.application.doOpenURL(type);
}

void QVMovieController::openRecent(std::int32_t position, Feedback) {
    _with.application.openRecent(position);
}

void QVMovieController::clearRecent(std::int32_t, Feedback) {
    _with.application.clearRecent();
}

void QVMovieController::savePlaylist(std::int32_t, Feedback) {
    _with.application.savePlaylist();
}

void QVMovieController::showHelp(std::int32_t, Feedback) {
    _with.application.showHelp();
}

void QVMovieController::showPlaylist(std::int32_t, Feedback) {
    _with.application.showPlaylist();
}

void QVMovieController::showInformation(std::int32_t, Feedback) {
    _with.application.showInformation();
}

void QVMovieController::showPreferences(std::int32_t, Feedback) {
    _with.application.showPreferences();
}

void QVMovieController::donate(std::int32_t, Feedback) {
    _with.application.donate();
}

void QVMovieController::quit(std::int32_t, Feedback feedback) {
    performLater(feedback == Feedback::yes ? _with.feedback.readingTime() : 0.0, [this] { _with.desktop.terminate(); });
}

void QVMovieController::sleep(std::int32_t, Feedback) {
    performLater(_with.feedback.readingTime(), [this] { _with.desktop.power().sleep(); });
}

/// After its name could be read, as with sleep.
void QVMovieController::power(std::int32_t command, Feedback) {
    performLater(_with.feedback.readingTime(), [this, command] {
        platform::Power& computer = _with.desktop.power();
        switch (static_cast<platform::PowerCommand>(command)) {
        case platform::PowerCommand::sleep:
            computer.sleep();
            break;
        case platform::PowerCommand::restart:
            computer.restart();
            break;
        case platform::PowerCommand::shutDown:
            computer.shutDown();
            break;
        case platform::PowerCommand::logOut:
            computer.logOut();
            break;
        }
    });
}

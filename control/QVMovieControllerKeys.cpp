// SPDX-License-Identifier: GPL-3.0-or-later
// The movie controller's keys: what the keyboard map asked for, carried out.
#include "control/QVMovieController.h"

#include "context/QVAppContext.h"
#include "control/KeyboardMap.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "platform/base/Localization.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "settings/Tracing.h"

using Kind = KeyCommand::Kind;

namespace {

/// Seconds between the steps of a held volume key.
constexpr double volumeRepeatInterval = 0.2;

void post(std::string_view key) {
    if (!key.empty())
        QVFeedbackOverlay::sharedFeedbackOverlay().postFeedback(
            platform::localizedString(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()))));
}

} // namespace

bool QVMovieController::processKeyboardEvent(const platform::KeyEvent& event) {
    const double now = platform::RunLoop::main().now();
    if (event.type == platform::KeyEvent::Type::down)
        trace("%@: Key: 0x%04X, Char: \"%@\", Mods: %d, Repeat: %d", "QVMovieController",
              QString::number(event.keyCode, 16).toUpper().rightJustified(4, u'0'),
              event.charactersIgnoringModifiers.toLower(), event.modifierFlags, event.isRepeat);
    return carryOut(keyCommand(event, {.isPlaying = isMoviePlaying(),
                                       .rate = _movieView ? _movieView->rate() : 0.0F,
                                       .now = now,
                                       .lastRewind = _lastRewind,
                                       .lastForward = _lastForward}));
}

bool QVMovieController::carryOut(const KeyCommand& command) {
    switch (command.kind) {
    case Kind::passOn:
        return false;
    case Kind::consume:
        break;
    case Kind::stopRepeating:
        stopRepeatingAction();
        break;
    case Kind::movieSize:
        if (_movieView)
            _movieView->setMovieSize(command.argument, QVMovieView::Recalculation::ifChanged);
        post(command.feedback);
        break;
    case Kind::cycleSubtitles:
        _cycleSubtitles(command.argument, Feedback::yes);
        break;
    case Kind::cycleDisplays:
        cycleDisplays(command.argument);
        break;
    case Kind::toggleLooping:
        toggleLooping(command.argument);
        break;
    case Kind::toggleController:
        toggleController();
        break;
    case Kind::volumeControl:
        _setVolumeCtrl(command.argument, Feedback::yes);
        break;
    case Kind::performAction:
        performAction(command.argument, Feedback::yes);
        break;
    case Kind::repeatAction:
        startRepeatingAction(command.argument, volumeRepeatInterval, Feedback::yes);
        break;
    case Kind::restorePlayback:
        post(command.feedback);
        restorePlayback();
        break;
    case Kind::playPrevious:
        _prevNext(-1);
        break;
    case Kind::playNext:
        _prevNext(1);
        break;
    case Kind::gotoBeginning:
        _beginEnd(-1);
        break;
    case Kind::gotoEnd:
        _beginEnd(1);
        break;
    case Kind::fastRewind:
        _fastRewind(Feedback::yes);
        _lastRewind = platform::RunLoop::main().now();
        break;
    case Kind::fastForward:
        _fastForward(Feedback::yes);
        _lastForward = platform::RunLoop::main().now();
        break;
    }
    return true;
}

void QVMovieController::toggleController() {
    if (!_movieView)
        return;
    _movieView->toggleController();
    post(_movieView->isControllerVisible() ? "Controller: On" : "Controller: Off");
}

void QVMovieController::cycleDisplays(std::int32_t direction) {
    QVOSDOverlay::sharedOSDOverlay().cycleDisplays(direction);
}

void QVMovieController::toggleLooping(std::int32_t direction) {
    QVPlaylistController* playlist = gAppController ? gAppController->playlist() : nullptr;
    if (!playlist)
        return;
    playlist->toggleLooping(direction);
    QVFeedbackOverlay::sharedFeedbackOverlay().postFeedback(playlist->loopingInfoAsString());
}

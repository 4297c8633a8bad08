// SPDX-License-Identifier: GPL-3.0-or-later
// How commands reach the movie controller: by code, by key, repeated, and what it does as the window's delegate.
#include "control/QVMovieController.h"

#include "context/FeedbackDisplay.h"
#include "context/MainWindow.h"
#include "context/Notifications.h"
#include "control/ApplicationServices.h"
#include "control/CurrentCommands.h"
#include "platform/base/Localization.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <utility>

using Kind = KeyMeaning::Kind;

namespace {

/// Seconds between the steps of a held key whose action repeats by itself.
constexpr double repeatInterval = 0.2;

} // namespace

QVMovieController::QVMovieController(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators)
    , _keyboardMap(collaborators.commands.all())
    , _sync(collaborators.view, collaborators.subtitles) {
    _movieChanged = _environment.notifications.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { currentMovieChanged(notification); });
    // After the subtitles controller, which was made before: the movie has its tracks of the new mode.
    _preferenceChanged =
        _environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto& changed) {
            if (changed.key == kQVSubtitlesRepair)
                listSubtitles(_listedMovie.lock());
            else if (changed.key == kQVPreferredLanguages && _with.view.movie())
                _with.view.movie()->selectTracks();
            else if (changed.key == kQVCommandKeys)
                _keyboardMap = KeyboardMap(_with.commands.all());
        });
    _subtitlesLoaded = _environment.notifications.observe<QVSubtitlesLoadedNotification>([this](const auto& loaded) {
        if (loaded.current == _chosenSubtitles.lock())
            sayLosses();
    });
    _subtitlesChanged =
        _environment.notifications.observe<QVSubtitlesChangedNotification>([this](const auto&) { subtitlesChanged(); });
    _tracksChanged = _environment.notifications.observe<QVMovieTracksChangedNotification>([this](const auto& changed) {
        if (changed.movie == _listedMovie.lock())
            listSubtitles(changed.movie);
    });
    _with.playlistMenu.setFiller([this](platform::Menu& menu) { fillPlaylistMenu(menu); });
}

QVMovieController::~QVMovieController() {
    _with.playlistMenu.setFiller(nullptr);
    stopRepeatingAction();
}

void QVMovieController::performAction(std::int32_t action, Feedback feedback) {
    if (const Command* command = commandWithAction(action))
        perform(*command, command->argument, feedback);
}

void QVMovieController::performCommand(std::string_view name, Feedback feedback) {
    if (const Command* command = commandWithName(name))
        perform(*command, command->argument, feedback);
}

void QVMovieController::perform(const Command& command, std::int32_t argument, Feedback feedback) {
    if (command.operation.perform)
        (this->*command.operation.perform)(argument, feedback);
    if (feedback == Feedback::yes && !command.confirmation.empty())
        post(command.confirmation);
}

bool QVMovieController::processKeyboardEvent(const platform::KeyEvent& event) {
    if (event.type == platform::KeyEvent::Type::down)
        trace("%@: Key: 0x%04X, Char: \"%@\", Mods: %d, Repeat: %d", "QVMovieController",
              QString::number(event.keyCode, 16).toUpper().rightJustified(4, u'0'),
              event.charactersIgnoringModifiers.toLower(), event.modifierFlags, event.isRepeat);
    const double now = _environment.loop.now();
    const KeyMeaning meaning = _keyboardMap.meaning(
        event, {.isPlaying = _with.view.isPlaying(), .rate = _with.view.rate(), .now = now, .paced = _pacedTimes});
    switch (meaning.kind) {
    case Kind::passOn:
        return false;
    case Kind::consume:
        break;
    case Kind::stopRepeating:
        stopRepeatingAction();
        break;
    case Kind::perform:
        perform(*meaning.command, meaning.command->argument, Feedback::yes);
        break;
    case Kind::performPaced:
        perform(*meaning.command, meaning.command->argument, Feedback::yes);
        _pacedTimes[meaning.command] = now;
        break;
    case Kind::repeat:
        startRepeatingAction(meaning.command->action, repeatInterval, Feedback::yes);
        break;
    }
    return true;
}

void QVMovieController::processMouseGesture(MouseGesture gesture) {
    if (const Command* command = commandWithGesture(gesture))
        perform(*command, command->argument, Feedback::yes);
}

void QVMovieController::startRepeatingAction(std::int32_t action, double interval, Feedback feedback) {
    _repeatingAction = action;
    _repeatingActionFeedback = feedback;
    _repeatingActionTimer = _environment.loop.schedule(interval, true, [this] { repeatingActionTimer(); });
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
    _with.view.setMuted(muted);
    _forceMuted = muted;
}

void QVMovieController::post(std::string_view key) {
    _with.feedback.postFeedback(platform::localizedString(QString::fromUtf8(key)));
}

void QVMovieController::post(std::string_view format, const QString& argument) {
    _with.feedback.postFeedback(platform::localizedFormat(QString::fromUtf8(format), {argument}));
}

void QVMovieController::performLater(double delay, std::function<void()> work) {
    std::erase_if(_delayedWork, [](const auto& timer) { return !timer->isValid(); });
    _delayedWork.push_back(_environment.loop.schedule(delay, false, std::move(work)));
}

void QVMovieController::windowDidBecomeKey(platform::Window& window) {
    _with.application.windowDidBecomeKey(window);
}

void QVMovieController::windowDidResignKey(platform::Window& window) {
    stopRepeatingAction();
    _with.application.windowDidResignKey(window);
}

void QVMovieController::windowDidResize(platform::Window& window) {
    if (&window != &_with.window)
        return;
    _with.mainWindow.removeTrackingRects();
    _with.mainWindow.addTrackingRects();
    _with.view.setMovieSize(_with.view.movieSize(), QVMovieView::Recalculation::forced);
}

bool QVMovieController::windowShouldClose(platform::Window&) {
    // Closing the window ends the program by the call that lets the window fade and the state be saved.
    performAction(action::quit, Feedback::no);
    return false;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// How a remote's buttons reach the movie controller.
#include "control/QVMovieController.h"

#include "control/RemoteButtons.h"
#include "playback/QVMovieView.h"
#include "settings/Tracing.h"

namespace {

constexpr const char* className = "QVMovieController";

} // namespace

void QVMovieController::appleRemoteButton(std::int32_t button, bool pressedDown) {
    stopRepeatingAction();
    const RemoteButtonMeaning meaning = remoteButtonMeaning(button, _with.view.isPlaying());
    if (meaning.action == noAction)
        logAlways("%@: Unmapped event for Apple Remote button %d", className, button);
    else if (pressedDown && meaning.interval > 0)
        startRepeatingAction(meaning.action, meaning.interval, Feedback::yes);
    else if (pressedDown)
        performAction(meaning.action, Feedback::yes);
    trace("%@: Apple Remote Button: %@ %@", className, remoteButtonName(button), pressedDown ? "(down)" : "(up)");
}

void QVMovieController::remoteKeyPressed(platform::RemoteKey key) {
    stopRepeatingAction();
    if (const Command* command = commandOfRemoteKey(key)) {
        perform(*command, command->argument, Feedback::yes);
        trace("%@: Remote Key: %@", className, QString::fromUtf8(command->name));
    }
}

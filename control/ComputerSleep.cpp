// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ComputerSleep.h"

#include "context/FeedbackDisplay.h"
#include "control/QVMovieController.h"
#include "platform/base/Localization.h"
#include "playback/QVMovieView.h"

#include <utility>

ComputerSleep::ComputerSleep(const Environment& environment, const Collaborators& collaborators)
    : _with(collaborators)
    , _beginning(environment, [this] { _with.power.setPowerListener(this); }) {}

ComputerSleep::~ComputerSleep() {
    _with.power.setPowerListener(nullptr);
}

void ComputerSleep::computerWillSleep() {
    _with.controller.stopRepeatingAction(); // a held key would set it going again
    _hasPaused = _with.view.isPlaying();
    if (_hasPaused)
        _with.view.stop();
}

void ComputerSleep::computerDidWake() {
    if (std::exchange(_hasPaused, false) && !_with.view.isPlaying())
        _with.feedback.postFeedback(platform::localizedString(QStringLiteral("Movie: Pause")));
}

void ComputerSleep::powerCommandFailed(platform::PowerCommand command, const QString& reason) {
    using enum platform::PowerCommand;
    const char* const text = command == restart    ? "Restart failed: %@"
                             : command == shutDown ? "Shutting down failed: %@"
                             : command == logOut   ? "Logging out failed: %@"
                                                   : "Sleep failed: %@";
    _with.feedback.postFeedback(platform::localizedFormat(QString::fromLatin1(text), {reason}));
}

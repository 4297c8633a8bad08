// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "control/AfterFirstPicture.h"
#include "platform/desktop/Power.h"

class FeedbackDisplay;
class QVMovieController;
class QVMovieView;

/// What the computer's sleep means for the movie: it rests before, and stands where it stood after, until the user
/// plays it. Tells the user when the computer does not sleep. Main thread.
class ComputerSleep final : public platform::PowerListener {
public:
    /// All outlive it.
    struct Collaborators {
        platform::Power& power;
        QVMovieView& view;
        QVMovieController& controller;
        FeedbackDisplay& feedback;
    };
    ComputerSleep(const Environment& environment, const Collaborators& collaborators);
    ComputerSleep(const ComputerSleep&) = delete;
    ComputerSleep& operator=(const ComputerSleep&) = delete;
    ~ComputerSleep() override;

    void computerWillSleep() override;
    void computerDidWake() override;
    void powerCommandFailed(platform::PowerCommand command, const QString& reason) override;

private:
    Collaborators _with;
    bool _hasPaused = false;
    /// The bus of the system is asked then.
    AfterFirstPicture _beginning;
};

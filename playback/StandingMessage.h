// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QString>

#include <memory>

namespace platform {
class Timer;
} // namespace platform

class FeedbackDisplay;

/// Says what the user is waiting for, as feedback that stands as long as it lasts. A short wait is not worth a word.
/// Main thread.
class StandingMessage {
public:
    /// The display outlives the message.
    StandingMessage(const Environment& environment, FeedbackDisplay& display);
    StandingMessage(const StandingMessage&) = delete;
    StandingMessage& operator=(const StandingMessage&) = delete;
    ~StandingMessage();

    /// Shows the text from half a second after the first show() on. Another text takes its place at once.
    void show(const QString& text);
    /// Shows it without delay, for as long as the user is about what it says.
    void showAtOnce(const QString& text);
    /// Takes it away at once.
    void withdraw();
    /// The wait is over: what stands fades as other feedback does.
    void end();

private:
    void post();

    Environment _environment;
    FeedbackDisplay& _display;
    QString _text;
    bool _isShown = false;
    std::unique_ptr<platform::Timer> _timer;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

/// Where short confirmations of commands are shown. Main thread.
class FeedbackDisplay {
public:
    virtual ~FeedbackDisplay() = default;

    /// Shows a message for a while, unless feedback is switched off in the settings.
    virtual void postFeedback(const QString& message) = 0;
    /// Takes that message away where it is what is shown.
    virtual void withdrawFeedback(const QString& message) = 0;
    /// How long a message takes to be read, from when it is posted: until it has faded in and stood its time. Seconds.
    virtual double readingTime() const = 0;
};

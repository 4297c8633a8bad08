// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Short confirmations of commands. One for the process. Main thread.
class QVFeedbackOverlay {
public:
    static QVFeedbackOverlay& sharedFeedbackOverlay();

    /// Shows a message for a while, unless feedback is switched off (QVDisplayFeedback).
    void postFeedback(const QString& message);
    /// The message posted last.
    const QString& text() const { return _text; }

    /// Seconds.
    double fadingInInterval() const { return 0; }
    double fadingDelayInterval() const { return 0; }

private:
    QString _text;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/FeedbackDisplay.h"
#include "overlays/QVTextOverlay.h"

/// Short confirmations of commands, each shown for a while. Main thread.
class QVFeedbackOverlay final : public QVTextOverlay, public FeedbackDisplay {
public:
    /// The one of the process, made on the first call above the application's main window, if there is one.
    static QVFeedbackOverlay& sharedFeedbackOverlay();
    /// Ends the shared overlay, at termination; the next call would make another.
    static void destroyShared();

    QVFeedbackOverlay(const Environment& environment, platform::Window& parent);

    /// The switch is QVDisplayFeedback.
    void postFeedback(const QString& message) override;
    double readingTime() const override { return fadingInInterval() + fadingDelayInterval(); }

protected:
    const char* logName() const override { return "QVFeedbackOverlay"; }
};

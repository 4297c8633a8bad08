// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/FeedbackDisplay.h"
#include "overlays/QVTextOverlay.h"

#include <functional>

/// Short confirmations of commands, each shown for a while. Main thread.
class QVFeedbackOverlay final : public QVTextOverlay, public FeedbackDisplay {
public:
    /// The one of the process, as the composition gives it. Components are handed theirs.
    static QVFeedbackOverlay& sharedFeedbackOverlay();
    /// By the composition; null before its overlay goes.
    static void setShared(std::function<QVFeedbackOverlay&()> overlay);

    QVFeedbackOverlay(const Environment& environment, platform::Window& parent);

    /// The switch is QVDisplayFeedback.
    void postFeedback(const QString& message) override;
    void withdrawFeedback(const QString& message) override;
    double readingTime() const override { return fadingInInterval() + fadingDelayInterval(); }

protected:
    /// A message of several lines is held until it can have been read, however short the style's hold is.
    double holdInterval() const override;
    const char* logName() const override { return "QVFeedbackOverlay"; }
};

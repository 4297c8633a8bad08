// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/FeedbackDisplay.h"
#include "overlays/OnScreenDisplay.h"

#include <memory>

namespace platform {
class Window;
} // namespace platform

class OSDTexts;
class QVFeedbackOverlay;
class QVOSDOverlay;

// The two displays above a window, each made when there is something to show on it: their fonts would hold up the
// movie's first picture.

/// Confirmations above a window, which outlives this object. Main thread.
class FeedbackOnDemand final : public FeedbackDisplay {
public:
    FeedbackOnDemand(const Environment& environment, platform::Window& parent);
    ~FeedbackOnDemand() override;

    void postFeedback(const QString& message) override;
    void withdrawFeedback(const QString& message) override;
    double readingTime() const override;
    /// Makes the overlay where there is none yet.
    QVFeedbackOverlay& overlay() const;

private:
    Environment _environment;
    platform::Window& _parent;
    mutable std::unique_ptr<QVFeedbackOverlay> _overlay; // made by whoever asks first
};

/// The on-screen display above a window. The window and the texts outlive this object. Main thread.
class OSDOnDemand final : public OnScreenDisplay {
public:
    OSDOnDemand(const Environment& environment, platform::Window& parent, const OSDTexts& texts);
    ~OSDOnDemand() override;

    int displayType() const override;
    void setDisplayType(int type) override;
    void cycleDisplays(int step) override;
    /// Makes the overlay where there is none yet.
    QVOSDOverlay& overlay();

private:
    Environment _environment;
    platform::Window& _parent;
    const OSDTexts& _texts;
    std::unique_ptr<QVOSDOverlay> _overlay;
};

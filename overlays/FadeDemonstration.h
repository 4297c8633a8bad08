// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <functional>
#include <memory>

class QVStyledOverlay;
struct QVPreferencesChangedNotification;

/// Plays what cannot be seen of an overlay that rests shown: when a fade, the hold or the smallest opacity of its style
/// is changed, the overlay goes or comes that way, and is shown again. Main thread.
class FadeDemonstration {
public:
    /// The overlay is a sample, which nobody else shows or hides meanwhile, and outlives this object.
    FadeDemonstration(const Environment& environment, QVStyledOverlay& overlay);

    /// Leaves the overlay as it is.
    void stop() { _timer = nullptr; }

private:
    void preferencesChanged(const QVPreferencesChangedNotification& notification);
    void later(double seconds, std::function<void()> work);
    void showAfter(double seconds);

    Environment _environment;
    QVStyledOverlay& _overlay;
    std::unique_ptr<platform::Timer> _timer;
    platform::Subscription _onPreferences;
};

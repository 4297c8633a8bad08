// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"

#include <functional>
#include <optional>

namespace platform {
class Desktop;
struct Screen;
} // namespace platform

/// Sets the screen's brightness while the player runs, where the user asks for it (QVForceScreenBrightness), follows
/// the two settings at once, and brings the brightness from before back at the end. Main thread.
class ForcedBrightness {
public:
    /// The screen that the player is on, if it is on any.
    using CurrentScreen = std::function<std::optional<platform::Screen>()>;
    /// The desktop, and what `screen` uses, outlive it. Nothing is set before begin().
    ForcedBrightness(const Environment& environment, platform::Desktop& desktop, CurrentScreen screen);
    ForcedBrightness(const ForcedBrightness&) = delete;
    ForcedBrightness& operator=(const ForcedBrightness&) = delete;
    ~ForcedBrightness();

    void begin();
    void end();

private:
    void follow();

    Environment _environment;
    platform::Desktop& _desktop;
    CurrentScreen _screen;
    /// Before the player set anything; 1 as long as it was not asked.
    float _saved = 1.0F;
    platform::Subscription _onPreferences; // between begin and end
};

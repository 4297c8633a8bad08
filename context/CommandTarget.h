// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Events.h"

#include <cstdint>
#include <string_view>

/// The action codes of CommandTarget::performAction.
namespace action {
inline constexpr std::int32_t playPause = 0;
inline constexpr std::int32_t fastRewind = 1;
inline constexpr std::int32_t fastForward = 2;
inline constexpr std::int32_t stepBackward = 3;
inline constexpr std::int32_t stepForward = 4;
inline constexpr std::int32_t jumpBackward = 5;
inline constexpr std::int32_t jumpForward = 6;
inline constexpr std::int32_t volumeUp = 19;
inline constexpr std::int32_t volumeDown = 20;
/// Sent by Alt+Up and Alt+Down; no action stands behind them.
inline constexpr std::int32_t optionUp = 21;
inline constexpr std::int32_t optionDown = 22;
inline constexpr std::int32_t nextSubtitles = 24;
inline constexpr std::int32_t previousSubtitles = 25;
inline constexpr std::int32_t nextScreen = 29;
inline constexpr std::int32_t previousScreen = 30;
inline constexpr std::int32_t sleep = 31;
inline constexpr std::int32_t quit = 32;
} // namespace action

/// Whether a command posts its confirmation text.
enum class Feedback : bool { no, yes };

/// What the mouse does beside pressing, dragging and pointing.
enum class MouseGesture { none, doubleClick, middleClick, backClick, forwardClick, wheelUp, wheelDown };

/// What the view, the playlist, the window and the version check ask of the movie controller. Main thread.
class CommandTarget {
public:
    virtual ~CommandTarget() = default;

    /// Carries out an action code; codes without an action do nothing.
    virtual void performAction(std::int32_t action, Feedback feedback) = 0;
    /// Carries out the command of that name in the table; other names do nothing.
    virtual void performCommand(std::string_view name, Feedback feedback) = 0;
    /// True when the event was consumed.
    virtual bool processKeyboardEvent(const platform::KeyEvent& event) = 0;
    /// A gesture without a command does nothing.
    virtual void processMouseGesture(MouseGesture gesture) = 0;
    /// The sound is muted by fast motion, to come back at normal speed.
    virtual bool forceMuted() const = 0;
    virtual void setForceMuted(bool muted) = 0;
};

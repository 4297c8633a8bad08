// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"
#include "platform/desktop/RemoteSource.h"

#include <QStringView>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// The codes of a remote's buttons. One that is held is a button of its own.
namespace remoteButton {
inline constexpr std::int32_t volumeUp = 0;
inline constexpr std::int32_t volumeDown = 1;
inline constexpr std::int32_t menu = 2;
inline constexpr std::int32_t playPause = 3;
inline constexpr std::int32_t right = 4;
inline constexpr std::int32_t left = 5;
inline constexpr std::int32_t rightHolding = 6;
inline constexpr std::int32_t leftHolding = 7;
inline constexpr std::int32_t menuHolding = 8;
inline constexpr std::int32_t playSleepMode = 9;
inline constexpr std::int32_t unknown = 10;
} // namespace remoteButton

/// The button whose press, or release, makes these events: their cookies in decimal, each followed by "_".
std::optional<std::int32_t> remoteButtonWithCookies(QStringView cookies);
/// What the log calls a button; "Unknown" for other codes, too.
const char* remoteButtonName(std::int32_t button);

/// What a pressed button does.
struct RemoteButtonMeaning {
    std::int32_t action = noAction;
    /// Seconds after which the action repeats while the button is held; 0: it doesn't.
    double interval = 0;

    friend bool operator==(const RemoteButtonMeaning&, const RemoteButtonMeaning&) = default;
};
/// By whether the movie plays. No action for codes without one.
RemoteButtonMeaning remoteButtonMeaning(std::int32_t button, bool isPlaying);

/// The command of a key that is no such button; null for keys without one.
const Command* commandOfRemoteKey(platform::RemoteKey key);

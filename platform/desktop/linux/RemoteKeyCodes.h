// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RemoteSource.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace platform {

/// What tells a remote from other input devices.
enum class RemoteKind {
    infrared,      // a receiver that the kernel decodes (rc-core)
    appleInfrared, // the receiver of a Macintosh, which has a driver of its own (hid-appleir)
    named,         // keys that call themselves a remote, of a wireless receiver say
};

/// What is known of an input device before it is opened.
struct InputDeviceFacts {
    bool belongsToReceiver = false; // below the kernel's class of infrared receivers
    QString driver = {};            // that of its HID device; empty for none
    QString name = {};              // what it calls itself
    bool hasKeys = false;
    bool isKeyboard = false; // has the letters, and more, to type with
    bool isPointer = false;
};
/// None for what is no remote. What one types or points with is none, whatever it calls itself: no other program would
/// get anything of it.
std::optional<RemoteKind> remoteKindOf(const InputDeviceFacts& facts);

/// A button as a receiver's elements tell it: the elements whose values come when it is pressed, or let go.
using RemoteElements = std::span<const std::int32_t>;
/// The burst of a press or a release. The values of a release add up to 0.
std::vector<RemoteEvent> burstOf(RemoteElements elements, bool pressed);

/// What a key of a remote means.
struct RemoteKeyMeaning {
    /// Those of the button, or empty for one that is no button of the receiver's.
    RemoteElements elements = {};
    /// Those that stand for the button when it is held; empty for a button that makes no difference, whose press goes
    /// out at once.
    RemoteElements heldElements = {};
    /// For what is no button of the receiver's.
    RemoteKey key = {};
};
/// By one of the kernel's key codes; null for keys without a meaning.
const RemoteKeyMeaning* remoteKeyMeaning(RemoteKind kind, std::uint16_t keyCode);

/// The element that tells which remote it was.
inline constexpr std::int32_t remoteIdentityElement = 19;
/// Which remote sent a scan code, where that tells: remotes of the Macintosh, which can be paired.
std::optional<std::int32_t> remoteIdentityOf(std::uint32_t scanCode);

} // namespace platform

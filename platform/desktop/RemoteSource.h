// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace platform {

/// A value that an element of the receiver took. Elements are told apart by their cookies.
struct RemoteEvent {
    std::int32_t cookie = 0;
    std::int32_t value = 0;
    friend bool operator==(const RemoteEvent&, const RemoteEvent&) = default;
};

/// What a remote has beside the buttons that its receiver tells by elements.
enum class RemoteKey {
    number0,
    number1,
    number2,
    number3,
    number4,
    number5,
    number6,
    number7,
    number8,
    number9,
    red,
    green,
    yellow,
    blue,
    fastForward,
    rewind,
    next,
    previous,
    stop,
    play,
    pause,
    select,
    subtitle,
    info,
    channelUp,
    channelDown,
    mute,
};

enum class RemoteResult { success, failure };

/// Told what is pressed on a remote. Main thread.
class RemoteListener {
public:
    virtual ~RemoteListener() = default;

    /// The events that one button made, in their order: one call for its press, one for its release. Without success
    /// none could be read.
    virtual void remoteBurst(RemoteResult result, const std::vector<RemoteEvent>& events) = 0;
    /// A press; such a key has no release.
    virtual void remoteKeyPressed(RemoteKey key) = 0;
};

/// Whether other programs get nothing of a remote that is listened to.
enum class RemoteAccess { withOthers, exclusive };

/// What came of the wish to listen: the step that failed, where one did.
enum class RemoteStart {
    listening,
    unavailable,
    noClassName,
    noDeviceInterface,
    noQueue,
    noEventSource,
    noEventCallout,
};

/// The computer's receivers of remotes, as one. Main thread.
class RemoteSource {
public:
    virtual ~RemoteSource() = default;

    /// Whether there is a receiver, or one can come while the program runs.
    virtual bool isAvailable() const = 0;
    /// Listens from here on, also to receivers that come later. The listener must stay until stop(), and is not called
    /// from inside this call. Anything but `listening` leaves the source as it was.
    virtual RemoteStart start(RemoteAccess access, RemoteListener& listener) = 0;
    /// Lets every receiver go. What is held down counts as released: the listener is told so from inside this call.
    virtual void stop() = 0;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/RemoteKeyCodes.h"

#include <linux/input.h>

#include <optional>
#include <variant>
#include <vector>

namespace platform {

/// What goes out for an event of the kernel's: a burst of the receiver's elements, or a press of another key.
using RemoteOutput = std::variant<std::vector<RemoteEvent>, RemoteKey>;

/// Turns the event stream of one remote (the kernel's evdev protocol) into bursts. A button for which holding makes a
/// difference goes out when it is let go, press and release together, or as the held one after holdDelay. The clock
/// comes from outside: `now` in monotonic seconds.
class RemoteTranslator {
public:
    static constexpr double holdDelay = 0.4;

    explicit RemoteTranslator(RemoteKind kind)
        : _kind(kind) {}

    std::vector<RemoteOutput> take(const input_event& event, double now);
    /// What holding brings by now. All events that have arrived must have been taken before.
    std::vector<RemoteOutput> tick(double now);
    /// When tick() has something to bring; none when it never does by itself.
    std::optional<double> due() const;
    /// The remote has gone: what went out as pressed is released, what has not gone out never does.
    std::vector<RemoteOutput> releaseAll();

private:
    struct Held {
        std::uint16_t keyCode = 0;
        const RemoteKeyMeaning* meaning = nullptr;
        double pressedAt = 0;
        /// Those that went out as pressed; empty when none has yet.
        RemoteElements sent = {};
        double dueAt() const { return pressedAt + holdDelay; }
        bool isPending() const { return sent.empty(); }
    };

    void takeKey(std::uint16_t keyCode, bool pressed, double now, std::vector<RemoteOutput>& outputs);
    void press(RemoteElements elements, std::vector<RemoteOutput>& outputs);
    void release(const Held& held, std::vector<RemoteOutput>& outputs) const;

    RemoteKind _kind;
    std::vector<Held> _held;
    std::optional<std::int32_t> _identity;
    bool _isIdentityNew = false;
    bool _isSkipping = false;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RemoteTranslator.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::int32_t released = 0;
constexpr std::int32_t pressed = 1; // 2 is the kernel's automatic repeat, which is no press

} // namespace

std::vector<RemoteOutput> RemoteTranslator::take(const input_event& event, double now) {
    std::vector<RemoteOutput> outputs;
    if (event.type == EV_SYN && event.code == SYN_DROPPED) {
        // Events were lost, releases perhaps; the rest of the report is a fragment.
        _isSkipping = true;
        return releaseAll();
    }
    if (_isSkipping) {
        _isSkipping = event.type != EV_SYN || event.code != SYN_REPORT;
        return outputs;
    }
    if (event.type == EV_MSC && event.code == MSC_SCAN) {
        const auto identity = remoteIdentityOf(static_cast<std::uint32_t>(event.value));
        _isIdentityNew = _isIdentityNew || (identity && identity != _identity);
        _identity = identity ? identity : _identity;
    } else if (event.type == EV_KEY && (event.value == pressed || event.value == released)) {
        takeKey(event.code, event.value == pressed, now, outputs);
    }
    return outputs;
}

void RemoteTranslator::takeKey(std::uint16_t keyCode, bool isPressed, double now, std::vector<RemoteOutput>& outputs) {
    // A second press without a release in between ends the first one.
    if (const auto held = std::ranges::find(_held, keyCode, &Held::keyCode); held != _held.end()) {
        const Held ended = *held;
        _held.erase(held);
        if (ended.isPending())
            press(ended.meaning->elements, outputs);
        release(ended, outputs);
    }
    const RemoteKeyMeaning* meaning = isPressed ? remoteKeyMeaning(_kind, keyCode) : nullptr;
    if (!meaning)
        return;
    if (meaning->elements.empty()) {
        outputs.emplace_back(meaning->key);
        return;
    }
    Held held{keyCode, meaning, now, {}};
    if (meaning->heldElements.empty()) {
        held.sent = meaning->elements;
        press(held.sent, outputs);
    }
    _held.push_back(held);
}

/// The identity comes with the first press of a remote, ahead of the button.
void RemoteTranslator::press(RemoteElements elements, std::vector<RemoteOutput>& outputs) {
    std::vector<RemoteEvent> burst = burstOf(elements, true);
    if (std::exchange(_isIdentityNew, false))
        burst.insert(burst.begin(), {remoteIdentityElement, *_identity});
    outputs.emplace_back(std::move(burst));
}

void RemoteTranslator::release(const Held& held, std::vector<RemoteOutput>& outputs) const {
    outputs.emplace_back(burstOf(held.isPending() ? held.meaning->elements : held.sent, false));
}

std::vector<RemoteOutput> RemoteTranslator::tick(double now) {
    std::vector<RemoteOutput> outputs;
    for (Held& held : _held) {
        if (!held.isPending() || now < held.dueAt())
            continue;
        held.sent = held.meaning->heldElements;
        press(held.sent, outputs);
    }
    return outputs;
}

std::optional<double> RemoteTranslator::due() const {
    std::optional<double> earliest;
    for (const Held& held : _held) {
        if (held.isPending() && (!earliest || held.dueAt() < *earliest))
            earliest = held.dueAt();
    }
    return earliest;
}

std::vector<RemoteOutput> RemoteTranslator::releaseAll() {
    std::vector<RemoteOutput> outputs;
    for (const Held& held : std::exchange(_held, {})) {
        if (!held.isPending())
            release(held, outputs);
    }
    return outputs;
}

} // namespace platform

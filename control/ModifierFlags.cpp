// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ModifierFlags.h"

#include "platform/desktop/Desktop.h"
#include "platform/window/Events.h"

std::uint32_t QVGetModifierFlags() {
    using namespace platform::modifier;
    return platform::Desktop::shared().modifierFlags() & (capsLock | shift | control | option | command);
}

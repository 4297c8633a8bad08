// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ModifierFlags.h"

#include "platform/desktop/Desktop.h"
#include "platform/window/Events.h"

std::uint32_t QVGetModifierFlags(const platform::Desktop& desktop) {
    using namespace platform::modifier;
    return desktop.modifierFlags() & (capsLock | shift | control | option | command);
}

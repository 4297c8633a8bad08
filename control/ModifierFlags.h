// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The modifier keys held at this moment (masks of platform::modifier), whatever events said: tells adding to the list
/// (Option held) from replacing it. Main thread.
std::uint32_t QVGetModifierFlags();

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace platform {
class Desktop;
} // namespace platform

/// The modifier keys held at this moment (masks of platform::modifier), whatever events said: tells adding to the list
/// (Option held) from replacing it. Main thread.
std::uint32_t QVGetModifierFlags(const platform::Desktop& desktop);

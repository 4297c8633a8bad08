// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The volume commands: the tags of the volume menu's items.
namespace volumeControl {
inline constexpr std::int32_t up = 0;
inline constexpr std::int32_t down = 1;
inline constexpr std::int32_t atLeastNormal = 2;
inline constexpr std::int32_t silent = 3;
inline constexpr std::int32_t mute = 4;
} // namespace volumeControl

/// The volume (linear, 1.0 is normal) that a command makes of a volume: fine steps near silence, coarse ones above
/// twice the normal volume. Never below 0; the upper limit is the player's. Mute and unknown commands leave the volume
/// as it is.
float steppedVolume(std::int32_t control, float volume);

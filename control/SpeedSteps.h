// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <cstdint>

/// The arguments of the command that sets the speed, beside speeds themselves, which are hundredths of the normal one.
namespace speedStep {
inline constexpr std::int32_t faster = 1;
inline constexpr std::int32_t slower = -1;
inline constexpr std::int32_t twice = 2;
inline constexpr std::int32_t half = -2;
} // namespace speedStep

/// Those that the menu offers, in hundredths.
inline constexpr std::array<std::int32_t, 9> offeredSpeeds{25, 50, 75, 100, 125, 150, 200, 300, 400};

/// The speed, in hundredths, that an argument makes of another one: a twentieth further below twice the normal speed, a
/// tenth above, to the next round number; kept within a quarter and four times.
std::int32_t steppedSpeed(std::int32_t argument, std::int32_t speed);

/// "1.25x", as the user's language writes numbers.
QString speedText(std::int32_t speed);

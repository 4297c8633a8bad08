// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// "+150 ms", "−12.50 s": how much later something comes, or earlier, in the user's language. From ten seconds on in
/// seconds.
QString delayText(std::int32_t milliseconds);

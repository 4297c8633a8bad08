// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The system's version as a number whose hexadecimal digits read as the version (0x1048 for 10.4.8). What is offered
/// here is all that the latest thresholds ask for.
constexpr int QVSystemVersion() {
    return 0x1060;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
class Desktop;
struct Screen;
} // namespace platform

/// A screen's brightness, 0 to 1; positive infinity when it is no screen or has none that can be read.
float brightnessOf(const platform::Desktop& desktop, const platform::Screen& screen);

/// Values outside 0 to 1 are refused with a line in the log.
void setBrightnessOf(platform::Desktop& desktop, const platform::Screen& screen, float brightness);

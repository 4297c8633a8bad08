// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "platform/desktop/Desktop.h"

#include <cstddef>
#include <optional>
#include <vector>

/// The position of the screen that holds most of a window; the main screen's, the first, for a window that lies on
/// none.
std::size_t screenHolding(const std::vector<platform::Screen>& screens, const platform::Rect& window);

/// The screen to go to from `start`, one step after the other in `direction` (+1 or -1) around the list: the first that
/// is a real screen. That is `start` itself when it is the only real one; none when there is no choice of entries or no
/// real screen.
std::optional<std::size_t> nextScreen(const std::vector<platform::Screen>& screens, std::size_t start, int direction);

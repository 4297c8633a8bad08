// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

class QWindow;

/// Asks for a time of the movie, in a modal panel above the window: `now` stands in it, selected. What is no time, or
/// behind the movie's end (a duration of 0 is unknown), beeps and is asked for again. Seconds; none when the user
/// thought better of it. Main thread.
std::optional<double> runGoToTimePanel(double now, double duration, const std::function<void()>& beep, QWindow* window);

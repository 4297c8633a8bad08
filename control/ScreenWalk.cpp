// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ScreenWalk.h"

std::size_t screenHolding(const std::vector<platform::Screen>& screens, const platform::Rect& window) {
    std::size_t holding = 0;
    double largest = 0;
    for (std::size_t index = 0; index < screens.size(); ++index) {
        const platform::Rect shared = screens[index].frame.intersected(window);
        const double area = shared.width() * shared.height();
        if (area > largest) {
            largest = area;
            holding = index;
        }
    }
    return holding;
}

std::optional<std::size_t> nextScreen(const std::vector<platform::Screen>& screens, std::size_t start, int direction) {
    const std::size_t count = screens.size();
    if (count < 2 || start >= count)
        return std::nullopt;
    std::size_t index = start;
    do {
        if (direction > 0)
            index = index + 1 < count ? index + 1 : 0;
        else
            index = index > 0 ? index - 1 : count - 1;
        if (screens[index].isScreen)
            return index;
    } while (index != start);
    return std::nullopt;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

namespace harness {

using Seconds = std::chrono::duration<double>;

// How long a test waits for something that must come. Far above what a loaded machine needs: it is used up only when
// the test fails.
inline constexpr Seconds defaultTimeout{40.0};

// Asks again and again until condition() is true or the time is over; answers whether it became true.
template <typename Condition>
bool waitUntil(Condition condition, Seconds timeout = defaultTimeout, Seconds interval = Seconds(0.003)) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    while (true) {
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(interval);
    }
}

// True when condition() is true for the whole time. For what must not happen: keep the time short.
template <typename Condition>
bool staysTrue(Condition condition, Seconds duration) {
    return !waitUntil([&] { return !condition(); }, duration);
}

} // namespace harness

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace platform {

/// Says when the connection to the X server or the Wayland compositor is lost. Qt ends the process on the spot then,
/// with exit or with _exit, and offers no other word of it than the message that it writes just before. One at a time;
/// main thread.
class LostDisplay {
public:
    /// `lost` is called on the main thread, once, in the middle of whatever Qt was about; it must not draw. The process
    /// ends with status 1 when it returns.
    explicit LostDisplay(std::function<void()> lost);
    LostDisplay(const LostDisplay&) = delete;
    LostDisplay& operator=(const LostDisplay&) = delete;
    ~LostDisplay();
};

} // namespace platform

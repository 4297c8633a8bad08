// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <memory>

namespace platform {

/// The X server's own screen saver and its switching off of the screen, which no service of the session rules where
/// there is none. What is held off stays so until it is let go, or the process ends. Without an X server, or the
/// library, nothing happens. Main thread, while the application exists.
class ScreenSaverExtension {
public:
    /// Holds it off while set; a moment later, as SessionBus does.
    void setInhibited(bool inhibited);

private:
    void settle();

    std::unique_ptr<Timer> _delay;
    bool _wanted = false;
    bool _held = false;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/PointerHiding.h"
#include "platform/base/RunLoop.h"

#include <functional>
#include <memory>

/// Hides the pointer when it has not been moved for QVCursorAutohideDelay seconds. Main thread.
class PointerAutohide final : public PointerHiding {
public:
    /// `setHidden` hides the pointer until it is moved, and shows it.
    PointerAutohide(const Environment& environment, std::function<void(bool hidden)> setHidden);

    void hideCursor();
    void showCursor();
    void scheduleCursorHide() override;
    /// Ends a delay that runs.
    void cancel() { _autohide_cursor_timer.reset(); }

private:
    void autohideCursor();

    Environment _environment;
    std::function<void(bool hidden)> _setHidden;
    std::unique_ptr<platform::Timer> _autohide_cursor_timer;
};

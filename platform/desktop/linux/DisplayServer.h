// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct xcb_connection_t;

namespace platform {

/// Looks for a display to show windows on: asks the window systems that Qt would try, the X server of DISPLAY, and in a
/// Wayland session the compositor of WAYLAND_DISPLAY. QT_QPA_PLATFORM chooses between the two; what else it may name is
/// taken to work. To be made before the application object, for without a display making one ends the process, and kept
/// until that is made, for an X server may begin anew when its only client leaves, and is not to be reached meanwhile.
/// Main thread.
class DisplayServer {
public:
    /// Blocks while it connects, which takes well below a millisecond to a server of this machine.
    DisplayServer();
    DisplayServer(const DisplayServer&) = delete;
    DisplayServer& operator=(const DisplayServer&) = delete;
    ~DisplayServer();

    /// Why there is no display, as a part of a sentence for the user; empty when there is one.
    const QString& reasonForNone() const { return _reason; }

private:
    QString reasonForNoX11();

    QString _reason;
    xcb_connection_t* _x11 = nullptr;
};

} // namespace platform

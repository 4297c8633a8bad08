// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>

namespace platform {

/// Whether a Wayland compositor shows the windows: it places them itself and lets nobody take the pointer or the
/// keyboard but in answer to a press. Main thread, once the application exists.
inline bool isWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace platform

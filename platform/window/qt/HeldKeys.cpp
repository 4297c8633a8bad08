// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/HeldKeys.h"

#include <QGuiApplication>

#include <xcb/xcb.h>
#define explicit explicit_ // the name of a member of the header, which is C
#include <xcb/xkb.h>
#undef explicit

#include <utility>

namespace platform {

void HeldKeys::reportRepeatsWithoutReleases() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The platform without a screen has the interface, but no connection.
    xcb_connection_t* const connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return;
    // The toolkit has opened the extension for this connection.
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    xcb_discard_reply(connection,
                      xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0).sequence);
}

bool HeldKeys::forget() {
    return !std::exchange(_down, {}).empty();
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/ScreenSaverExtension.h"

#include <QGuiApplication>

#include <dlfcn.h>

#include <utility>

namespace platform {

namespace {

constexpr double settleDelay = 1.0;

/// The library's function of that name, loaded at the first use and for good; null without it. The types are those of
/// X11's headers, which its users need not have.
template <class Function>
Function function(const char* library, const char* name) {
    void* const handle = ::dlopen(library, RTLD_NOW);
    return handle ? reinterpret_cast<Function>(::dlsym(handle, name)) : nullptr;
}

} // namespace

void ScreenSaverExtension::setInhibited(bool inhibited) {
    if (std::exchange(_wanted, inhibited) == inhibited)
        return;
    _delay = RunLoop::main().schedule(settleDelay, false, [this] { settle(); });
}

void ScreenSaverExtension::settle() {
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    // The platform without a screen has the interface, but no display.
    Display* const display = x11 ? x11->display() : nullptr;
    static const auto suspend = function<void (*)(Display*, int)>("libXss.so.1", "XScreenSaverSuspend");
    static const auto flush = function<int (*)(Display*)>("libX11.so.6", "XFlush");
    // The server counts how often it was suspended.
    if (!display || !suspend || !flush || std::exchange(_held, _wanted) == _wanted)
        return;
    suspend(display, _wanted);
    flush(display);
}

} // namespace platform

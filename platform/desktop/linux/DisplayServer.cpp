// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/DisplayServer.h"

#include "platform/desktop/linux/LocalSocket.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include <xcb/xcb.h>

#include <algorithm>
#include <unistd.h>

namespace platform {

namespace {

struct Candidates {
    bool x11 = false;
    bool wayland = false;
    bool others = false;
};

/// What Qt would try.
Candidates candidates() {
    Candidates result;
    const QString chosen = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (chosen.isEmpty()) {
        result.x11 = qEnvironmentVariableIsSet("DISPLAY");
        result.wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
        return result;
    }
    for (const QString& platform : chosen.split(u';')) {
        const QString name = platform.section(u':', 0, 0);
        if (name == QStringLiteral("xcb"))
            result.x11 = true;
        else if (name.startsWith(QStringLiteral("wayland")))
            result.wayland = true;
        else
            result.others = true;
    }
    return result;
}

bool hasWaylandPlugin() {
    QStringList folders{qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    for (const QString& folder : QCoreApplication::libraryPaths())
        folders.append(folder + QStringLiteral("/platforms"));
    return std::any_of(folders.cbegin(), folders.cend(), [](const QString& folder) {
        return !folder.isEmpty() && !QDir(folder).entryList({QStringLiteral("libqwayland*.so")}, QDir::Files).isEmpty();
    });
}

QString reasonForNoWayland() {
    // A connection that was inherited can be used only once.
    if (!qEnvironmentVariableIsSet("WAYLAND_SOCKET")) {
        const QString display = qEnvironmentVariable("WAYLAND_DISPLAY", QStringLiteral("wayland-0"));
        const int socket = connectToLocalSocket(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).filePath(display));
        if (socket < 0)
            return QStringLiteral("the Wayland display '%1' can't be reached").arg(display);
        ::close(socket);
    }
    return hasWaylandPlugin() ? QString() : QStringLiteral("Qt lacks its plugin for Wayland (qt6-wayland)");
}

} // namespace

DisplayServer::DisplayServer() {
    const Candidates tried = candidates();
    if (tried.others)
        return;
    QStringList reasons;
    if (tried.x11)
        reasons.append(reasonForNoX11());
    if (tried.wayland)
        reasons.append(reasonForNoWayland());
    if (reasons.isEmpty())
        _reason = QStringLiteral("neither DISPLAY nor WAYLAND_DISPLAY is set");
    else if (!reasons.contains(QString()))
        _reason = reasons.join(QStringLiteral(", and "));
}

DisplayServer::~DisplayServer() {
    xcb_disconnect(_x11);
}

QString DisplayServer::reasonForNoX11() {
    // By the library that Qt connects with, which knows of hosts, screens and permissions.
    _x11 = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(_x11) == 0)
        return {};
    const QString display = qEnvironmentVariable("DISPLAY");
    return display.isEmpty() ? QStringLiteral("DISPLAY is not set")
                             : QStringLiteral("the X server '%1' can't be reached").arg(display);
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/DisplayServer.h"
#include "platform/desktop/linux/LocalSocket.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sys/socket.h>
#include <unistd.h>

#include <utility>

TEST(DisplayServer, is_looked_for_where_qt_would_and_what_is_missing_is_named) {
    const QTemporaryDir folder, plugins;
    const int compositor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    for (const char* name : {"there", "wayland-0"}) {
        const auto address = platform::localAddress(folder.filePath(name));
        const int socket = QByteArrayView(name) == "there" ? compositor : ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)), 0);
        if (socket != compositor)
            ::close(socket); // left behind: nobody listens
    }
    ASSERT_EQ(::listen(compositor, 8), 0);
    const QByteArray absolute = folder.filePath("there").toLocal8Bit();
    writeFile(plugins.filePath("libqwayland-test.so"));
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", plugins.path().toLocal8Bit());

    struct Case {
        QByteArray platform, x11, wayland, session;
        QByteArrayList reasons; // none where there is a display
    };
    const QByteArray unset, gone(":4711");
    for (const Case& c :
         {Case{unset, unset, unset, unset, {"neither DISPLAY nor WAYLAND_DISPLAY"}},
          Case{unset, gone, unset, unset, {"':4711'"}}, Case{unset, gone, "gone", unset, {"':4711'", "'gone'"}},
          Case{unset, unset, unset, "wayland", {"'wayland-0'"}}, Case{unset, gone, "there", unset, {}},
          Case{unset, unset, absolute, unset, {}}, Case{"wayland-egl", unset, "there", unset, {}},
          Case{"xcb", unset, "there", unset, {"DISPLAY is not set"}},
          Case{"wayland;xcb:option", gone, "gone", unset, {"':4711'", "'gone'"}},
          Case{"offscreen:option", gone, unset, unset, {}}, Case{"xcb;minimal", gone, unset, unset, {}}}) {
        const std::pair<const char*, QByteArray> environment[] = {
            {"QT_QPA_PLATFORM", c.platform}, {"DISPLAY", c.x11},
            {"WAYLAND_DISPLAY", c.wayland},  {"WAYLAND_SOCKET", unset},
            {"XDG_SESSION_TYPE", c.session}, {"XDG_RUNTIME_DIR", folder.path().toLocal8Bit()}};
        for (const auto& [name, value] : environment)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        const QString reason = platform::DisplayServer().reasonForNone();
        const std::string given = (c.platform + ' ' + c.x11 + ' ' + c.wayland).toStdString();
        EXPECT_EQ(reason.isEmpty(), c.reasons.isEmpty()) << given << ": " << reason.toStdString();
        for (const QByteArray& part : c.reasons)
            EXPECT_TRUE(reason.contains(part)) << given << ": " << reason.toStdString();
    }
    ::close(compositor);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/LocalSocket.h"

#include <QFile>

#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstring>

namespace platform {

std::optional<sockaddr_un> localAddress(const QString& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof(address.sun_path))
        return std::nullopt;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    return address;
}

int connectToLocalSocket(const QString& path, std::chrono::milliseconds timeout) {
    const auto address = localAddress(path);
    const int socket = address ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0) : -1;
    // Of a listener whose queue is full, connect waits as long as sending would.
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(timeout).count();
    const timeval time{microseconds / 1'000'000, microseconds % 1'000'000};
    if (socket >= 0)
        ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
    if (socket < 0 || ::connect(socket, reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) == 0)
        return socket;
    ::close(socket);
    return -1;
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <optional>
#include <sys/un.h>

namespace platform {

/// The address of a socket in the file system; nothing when the path is empty or too long for one.
std::optional<sockaddr_un> localAddress(const QString& path);

/// Connects to the stream socket at the path; -1 when nobody listens there, or takes callers within the time. The
/// caller closes it.
int connectToLocalSocket(const QString& path, std::chrono::milliseconds timeout = std::chrono::seconds(3));

} // namespace platform

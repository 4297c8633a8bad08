// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Journal.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform {

namespace {

/// Whether standard error is the journal already, which tells it through a variable.
bool standardErrorIsTheJournal() {
    const char* stream = std::getenv("JOURNAL_STREAM");
    struct stat info {};
    if (!stream || ::fstat(STDERR_FILENO, &info) != 0)
        return false;
    return QByteArray::number(static_cast<qulonglong>(info.st_dev)) + ':' +
               QByteArray::number(static_cast<qulonglong>(info.st_ino)) ==
           QByteArray(stream);
}

void appendField(QByteArray& datagram, const char* name, const QByteArray& value) {
    datagram += name;
    if (!value.contains('\n')) {
        datagram += '=' + value + '\n';
        return;
    }
    // A value of several lines is given with its length, little-endian.
    datagram += '\n';
    auto length = static_cast<std::uint64_t>(value.size());
    for (int byte = 0; byte < 8; ++byte, length >>= 8U)
        datagram += static_cast<char>(length & 0xFFU);
    datagram += value + '\n';
}

} // namespace

Journal::Journal(const char* address)
    : _address(address) {
    if (!::isatty(STDERR_FILENO) && ::access(address, W_OK) == 0 && !standardErrorIsTheJournal())
        _socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

Journal::~Journal() {
    if (_socket >= 0)
        ::close(_socket);
}

void Journal::write(const QByteArray& line) const {
    if (_socket < 0)
        return;
    QByteArray datagram;
    appendField(datagram, "MESSAGE", line);
    appendField(datagram, "PRIORITY", line.startsWith("ERROR: ") ? "3" : line.startsWith("WARNING: ") ? "4" : "6");
    appendField(datagram, "SYSLOG_IDENTIFIER", "lumaro");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, _address.constData(), sizeof(address.sun_path) - 1);
    ::sendto(_socket, datagram.constData(), static_cast<std::size_t>(datagram.size()), MSG_DONTWAIT | MSG_NOSIGNAL,
             reinterpret_cast<const sockaddr*>(&address), sizeof(address));
}

} // namespace platform

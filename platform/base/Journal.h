// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace platform {

/// The system's journal, for a program whose standard error does not lead there. Not for several threads at once.
class Journal {
public:
    static constexpr const char* systemAddress = "/run/systemd/journal/socket";

    /// At the path of its socket. There is none where nobody listens, where standard error is a terminal, at which
    /// somebody reads, or is the journal already.
    explicit Journal(const char* address);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// One line, UTF-8, as an error or a warning when it begins so. Waits for nobody; what does not get through is
    /// lost.
    void write(const QByteArray& line) const;

private:
    QByteArray _address;
    int _socket = -1;
};

} // namespace platform

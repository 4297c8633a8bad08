// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"

#include <QByteArray>
#include <QStringList>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr const char* journalSocket = "/run/systemd/journal/socket";
// How long a reader of standard error that has fallen behind is waited for. It is waited for once.
constexpr int timeoutMilliseconds = 200;

std::mutex sMutex;
Log::Sink sSink;
bool sReaderIsStuck = false;

void writeToStandardError(const QByteArray& line) {
    const QByteArray bytes = line + '\n';
    qsizetype done = 0;
    while (done < bytes.size()) {
        pollfd state{STDERR_FILENO, POLLOUT, 0};
        const int ready = ::poll(&state, 1, sReaderIsStuck ? 0 : timeoutMilliseconds);
        // Writing to a pipe that nobody reads would end the process.
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready > 0 && (state.revents & (POLLERR | POLLNVAL)) != 0)
            return;
        sReaderIsStuck = ready == 0;
        if (ready <= 0)
            return;
        const ssize_t written =
            ::write(STDERR_FILENO, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        done += written;
    }
}

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

int openJournal() {
    if (::isatty(STDERR_FILENO) || ::access(journalSocket, W_OK) != 0 || standardErrorIsTheJournal())
        return -1;
    return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
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

void writeToJournal(const QByteArray& line) {
    static const int journal = openJournal();
    if (journal < 0)
        return;
    QByteArray datagram;
    appendField(datagram, "MESSAGE", line);
    appendField(datagram, "PRIORITY", line.startsWith("ERROR: ") ? "3" : line.startsWith("WARNING: ") ? "4" : "6");
    appendField(datagram, "SYSLOG_IDENTIFIER", "lumaro");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, journalSocket, sizeof(address.sun_path) - 1);
    ::sendto(journal, datagram.constData(), static_cast<std::size_t>(datagram.size()), MSG_DONTWAIT | MSG_NOSIGNAL,
             reinterpret_cast<const sockaddr*>(&address), sizeof(address));
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// A placeholder of a format: where it ends, and which argument it asks for by number ("%2$@"), or -1 for the next.
struct Placeholder {
    qsizetype end = 0;
    int argument = -1;
};

/// The placeholder that begins with the percent sign at `start`; an end of 0 when there is none.
Placeholder placeholderAt(const QString& format, qsizetype start) {
    Placeholder found;
    qsizetype at = start + 1;
    while (at < format.size() && (isDigit(format[at]) || format[at] == u'.'))
        ++at;
    if (at < format.size() && format[at] == u'$') {
        found.argument = format.mid(start + 1, at - start - 1).toInt() - 1;
        ++at;
    }
    while (at < format.size() && format[at] == u'l')
        ++at;
    if (at < format.size() && QStringLiteral("@dgfsuxX").contains(format[at]))
        found.end = at + 1;
    return found;
}

} // namespace

void Log::write(const QString& line) {
    QString text = line;
    while (text.endsWith(u'\n') || text.endsWith(u'\r'))
        text.chop(1);

    Sink sink;
    {
        const std::scoped_lock lock(sMutex);
        if (!sSink) {
            const QByteArray bytes = text.toUtf8();
            writeToStandardError(bytes);
            writeToJournal(bytes);
            return;
        }
        sink = sSink;
    }
    // Outside the lock: the sink may log.
    sink(text);
}

void Log::setSink(Sink sink) {
    const std::scoped_lock lock(sMutex);
    sSink = std::move(sink);
}

QString formatted(const QString& format, const QStringList& arguments) {
    QString result;
    result.reserve(format.size());
    qsizetype next = 0;
    for (qsizetype at = 0; at < format.size();) {
        if (format[at] != u'%') {
            result += format[at++];
            continue;
        }
        if (at + 1 < format.size() && format[at + 1] == u'%') {
            result += u'%';
            at += 2;
            continue;
        }
        const Placeholder placeholder = placeholderAt(format, at);
        if (placeholder.end == 0) {
            result += format[at++];
            continue;
        }
        const qsizetype argument = placeholder.argument >= 0 ? placeholder.argument : next++;
        if (argument < arguments.size())
            result += arguments[argument];
        else
            result += QStringView(format).mid(at, placeholder.end - at);
        at = placeholder.end;
    }
    return result;
}

} // namespace platform

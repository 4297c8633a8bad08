// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"

#include "platform/base/Journal.h"

#include <QByteArray>
#include <QStringList>

#include <cerrno>
#include <mutex>
#include <poll.h>
#include <unistd.h>

namespace platform {

namespace {

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
            // Never destroyed: threads may still write as the process ends.
            static const Journal& journal = *new Journal(Journal::systemAddress);
            journal.write(bytes);
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

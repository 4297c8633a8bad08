// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Informational lines are written (setting QVEnableTrace). Lines that begin "ERROR: " or "WARNING: " are written
/// always.
extern bool gTracingEnabled;

/// Writes a line of the system log while tracing: the format with its placeholders filled in order. The arguments are
/// only turned into text when they are needed.
template <class... Arguments>
void trace(const char* format, const Arguments&... arguments);

/// Writes a line of the system log always.
template <class... Arguments>
void logAlways(const char* format, const Arguments&... arguments);

/// Logs "BEGIN: %s {" now and "} END: %s" at the end of the scope, while tracing. `name` is the operation's full name,
/// "-[QVAppController finishLaunching]".
class TraceScope {
public:
    explicit TraceScope(const char* name);
    TraceScope(const TraceScope&) = delete;
    TraceScope& operator=(const TraceScope&) = delete;
    ~TraceScope();

private:
    const char* _name;
};

namespace tracing {
void writeLine(const char* format, const QStringList& arguments);
inline QString argument(const QString& text) {
    return text;
}
inline QString argument(const char* text) {
    return QString::fromUtf8(text);
}
inline QString argument(bool flag) {
    return QString::number(flag ? 1 : 0);
}
template <class Number>
QString argument(Number number) {
    return QString::number(number);
}
} // namespace tracing

template <class... Arguments>
void trace(const char* format, const Arguments&... arguments) {
    if (gTracingEnabled)
        tracing::writeLine(format, {tracing::argument(arguments)...});
}

template <class... Arguments>
void logAlways(const char* format, const Arguments&... arguments) {
    tracing::writeLine(format, {tracing::argument(arguments)...});
}

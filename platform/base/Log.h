// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace platform {

/// The system log: one line each, to standard error, and to the journal as well when standard error is no terminal.
/// May be called on any thread.
class Log {
public:
    using Sink = std::function<void(const QString& line)>;

    /// Writes one line. Line breaks at its end are dropped.
    static void write(const QString& line);
    /// Replaces where lines go (tests capture them); an empty sink restores the default.
    static void setSink(Sink sink);
};

/// Fills the "%@" and "%d" (and "%g", "%f", "%s", "%X", "%0nX", "%%") of a format in order with the arguments, which
/// are texts already. A placeholder without an argument stays as it is; spare arguments are dropped.
QString formatted(const QString& format, const QStringList& arguments);

} // namespace platform

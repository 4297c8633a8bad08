// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/// The beginning of a file, at most so many bytes, read once in one go. None when it cannot be opened or read, or is no
/// regular file: pipes and devices are never waited for. A file that shrinks meanwhile gives what is left. Any thread.
std::optional<QByteArray> readRegularFile(const QString& path, qsizetype limit);

} // namespace platform

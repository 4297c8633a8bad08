// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace platform {

/// Behind the last slash of a path: the file's name. Any thread.
QString lastPathComponent(const QString& path);

/// Without the dot; empty without one. A leading dot of the file's name begins no extension. Any thread.
QString pathExtension(const QString& path);

/// The path without its extension and the dot. Any thread.
QString pathWithoutExtension(const QString& path);

} // namespace platform

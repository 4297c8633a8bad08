// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PathNames.h"

namespace platform {

namespace {

/// Where the dot of the extension is; the end of the path without one.
qsizetype extensionDot(const QString& path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > path.lastIndexOf(u'/') + 1 ? dot : path.size();
}

} // namespace

QString lastPathComponent(const QString& path) {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString pathExtension(const QString& path) {
    return path.mid(extensionDot(path) + 1);
}

QString pathWithoutExtension(const QString& path) {
    return path.left(extensionDot(path));
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PathNames.h"

#include <QFile>
#include <QUtf8StringView>

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

QUrl urlOfNativePath(const QByteArray& path) {
    if (QUtf8StringView(path).isValidUtf8())
        return QUrl::fromLocalFile(QString::fromUtf8(path));
    // What is no UTF-8 stays percent-encoded in the URL.
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"));
}

QByteArray nativePath(const QUrl& url) {
    const QString encoded = url.path(QUrl::FullyEncoded);
    const bool isHere = url.host().isEmpty() || url.host() == QStringLiteral("localhost");
    if (!isHere)
        return QFile::encodeName(url.toLocalFile());
    return QByteArray::fromPercentEncoding(encoded.toLatin1());
}

QString textOfNativePath(const QByteArray& path) {
    return QUtf8StringView(path).isValidUtf8() ? QString::fromUtf8(path)
                                               : urlOfNativePath(path).toString(QUrl::FullyEncoded);
}

} // namespace platform

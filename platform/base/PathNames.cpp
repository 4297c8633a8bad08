// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PathNames.h"

#include <QFile>
#include <QUtf8StringView>

#include <algorithm>

namespace platform {

namespace {

/// Where the dot of the extension is; the end of the path without one.
qsizetype extensionDot(const QString& path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > path.lastIndexOf(u'/') + 1 ? dot : path.size();
}

/// Those that stand for a byte.
constexpr char16_t firstByte = 0xDC80;
constexpr char16_t lastByte = 0xDCFF;

/// How many bytes the character takes that begins here; 0 where none does.
qsizetype characterLength(QByteArrayView bytes) {
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length) {
        if (QUtf8StringView(bytes.first(length)).isValidUtf8())
            return length;
    }
    return 0;
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

QString pathOfBytes(const QByteArray& bytes) {
    if (QUtf8StringView(bytes).isValidUtf8())
        return QString::fromUtf8(bytes);
    QString path;
    for (qsizetype at = 0; at < bytes.size();) {
        const qsizetype length = characterLength(QByteArrayView(bytes).sliced(at));
        if (length > 0)
            path.append(QString::fromUtf8(bytes.sliced(at, length)));
        else
            path.append(QChar(static_cast<char16_t>(firstByte - 0x80 + static_cast<unsigned char>(bytes[at]))));
        at += std::max<qsizetype>(length, 1);
    }
    return path;
}

QByteArray bytesOfPath(const QString& path) {
    QByteArray bytes;
    qsizetype written = 0;
    for (qsizetype at = 0; at < path.size(); ++at) {
        const char16_t unit = path[at].unicode();
        const bool isPair = at > 0 && path[at - 1].isHighSurrogate();
        if (unit < firstByte || unit > lastByte || isPair)
            continue;
        bytes += QStringView(path).sliced(written, at - written).toUtf8();
        bytes += static_cast<char>(unit - firstByte + 0x80);
        written = at + 1;
    }
    return bytes += QStringView(path).sliced(written).toUtf8();
}

QString storedPath(const QString& path) {
    return textOfNativePath(bytesOfPath(path));
}

QString pathFromStored(const QString& text) {
    return text.startsWith(QStringLiteral("file:")) ? pathOfBytes(nativePath(QUrl(text))) : text;
}

} // namespace platform

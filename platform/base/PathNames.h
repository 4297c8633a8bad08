// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace platform {

/// Behind the last slash of a path: the file's name. Any thread.
QString lastPathComponent(const QString& path);

/// Without the dot; empty without one. A leading dot of the file's name begins no extension. Any thread.
QString pathExtension(const QString& path);

/// The path without its extension and the dot. Any thread.
QString pathWithoutExtension(const QString& path);

/// The URL of a file by its absolute path, in the file system's own bytes: they need not be UTF-8. One such path has
/// one URL, and nativePath() finds the bytes again. Any thread.
QUrl urlOfNativePath(const QByteArray& path);

/// The path of a local file's URL in the bytes of the file system, which QUrl::toLocalFile() answers for names of UTF-8
/// alone. Any thread.
QByteArray nativePath(const QUrl& url);

/// A text for a path of the file system as the user's hand-overs are kept: the path, or where that is no UTF-8, its
/// URL. Any thread.
QString textOfNativePath(const QByteArray& path);

/// A path as a text that is taken apart, compared and opened again, and never stored or sent: each byte that is no
/// UTF-8 is the half of a surrogate pair (U+DC80 to U+DCFF) in it, of which bytesOfPath() makes the byte again. Any
/// thread.
QString pathOfBytes(const QByteArray& bytes);
QByteArray bytesOfPath(const QString& path);

/// The same path as textOfNativePath() writes it, to be stored, and back. Any thread.
QString storedPath(const QString& path);
QString pathFromStored(const QString& text);

} // namespace platform

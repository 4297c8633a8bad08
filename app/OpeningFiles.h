// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace platform {
class Bundle;
} // namespace platform

/// Turning what the user hands over into the URLs of movies.

/// The file types of the information dictionary's document types: extensions, and type codes between single quotes.
QStringList supportedFileTypes(const platform::Bundle& bundle);

/// The MIME types of the same document types, each once.
QStringList supportedMimeTypes(const platform::Bundle& bundle);

/// True with no types at all; else when the lowercased extension of the path is among them.
bool isFileOfType(const QString& path, const QStringList& types);

/// The texts that are URLs.
QList<QUrl> urlsWithURLStrings(const QStringList& strings);

/// Whether the text is a URL with a scheme rather than a path.
bool isURLString(const QString& text);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/MovieBatch.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <atomic>

namespace platform {
class Bundle;
} // namespace platform

inline constexpr std::atomic<bool> neverCancelled{false};

/// Turning what the user hands over into the URLs of movies.

/// The file types of the information dictionary's document types: extensions, and type codes between single quotes.
QStringList supportedFileTypes(const platform::Bundle& bundle);

/// True with no types at all; else when the lowercased extension of the path is among them.
bool isFileOfType(const QString& path, const QStringList& types);

/// The files of these types among the paths, folders walked to the bottom; what does not exist or is of another type is
/// left out. Ends with what was found so far once `cancelled` is set. Any thread.
QList<QUrl> urlsWithPathStrings(const QStringList& paths, const QStringList& types,
                                const std::atomic<bool>& cancelled = neverCancelled);

/// The movies among what was handed over, and what of it holds none: a folder, and where nothing else is there to be
/// opened, each file that is missing or of another type.
struct FoundMovies {
    QList<QUrl> urls;
    QList<OpeningFailure> failures;
};
/// Paths and URLs are told apart by isURLString(). As urlsWithPathStrings().
FoundMovies findMovies(const QStringList& pathsOrUrls, const QStringList& types,
                       const std::atomic<bool>& cancelled = neverCancelled);

/// The texts that are URLs.
QList<QUrl> urlsWithURLStrings(const QStringList& strings);

/// Whether the text is a URL with a scheme rather than a path.
bool isURLString(const QString& text);

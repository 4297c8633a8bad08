// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpeningFiles.h"

#include "platform/base/Bundle.h"
#include "platform/base/StringComparison.h"
#include "platform/movie/Movie.h"
#include "playlist/OpeningReport.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// Folders that other systems show as one file: what lies inside is not the user's to play.
bool isFilePackage(const QString& folder) {
    static const QSet<QString> extensions{QStringLiteral("app"),          QStringLiteral("bundle"),
                                          QStringLiteral("fcpbundle"),    QStringLiteral("imovielibrary"),
                                          QStringLiteral("photolibrary"), QStringLiteral("photoslibrary"),
                                          QStringLiteral("pkg"),          QStringLiteral("plugin"),
                                          QStringLiteral("rcproject"),    QStringLiteral("rtfd")};
    return extensions.contains(QFileInfo(folder).suffix().toLower()) ||
           QFileInfo::exists(folder + QStringLiteral("/Contents/Info.plist"));
}

/// Walks a folder in the order in which a person reads its list: names without regard to case, numbers by value;
/// of names that differ in case alone the one in capitals first.
void addFolder(const QString& folder, const QStringList& types, const std::atomic<bool>& cancelled, QSet<QString>& seen,
               QList<QUrl>& urls) {
    // A link back up must not make the walk go round.
    const QString place = QFileInfo(folder).canonicalFilePath();
    if (place.isEmpty() || seen.contains(place))
        return;
    seen.insert(place);
    const auto filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System;
    std::vector<std::pair<QString, QString>> names;
    for (const QString& name : QDir(folder).entryList(filter, QDir::NoSort))
        names.emplace_back(platform::keyForComparison(name, true), name);
    std::ranges::sort(names);
    for (const auto& [key, name] : names) {
        if (cancelled)
            return;
        const QString path = folder + QLatin1Char('/') + name;
        const QFileInfo info(path);
        if (info.isDir()) {
            if (!isFilePackage(path))
                addFolder(path, types, cancelled, seen, urls);
        } else if (info.exists() && isFileOfType(path, types)) {
            urls.append(QUrl::fromLocalFile(info.absoluteFilePath()));
        }
    }
}

} // namespace

QStringList supportedFileTypes(const platform::Bundle& bundle) {
    QStringList types;
    types.reserve(20);
    const QVariant documents = bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleDocumentTypes"));
    for (const QVariant& document : documents.toList()) {
        const QVariantMap entry = document.toMap();
        types += entry.value(QStringLiteral("CFBundleTypeExtensions")).toStringList();
        for (const QString& code : entry.value(QStringLiteral("CFBundleTypeOSTypes")).toStringList())
            types += QLatin1Char('\'') + code + QLatin1Char('\'');
    }
    return types;
}

bool isFileOfType(const QString& path, const QStringList& types) {
    return types.isEmpty() || types.contains(QFileInfo(path).suffix().toLower());
}

QList<QUrl> urlsWithPathStrings(const QStringList& paths, const QStringList& types,
                                const std::atomic<bool>& cancelled) {
    QList<QUrl> urls;
    for (const QString& path : paths) {
        if (cancelled)
            break;
        const QFileInfo info(path);
        QSet<QString> seen;
        if (info.isDir())
            addFolder(info.absoluteFilePath(), types, cancelled, seen, urls);
        else if (info.exists() && isFileOfType(path, types))
            urls.append(QUrl::fromLocalFile(info.absoluteFilePath()));
    }
    return urls;
}

FoundMovies findMovies(const QStringList& pathsOrUrls, const QStringList& types, const std::atomic<bool>& cancelled) {
    FoundMovies found;
    QList<OpeningFailure> otherFiles;
    for (const QString& text : pathsOrUrls) {
        const QList<QUrl> urls =
            isURLString(text) ? urlsWithURLStrings({text}) : urlsWithPathStrings({text}, types, cancelled);
        found.urls += urls;
        if (cancelled)
            return found;
        if (!urls.isEmpty() || isURLString(text))
            continue;
        const QFileInfo info(text);
        const QUrl url = QUrl::fromLocalFile(info.absoluteFilePath());
        if (info.isDir())
            found.failures.append({url, OpeningReport::noMoviesInFolder});
        else
            otherFiles.append(
                {url, info.exists() ? platform::movieError::invalidMovie : platform::movieError::fileNotFound});
    }
    // Beside a movie its subtitles, its cover and the like are handed over, too.
    if (found.urls.isEmpty())
        found.failures += otherFiles;
    return found;
}

QList<QUrl> urlsWithURLStrings(const QStringList& strings) {
    QList<QUrl> urls;
    for (const QString& string : strings) {
        QUrl url(string.trimmed(), QUrl::TolerantMode);
        if (string.trimmed().isEmpty() || !url.isValid())
            continue;
        // What other programs write for this machine (RFC 8089).
        if (url.isLocalFile() && url.host() == QStringLiteral("localhost"))
            url.setHost(QString());
        // However a file's address is written, it is the one that its path makes.
        urls.append(url.isLocalFile() ? QUrl::fromLocalFile(url.toLocalFile()) : url);
    }
    return urls;
}

bool isURLString(const QString& text) {
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*://"));
    return scheme.match(text).hasMatch();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpeningFiles.h"

#include "platform/base/Bundle.h"
#include "platform/base/PathNames.h"

#include <QRegularExpression>
#include <QVariant>

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

QStringList supportedMimeTypes(const platform::Bundle& bundle) {
    QStringList types;
    const QVariant documents = bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleDocumentTypes"));
    for (const QVariant& document : documents.toList())
        types += document.toMap().value(QStringLiteral("CFBundleTypeMIMETypes")).toStringList();
    types.removeDuplicates();
    return types;
}

bool isFileOfType(const QString& path, const QStringList& types) {
    return types.isEmpty() || types.contains(platform::pathExtension(path).toLower());
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
        urls.append(url.isLocalFile() ? platform::urlOfNativePath(platform::nativePath(url)) : url);
    }
    return urls;
}

bool isURLString(const QString& text) {
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*://"));
    return scheme.match(text).hasMatch();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/unrar/ArchiveListing.h"

#include "tools/unrar/Limits.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <sys/stat.h>

namespace {

bool isSet(const QJsonObject& entry, const char* key) {
    const QJsonValue value = entry.value(QLatin1String(key));
    return value.toBool() || value.toDouble() != 0;
}

bool staysWithin(const QString& name) {
    QString path = name;
    path.replace(u'\\', u'/');
    return !path.isEmpty() && !path.startsWith(u'/') && !path.contains(QChar::Null) &&
           !path.split(u'/').contains(QStringLiteral(".."));
}

bool isRegularFile(const QJsonObject& entry) {
    constexpr const char* others[] = {"XADIsLink",        "XADIsHardLink",    "XADIsFIFO", "XADIsCharacterDevice",
                                      "XADIsBlockDevice", "XADIsResourceFork"};
    if (std::any_of(std::begin(others), std::end(others), [&](const char* key) { return isSet(entry, key); }))
        return false;
    // Where a Unix system wrote the archive the mode tells what the entry was.
    QString mode = QStringLiteral("XADPosixPermissions");
    if (entry.value(QStringLiteral("RAROS")).toInt() == 3)
        mode = QStringLiteral("RARAttributes");
    else if (entry.value(QStringLiteral("RAR5OS")).toInt() == 1)
        mode = QStringLiteral("RAR5Attributes");
    const auto kind = static_cast<mode_t>(entry.value(mode).toDouble()) & S_IFMT;
    return kind == 0 || kind == S_IFREG;
}

} // namespace

ArchiveListing ArchiveListing::fromJson(const QByteArray& json) {
    ArchiveListing listing;
    const QJsonObject archive = QJsonDocument::fromJson(json).object();
    const QJsonArray entries = archive.value(QStringLiteral("lsarContents")).toArray();
    if (archive.isEmpty() || isSet(archive, "lsarError"))
        listing.error = QStringLiteral("the archive is damaged");
    else if (static_cast<std::uint64_t>(entries.size()) > limits::entries)
        listing.error = QStringLiteral("too many entries");
    double size = 0;
    for (const QJsonValue& value : entries) {
        const QJsonObject entry = value.toObject();
        const QString name = entry.value(QStringLiteral("XADFileName")).toString();
        if (name.count(u'/') + name.count(u'\\') > limits::depth)
            listing.error = QStringLiteral("too many folders within one another");
        if (isSet(entry, "XADIsDirectory"))
            continue;
        if (isSet(entry, "XADIsEncrypted"))
            listing.error = QStringLiteral("the archive is encrypted");
        if (!isRegularFile(entry) || !staysWithin(name)) {
            ++listing.leftOut;
            continue;
        }
        listing.indexes.append(QString::number(entry.value(QStringLiteral("XADIndex")).toInt()));
        size += std::max(0.0, entry.value(QStringLiteral("XADFileSize")).toDouble());
    }
    if (listing.error.isEmpty() && size > static_cast<double>(limits::bytes))
        listing.error = QStringLiteral("too large");
    if (listing.error.isEmpty() && listing.indexes.isEmpty())
        listing.error = QStringLiteral("no files");
    listing.size = listing.error.isEmpty() ? static_cast<std::uint64_t>(size) : 0;
    return listing;
}

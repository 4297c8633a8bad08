// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/SubFileSearch.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

QString preferred(QStringList files, const QString& baseName) {
    files.sort();
    for (const QString& file : files) {
        if (QFileInfo(file).completeBaseName().compare(baseName, Qt::CaseInsensitive) == 0)
            return file;
    }
    return files.value(0);
}

QStringList dataFiles(const QString& folder, QDirIterator::IteratorFlags flags) {
    QStringList files;
    // Name filters ignore the case of letters.
    QDirIterator entries(folder, {QStringLiteral("*.sub")}, QDir::Files | QDir::NoSymLinks | QDir::Hidden, flags);
    while (entries.hasNext())
        files.append(entries.next());
    return files;
}

} // namespace

QString SubFileSearch::fileBeside(const QString& base, const QString& extension) {
    // Asking for each of the few ways to write it is cheaper than reading a folder of many films.
    const auto ways = 1U << static_cast<unsigned>(extension.size());
    const auto file = [&](unsigned upperCase) {
        QString path = base + u'.' + extension;
        for (qsizetype letter = 0; letter < extension.size(); ++letter) {
            if (upperCase >> static_cast<unsigned>(letter) & 1U)
                path[base.size() + 1 + letter] = extension[letter].toUpper();
        }
        return QFileInfo(path).isFile() ? path : QString();
    };
    QString found = file(0);
    for (unsigned way = ways - 1; found.isEmpty() && way > 0; --way)
        found = file(way);
    return found;
}

QString SubFileSearch::archiveBeside(const QString& base) {
    const QString extension = QStringLiteral("rar");
    QString found = fileBeside(base, extension);
    for (const char* part : {".part1", ".part01", ".part001"}) {
        for (const QString& name : {QString::fromLatin1(part), QString::fromLatin1(part).toUpper()}) {
            if (found.isEmpty())
                found = fileBeside(base + name, extension);
        }
    }
    return found;
}

QString SubFileSearch::dataFileWithin(const QString& folder, const QString& baseName) {
    const QString found = preferred(dataFiles(folder, QDirIterator::NoIteratorFlags), baseName);
    return found.isEmpty() ? preferred(dataFiles(folder, QDirIterator::Subdirectories), baseName) : found;
}

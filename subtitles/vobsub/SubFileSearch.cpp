// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/SubFileSearch.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"

#include <QStringList>

#include <filesystem>
#include <system_error>

namespace {

QString preferred(QStringList files, const QString& baseName) {
    files.sort();
    for (const QString& file : files) {
        const QString name = platform::lastPathComponent(platform::pathWithoutExtension(file));
        if (name.compare(baseName, Qt::CaseInsensitive) == 0)
            return file;
    }
    return files.value(0);
}

/// Links are left out, whatever they lead to.
template <class Entries>
QStringList dataFiles(const QString& folder) {
    QStringList files;
    std::error_code error;
    for (Entries entry(platform::bytesOfPath(folder).toStdString(), error), end; !error && entry != end;
         entry.increment(error)) {
        const QString path = platform::pathOfBytes(entry->path().c_str());
        std::error_code unknown;
        if (path.endsWith(u".sub", Qt::CaseInsensitive) &&
            entry->symlink_status(unknown).type() == std::filesystem::file_type::regular)
            files.append(path);
    }
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
        const auto facts = platform::factsOfFile(platform::bytesOfPath(path));
        return facts && facts->isFile ? path : QString();
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
    using namespace std::filesystem;
    const QString found = preferred(dataFiles<directory_iterator>(folder), baseName);
    return found.isEmpty() ? preferred(dataFiles<recursive_directory_iterator>(folder), baseName) : found;
}

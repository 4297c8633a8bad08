// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FolderWalk.h"

#include "app/OpeningFiles.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/base/StringComparison.h"

#include <QSet>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <tuple>
#include <vector>

namespace {

/// What lies inside is not the user's to play.
bool isFilePackage(const QByteArray& folder) {
    static const QSet<QString> extensions{QStringLiteral("app"),          QStringLiteral("bundle"),
                                          QStringLiteral("fcpbundle"),    QStringLiteral("imovielibrary"),
                                          QStringLiteral("photolibrary"), QStringLiteral("photoslibrary"),
                                          QStringLiteral("pkg"),          QStringLiteral("plugin"),
                                          QStringLiteral("rcproject"),    QStringLiteral("rtfd")};
    return extensions.contains(platform::pathExtension(QString::fromUtf8(folder)).toLower()) ||
           ::access((folder + "/Contents/Info.plist").constData(), F_OK) == 0;
}

bool isHidden(const QByteArray& name) {
    return name.startsWith('.');
}

/// What another system put beside a file that this one has no place for: it has that file's name, and is no movie.
bool isCompanion(const QByteArray& path, const QByteArray& name) {
    if (!name.startsWith("._"))
        return false;
    const auto begin = platform::readRegularFileAt(path, 4);
    return begin && *begin == QByteArray("\x00\x05\x16\x07", 4);
}

enum class FileKind { file, folder, other };

FileKind kindOf(const struct stat& facts) {
    return S_ISDIR(facts.st_mode) ? FileKind::folder : S_ISREG(facts.st_mode) ? FileKind::file : FileKind::other;
}

/// Of most entries the folder itself says what they are.
FileKind kindOf(int folder, const dirent& entry) {
    if (entry.d_type == DT_REG)
        return FileKind::file;
    if (entry.d_type == DT_DIR)
        return FileKind::folder;
    struct stat facts {};
    const bool isUnsaid = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    return isUnsaid && ::fstatat(folder, entry.d_name, &facts, 0) == 0 ? kindOf(facts) : FileKind::other;
}

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace

struct FolderWalk::Entry {
    QString key; // in the order of reading
    QByteArray name;
    bool isFolder = false;
};

FolderWalk::FolderWalk(const QStringList& types, const std::atomic<bool>& cancelled, Listener listener, Seen& seen)
    : _types(types)
    , _cancelled(cancelled)
    , _listener(std::move(listener))
    , _seen(seen) {}

bool FolderWalk::isNew(int folder) {
    struct stat facts {};
    return ::fstat(folder, &facts) == 0 && _seen.insert({facts.st_dev, facts.st_ino}).second;
}

void FolderWalk::walk(const QByteArray& folder) {
    std::vector<Entry> entries;
    {
        const std::unique_ptr<DIR, CloseFolder> opened(::opendir(folder.constData()));
        if (!opened) {
            if (errno != ENOENT && errno != ENOTDIR)
                _listener.unreadable(folder);
            return;
        }
        if (!isNew(::dirfd(opened.get())))
            return;
        while (const dirent* entry = _cancelled ? nullptr : ::readdir(opened.get())) {
            const QByteArray name(entry->d_name);
            const QString text = QString::fromUtf8(name);
            if (name == "." || name == "..")
                continue;
            const FileKind kind = kindOf(::dirfd(opened.get()), *entry);
            if (kind == FileKind::folder || (kind == FileKind::file && isFileOfType(text, _types)))
                entries.push_back({platform::keyForComparison(text, true), name, kind == FileKind::folder});
        }
    }
    std::ranges::sort(entries, [](const Entry& a, const Entry& b) {
        return std::make_tuple(isHidden(a.name), std::tie(a.key, a.name)) <
               std::make_tuple(isHidden(b.name), std::tie(b.key, b.name));
    });
    for (const Entry& entry : entries) {
        if (_cancelled)
            return;
        const QByteArray path = (folder.endsWith('/') ? folder : folder + '/') + entry.name;
        if (entry.isFolder && !isFilePackage(path))
            walk(path);
        else if (!entry.isFolder && !isCompanion(path, entry.name))
            _listener.found(path);
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PrivateFolder.h"

#include "platform/base/Log.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr const char* prefix = "lumaro-private-";

std::string folderFor(const QString& parent) {
    return QFile::encodeName(QDir(parent.isEmpty() ? QDir::tempPath() : parent).absolutePath()).toStdString();
}

int openFolder(const char* path) {
    return ::open(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// Whether the folder can be had for this process alone. One whose file system knows no locks is its owner's.
bool isLocked(int folder) {
    return ::flock(folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// Whether the path still leads to the opened folder.
bool leadsTo(const char* path, int folder) {
    struct stat named {};
    struct stat opened {};
    return ::lstat(path, &named) == 0 && ::fstat(folder, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

/// Gives back the right to empty the folders of a tree.
void unlockFolders(const fs::path& folder) {
    std::error_code error;
    fs::permissions(folder, fs::perms::owner_all, error);
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        if (fs::is_directory(entry->symlink_status(unknown)))
            unlockFolders(entry->path());
    }
}

void removeAbandoned(const fs::path& path) {
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode) || facts.st_uid != ::geteuid())
        return;
    const int folder = openFolder(path.c_str());
    if (folder < 0)
        return;
    if (::flock(folder, LOCK_EX | LOCK_NB) == 0 && leadsTo(path.c_str(), folder))
        removeTree(QFile::decodeName(path.c_str()));
    ::close(folder);
}

/// The folder around the subfolders, while there are any.
struct Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::unique_ptr<PrivateFolder> folder;
    int inUse = 0;
    unsigned made = 0;
};

/// Never destroyed: a thread may still remove a subfolder when the process ends.
Shared& sharedFolder() {
    static Shared& shared = *new Shared;
    return shared;
}

} // namespace

PrivateFolder::PrivateFolder(QString path, int lock)
    : _path(std::move(path))
    , _lock(lock) {}

std::unique_ptr<PrivateFolder> PrivateFolder::make(const QString& parent) {
    const std::string pattern = folderFor(parent) + '/' + prefix + "XXXXXX";
    // A sweep that comes between making and locking removes the folder: then another one is made.
    for (int attempt = 0; attempt < 10; ++attempt) {
        std::string path = pattern;
        if (!::mkdtemp(path.data())) {
            Log::write(QStringLiteral("ERROR: PrivateFolder: Unable to make %1: %2.")
                           .arg(QFile::decodeName(path.c_str()), QString::fromLocal8Bit(std::strerror(errno))));
            return nullptr;
        }
        const int folder = openFolder(path.c_str());
        if (folder >= 0 && isLocked(folder) && leadsTo(path.c_str(), folder))
            return std::unique_ptr<PrivateFolder>(new PrivateFolder(QFile::decodeName(path.c_str()), folder));
        if (folder < 0) {
            ::rmdir(path.c_str());
            return nullptr;
        }
        ::close(folder);
    }
    return nullptr;
}

PrivateFolder::~PrivateFolder() {
    removeTree(_path);
    ::close(_lock);
}

void PrivateFolder::sweep(const QString& parent) {
    std::error_code error;
    for (fs::directory_iterator entry(folderFor(parent), error), end; !error && entry != end; entry.increment(error)) {
        if (entry->path().filename().native().starts_with(prefix))
            removeAbandoned(entry->path());
    }
}

PrivateSubfolder::PrivateSubfolder(QString path)
    : _path(std::move(path)) {}

std::unique_ptr<PrivateSubfolder> PrivateSubfolder::make() {
    Shared& shared = sharedFolder();
    const std::scoped_lock lock(shared.mutex);
    if (!shared.folder)
        shared.folder = PrivateFolder::make();
    if (!shared.folder)
        return nullptr;
    const QString path = shared.folder->path() + u'/' + QString::number(++shared.made);
    constexpr ::mode_t forThisUser = 0700;
    if (::mkdir(QFile::encodeName(path).constData(), forThisUser) != 0) {
        Log::write(QStringLiteral("ERROR: PrivateFolder: Unable to make %1: %2.")
                       .arg(path, QString::fromLocal8Bit(std::strerror(errno))));
        if (shared.inUse == 0)
            shared.folder.reset();
        return nullptr;
    }
    ++shared.inUse;
    return std::unique_ptr<PrivateSubfolder>(new PrivateSubfolder(path));
}

PrivateSubfolder::~PrivateSubfolder() {
    removeTree(_path);
    Shared& shared = sharedFolder();
    const std::scoped_lock lock(shared.mutex);
    if (--shared.inUse == 0)
        shared.folder.reset();
    shared.changed.notify_all();
}

bool PrivateSubfolder::waitUntilGone(double seconds) {
    Shared& shared = sharedFolder();
    std::unique_lock lock(shared.mutex);
    return shared.changed.wait_for(lock, std::chrono::duration<double>(seconds), [&] { return shared.inUse == 0; });
}

void removeTree(const QString& path) {
    const fs::path tree = QFile::encodeName(path).toStdString();
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(tree, error)))
        unlockFolders(tree);
    fs::remove_all(tree, error);
}

} // namespace platform

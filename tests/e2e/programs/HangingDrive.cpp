// SPDX-License-Identifier: GPL-3.0-or-later
// Loaded into a program before its libraries: the folder that LUMARO_HANGING_DRIVE names is a drive of a network that
// does not answer any more once "FOLDER.hangs" stands beside it. Whoever asks it for something waits for good. Where
// "FOLDER.stalls" holds a number, only what lies behind that many bytes of a file on it never comes.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

const std::string& drive() {
    // Never destroyed: files are asked for until the process has ended.
    static const auto* const folder = [] {
        const char* name = std::getenv("LUMARO_HANGING_DRIVE");
        return new std::string(name ? name : "");
    }();
    return *folder;
}

void touch(const char* path) {
    const std::string& folder = drive();
    if (!path || folder.empty() || std::strncmp(path, folder.c_str(), folder.size()) != 0 ||
        (path[folder.size()] != '/' && path[folder.size()] != '\0'))
        return;
    if (::syscall(SYS_access, (folder + ".hangs").c_str(), F_OK) != 0)
        return;
    while (true)
        ::pause();
}

/// Of a path that begins at an open folder.
void touchAt(int folder, const char* path) {
    if (!path || path[0] == '/' || folder == AT_FDCWD) {
        touch(path);
        return;
    }
    char target[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    const ssize_t length = ::syscall(SYS_readlink, link.c_str(), target, sizeof target - 1);
    if (length > 0)
        touch((std::string(target, static_cast<std::size_t>(length)) + '/' + path).c_str());
}

template <class Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// Before a read of the file from there on.
void touchContent(int descriptor, off_t from) {
    const std::string& folder = drive();
    if (folder.empty() || from < 0)
        return;
    const std::string limitFile = folder + ".stalls";
    const auto file = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, limitFile.c_str(), O_RDONLY));
    if (file < 0)
        return;
    char text[32] = {};
    ::syscall(SYS_read, file, text, sizeof text - 1);
    ::syscall(SYS_close, file);
    char target[PATH_MAX] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const bool isThere = ::syscall(SYS_readlink, link.c_str(), target, sizeof target - 1) > 0 &&
                         std::strncmp(target, (folder + '/').c_str(), folder.size() + 1) == 0;
    while (isThere && from >= std::atol(text))
        ::pause();
}

mode_t modeOf(int flags, va_list& arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

#define LUMARO_OPEN(name)                                                                                              \
    int name(const char* path, int flags, ...) {                                                                       \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = modeOf(flags, arguments);                                                                  \
        va_end(arguments);                                                                                             \
        touch(path);                                                                                                   \
        return next<int (*)(const char*, int, ...)>(#name)(path, flags, mode);                                         \
    }
#define LUMARO_OPEN_AT(name)                                                                                           \
    int name(int folder, const char* path, int flags, ...) {                                                           \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = modeOf(flags, arguments);                                                                  \
        va_end(arguments);                                                                                             \
        touchAt(folder, path);                                                                                         \
        return next<int (*)(int, const char*, int, ...)>(#name)(folder, path, flags, mode);                            \
    }
LUMARO_OPEN(open)
LUMARO_OPEN(open64)
LUMARO_OPEN_AT(openat)
LUMARO_OPEN_AT(openat64)

#define LUMARO_STAT(name, Facts)                                                                                       \
    int name(const char* path, struct Facts* facts) {                                                                  \
        touch(path);                                                                                                   \
        return next<int (*)(const char*, struct Facts*)>(#name)(path, facts);                                          \
    }
LUMARO_STAT(stat, stat)
LUMARO_STAT(lstat, stat)
LUMARO_STAT(stat64, stat64)
LUMARO_STAT(lstat64, stat64)

int fstatat(int folder, const char* path, struct stat* facts, int flags) {
    touchAt(folder, path);
    return next<decltype(&fstatat)>("fstatat")(folder, path, facts, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* facts) {
    touchAt(folder, path);
    return next<int (*)(int, const char*, int, unsigned, struct statx*)>("statx")(folder, path, flags, mask, facts);
}
int access(const char* path, int mode) {
    touch(path);
    return next<decltype(&access)>("access")(path, mode);
}
ssize_t read(int descriptor, void* bytes, size_t size) {
    touchContent(descriptor, drive().empty() ? -1 : ::lseek(descriptor, 0, SEEK_CUR));
    return next<decltype(&read)>("read")(descriptor, bytes, size);
}
DIR* opendir(const char* path) {
    touch(path);
    return next<decltype(&opendir)>("opendir")(path);
}

} // extern "C"
#pragma GCC visibility pop

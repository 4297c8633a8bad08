// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/RegularFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

OpenedFile openRegularFile(const QString& path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return {-1, 0, errno};
    struct stat facts {};
    int error = ::fstat(descriptor, &facts) != 0 ? errno : 0;
    if (error == 0 && !S_ISREG(facts.st_mode))
        error = S_ISDIR(facts.st_mode) ? EISDIR : EINVAL;
    if (error == 0)
        return {descriptor, facts.st_size, 0};
    ::close(descriptor);
    return {-1, 0, error};
}

std::optional<QByteArray> readRegularFile(const QString& path, qsizetype limit, int* error) {
    const OpenedFile file = openRegularFile(path);
    int code = file.error;
    QByteArray bytes(std::min<qsizetype>(limit, file.size), Qt::Uninitialized);
    qsizetype filled = 0;
    while (code == 0 && filled < bytes.size()) {
        const ssize_t count =
            ::read(file.descriptor, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0)
            code = errno == EINTR ? 0 : errno;
        else if (count == 0)
            break;
        else
            filled += count;
    }
    if (file.descriptor >= 0)
        ::close(file.descriptor);
    if (code != 0) {
        if (error)
            *error = code;
        return std::nullopt;
    }
    bytes.truncate(filled);
    return bytes;
}

} // namespace platform

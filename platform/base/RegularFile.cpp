// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/RegularFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

class Descriptor {
public:
    explicit Descriptor(const QString& path)
        : number(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number >= 0)
            ::close(number);
    }
    const int number;
};

} // namespace

std::optional<QByteArray> readRegularFile(const QString& path, qsizetype limit) {
    const Descriptor file(path);
    struct stat facts {};
    if (file.number < 0 || ::fstat(file.number, &facts) != 0 || !S_ISREG(facts.st_mode))
        return std::nullopt;
    QByteArray bytes(std::min<qsizetype>(limit, facts.st_size), Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count =
            ::read(file.number, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        filled += count;
    }
    bytes.truncate(filled);
    return bytes;
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/RegularFile.h"

#include "platform/base/PathNames.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

std::optional<FileFacts> factsOfFile(const QByteArray& nativePath) {
    struct stat facts {};
    if (::stat(nativePath.constData(), &facts) != 0)
        return std::nullopt;
    constexpr qint64 milliseconds = 1000;
    constexpr qint64 nanosecondsOfOne = 1000000;
    const qint64 changed = facts.st_mtim.tv_sec * milliseconds + facts.st_mtim.tv_nsec / nanosecondsOfOne;
    return FileFacts{S_ISREG(facts.st_mode), S_ISDIR(facts.st_mode), facts.st_size,
                     QDateTime::fromMSecsSinceEpoch(changed)};
}

OpenedFile openRegularFile(const QString& path) {
    return openRegularFileAt(bytesOfPath(path));
}

OpenedFile openRegularFileAt(const QByteArray& nativePath) {
    const int descriptor = ::open(nativePath.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
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

namespace {

/// Reads at most so many bytes of a file in pieces. `keep` is given each piece where it lies behind what was kept
/// before, and answers how much of it stays.
template <class Keep>
std::optional<QByteArray> readInPieces(const QByteArray& nativePath, qsizetype limit, qsizetype pieceSize, int* error,
                                       Keep keep) {
    const OpenedFile file = openRegularFileAt(nativePath);
    int code = file.error;
    // Pages that nothing is ever written to take no memory.
    QByteArray bytes(std::min<qsizetype>(limit, file.size), Qt::Uninitialized);
    qsizetype filled = 0;
    qsizetype rest = bytes.size();
    while (code == 0 && rest > 0) {
        char* const place = bytes.data() + filled;
        const ssize_t count = ::read(file.descriptor, place, static_cast<std::size_t>(std::min(rest, pieceSize)));
        if (count < 0)
            code = errno == EINTR ? 0 : errno;
        else if (count == 0)
            break;
        else
            filled += keep(place, static_cast<qsizetype>(count));
        rest -= std::max<qsizetype>(0, count);
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

/// Takes the ends of long lines out of a text that comes in pieces.
class LineCutter {
public:
    explicit LineCutter(qsizetype maximumLine)
        : _maximum(maximumLine) {}

    qsizetype leftOut() const { return _leftOut; }

    qsizetype keep(char* piece, qsizetype count) {
        if (_isFirst)
            lookAtBeginning(piece, count);
        qsizetype kept = 0;
        qsizetype feed = -1, carriageReturn = -1; // the next of each
        for (qsizetype at = 0; at < count;) {
            feed = next('\n', piece, std::max(at, feed), count);
            carriageReturn = next('\r', piece, std::max(at, carriageReturn), count);
            const qsizetype end = std::min(feed, carriageReturn);
            kept += keepOfLine(piece + at, end - at, end < count, piece + kept);
            if (end < count) {
                piece[kept++] = piece[end];
                _length = _gap = 0;
                _isCut = false;
            }
            at = end + 1;
        }
        return kept;
    }

private:
    static qsizetype next(char wanted, const char* piece, qsizetype from, qsizetype count) {
        const void* found =
            from < count ? std::memchr(piece + from, wanted, static_cast<std::size_t>(count - from)) : nullptr;
        return found ? static_cast<const char*>(found) - piece : count;
    }

    void lookAtBeginning(const char* piece, qsizetype count) {
        _isFirst = false;
        const std::string_view beginning(piece, static_cast<std::size_t>(std::min<qsizetype>(count, 2)));
        _isWide = beginning == "\xFF\xFE" || beginning == "\xFE\xFF" || beginning.find('\0') != std::string_view::npos;
    }

    /// Moves what stays of a part of a line to `target`, and answers how much that is.
    qsizetype keepOfLine(const char* part, qsizetype size, bool endsLine, char* target) {
        qsizetype taken = _isCut ? 0 : std::min(size, std::max<qsizetype>(0, _maximum - _length));
        if (!_isCut) {
            while (taken < size && mayGoOn(_length + taken, static_cast<unsigned char>(part[taken])))
                ++taken;
            _isCut = taken < size;
        }
        _length += taken;
        const qsizetype lost = size - taken;
        if (lost > 0)
            _last = part[size - 1];
        _gap += lost;
        _leftOut += lost;
        std::memmove(target, part, static_cast<std::size_t>(taken));
        // The halves of the units behind the gap stay where they belong.
        if (endsLine && _isWide && _gap % 2 != 0)
            target[taken++] = _last;
        return taken;
    }

    /// Whether a line of this length does not end in front of this byte yet. Blanks stand between two characters in
    /// every encoding of bytes; where there is none near, only UTF-8 shows where a character ends.
    bool mayGoOn(qsizetype length, unsigned byte) const {
        constexpr qsizetype blankIsNear = 1024, continuation = 3;
        if (_isWide || length >= _maximum + blankIsNear + continuation)
            return false;
        return length < _maximum + blankIsNear ? byte > 0x20U : (byte & 0xC0U) == 0x80U;
    }

    qsizetype _maximum;
    qsizetype _length = 0; // kept of the line so far
    qsizetype _gap = 0;    // lost of it
    char _last = 0;        // that was lost
    bool _isCut = false;
    bool _isFirst = true;
    bool _isWide = false; // in units of two bytes
    qsizetype _leftOut = 0;
};

} // namespace

std::optional<QByteArray> readRegularFile(const QString& path, qsizetype limit, int* error) {
    return readRegularFileAt(bytesOfPath(path), limit, error);
}

std::optional<QByteArray> readRegularFileAt(const QByteArray& nativePath, qsizetype limit, int* error) {
    return readInPieces(nativePath, limit, limit, error, [](const char*, qsizetype count) { return count; });
}

std::optional<TextFile> readTextFile(const QString& path, qsizetype limit, qsizetype maximumLine) {
    constexpr qsizetype pieceSize = 256 * 1024; // stays in a cache of the processor
    LineCutter cutter(maximumLine);
    auto bytes = readInPieces(bytesOfPath(path), limit, pieceSize, nullptr,
                              [&](char* piece, qsizetype count) { return cutter.keep(piece, count); });
    if (!bytes)
        return std::nullopt;
    if (cutter.leftOut() > 0)
        bytes->squeeze();
    return TextFile{std::move(*bytes), cutter.leftOut()};
}

} // namespace platform

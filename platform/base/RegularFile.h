// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace platform {

/// A regular file that was opened, or why it was not.
struct OpenedFile {
    /// To be closed by whoever asked; -1 when it could not be opened.
    int descriptor = -1;
    /// In bytes, when it was opened.
    std::int64_t size = 0;
    /// The system's code: EISDIR for a folder, EINVAL for what else is no file; 0 when it was opened.
    int error = 0;
};

/// What the file system says of what stands at a path, behind symbolic links.
struct FileFacts {
    bool isFile = false; // a regular one
    bool isFolder = false;
    std::int64_t size = 0; // in bytes
    QDateTime changed;
};

/// None where nothing is, or may be looked at. Any thread; it waits for a disk, or a network, that does not answer.
std::optional<FileFacts> factsOfFile(const QByteArray& nativePath);

/// Paths that are texts are those of pathOfBytes().
///
/// Opens a file for reading. Pipes and devices are refused and never waited for. Any thread.
OpenedFile openRegularFile(const QString& path);

/// The same by a path in the file system's own bytes.
OpenedFile openRegularFileAt(const QByteArray& nativePath);

/// The beginning of a file, at most so many bytes, read once in one go. None when it cannot be opened or read, or is no
/// regular file; `error`, where given, then says why, as OpenedFile::error does. A file that shrinks meanwhile gives
/// what is left. Any thread.
std::optional<QByteArray> readRegularFile(const QString& path, qsizetype limit, int* error = nullptr);

std::optional<QByteArray> readRegularFileAt(const QByteArray& nativePath, qsizetype limit, int* error = nullptr);

/// A text as far as its lines are of a length that somebody may have written.
struct TextFile {
    QByteArray bytes;
    /// The bytes of the ends of lines that are missing in it.
    qsizetype leftOut = 0;
};

/// The same for a text, of whose lines the first so many bytes stay, up to the next blank if one is near, with their
/// ends: carriage returns or line feeds. What is left out is never all in memory. Characters of UTF-8 stay whole, and
/// so do those of a text in 16-bit units, where `maximumLine` is even. Any thread.
std::optional<TextFile> readTextFile(const QString& path, qsizetype limit, qsizetype maximumLine);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

/// A file of subpicture packs, read by position through a window of its bytes. It may shrink meanwhile, and is
/// therefore never mapped. One thread at a time.
class DataFile {
public:
    /// The most that one call of `at` gives.
    static constexpr std::size_t windowSize = 64 * 1024;

    /// None when it cannot be opened or is no regular file: pipes and devices are never waited for.
    static std::unique_ptr<DataFile> open(const QString& path);

    DataFile(const DataFile&) = delete;
    DataFile& operator=(const DataFile&) = delete;
    ~DataFile();

    /// The bytes from a position on: `count` of them (at most windowSize), fewer where the file ended when it was
    /// opened, or ends now, or cannot be read. Valid until the next call.
    std::span<const std::uint8_t> at(std::int64_t position, std::size_t count);
    /// Of the file when it was opened.
    std::int64_t size() const { return _size; }
    const QString& path() const { return _path; }
    /// The number (errno) of the last error of reading; 0 without one.
    int error() const { return _error; }

private:
    DataFile(QString path, int descriptor, std::int64_t size);
    void fill(std::int64_t position);

    QString _path;
    int _descriptor;
    std::int64_t _size;
    int _error = 0;
    std::vector<std::uint8_t> _window;
    std::int64_t _windowStart = 0;
    std::size_t _windowFilled = 0;
};

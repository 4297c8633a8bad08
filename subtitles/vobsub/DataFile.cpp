// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/DataFile.h"

#include "platform/base/RegularFile.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace {

/// Positions are looked at a little before them as well; the window begins early enough for that.
constexpr std::int64_t lookedAtBefore = 32;

} // namespace

std::unique_ptr<DataFile> DataFile::open(const QString& path) {
    const platform::OpenedFile file = platform::openRegularFile(path);
    return file.error == 0 ? std::unique_ptr<DataFile>(new DataFile(path, file.descriptor, file.size)) : nullptr;
}

DataFile::DataFile(QString path, int descriptor, std::int64_t size)
    : _path(std::move(path))
    , _descriptor(descriptor)
    , _size(size) {}

DataFile::~DataFile() {
    ::close(_descriptor);
}

std::span<const std::uint8_t> DataFile::at(std::int64_t position, std::size_t count) {
    if (position < 0 || position >= _size)
        return {};
    count = std::min({count, windowSize, static_cast<std::size_t>(_size - position)});
    const auto filledTo = [this] { return _windowStart + static_cast<std::int64_t>(_windowFilled); };
    if (position < _windowStart || position + static_cast<std::int64_t>(count) > filledTo())
        fill(std::max<std::int64_t>(0, position - lookedAtBefore));
    if (position >= filledTo())
        return {};
    const auto offset = static_cast<std::size_t>(position - _windowStart);
    return std::span(_window).subspan(offset, std::min(count, _windowFilled - offset));
}

void DataFile::fill(std::int64_t position) {
    constexpr std::size_t capacity = windowSize + static_cast<std::size_t>(lookedAtBefore);
    _window.resize(std::min(capacity, static_cast<std::size_t>(_size - position)));
    _windowStart = position;
    _windowFilled = 0;
    while (_windowFilled < _window.size()) {
        const ssize_t count = ::pread(_descriptor, _window.data() + _windowFilled, _window.size() - _windowFilled,
                                      position + static_cast<std::int64_t>(_windowFilled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            _error = errno;
        if (count <= 0)
            break;
        _windowFilled += static_cast<std::size_t>(count);
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/NetworkInput.h"

#include "platform/movie/Movie.h"
#include "platform/movie/mpv/Libraries.h"

#include <netdb.h>

#include <algorithm>
#include <cerrno>
#include <string_view>

namespace platform {

namespace {

/// The reading function of a connection is told nothing but the connection.
thread_local NetworkInput* sWatching = nullptr;

bool isHostKnown(const QUrl& url) {
    addrinfo* found = nullptr;
    const int error = ::getaddrinfo(QUrl::toAce(url.host()).constData(), nullptr, nullptr, &found);
    if (error == 0)
        ::freeaddrinfo(found);
    return error == 0;
}

} // namespace

void TopBoxes::take(const unsigned char* data, std::size_t size) {
    const std::uint64_t end = _position + size;
    while (!_done && _box + _held < end) {
        const std::uint64_t from = _box + _held;
        if (from < _position) { // a box whose size is nonsense
            _done = true;
            break;
        }
        _header[_held++] = data[from - _position];
        readHeader();
    }
    _position = end;
}

void TopBoxes::readHeader() {
    const auto number = [this](std::size_t from, std::size_t bytes) {
        std::uint64_t value = 0;
        for (std::size_t i = from; i < from + bytes; ++i)
            value = value << 8 | _header[i];
        return value;
    };
    if (_held < shortHeader)
        return;
    std::uint64_t size = number(0, 4);
    const bool isLong = size == 1;
    if (isLong && _held < longHeader)
        return;
    if (isLong)
        size = number(shortHeader, shortHeader);
    const std::string_view type(reinterpret_cast<const char*>(_header.data()) + 4, 4);
    _indexIsLast = type == "mdat" && _box > 0;
    const bool isMovie = _box > 0 || type == "ftyp";
    _done = !isMovie || type == "mdat" || type == "moov" || size < (isLong ? longHeader : shortHeader);
    _box += size;
    _held = 0;
}

NetworkInput::NetworkInput(AVFormatContext& context)
    : _open(context.io_open) {
    context.io_open = &NetworkInput::open;
    sWatching = this;
}

NetworkInput::~NetworkInput() {
    sWatching = nullptr;
}

int NetworkInput::open(AVFormatContext* context, AVIOContext** input, const char* url, int flags,
                       AVDictionary** options) {
    NetworkInput& self = *sWatching;
    const int error = self._open(context, input, url, flags, options);
    if (error >= 0 && !self._connected) {
        self._connected = true;
        self._isSeekable = ((*input)->seekable & AVIO_SEEKABLE_NORMAL) != 0;
        if (!self._isSeekable) {
            self._read = (*input)->read_packet;
            (*input)->read_packet = &NetworkInput::read;
        }
    }
    return error;
}

int NetworkInput::read(void* opaque, std::uint8_t* buffer, int size) {
    NetworkInput& self = *sWatching;
    const int count = self._read(opaque, buffer, size);
    if (count > 0)
        self._boxes.take(buffer, static_cast<std::size_t>(count));
    return count;
}

std::int16_t networkError(const QUrl& url, int code, bool wasConnected) {
    switch (code) {
    case AVERROR_HTTP_UNAUTHORIZED:
        return movieError::serverAsksForLogin;
    case AVERROR_HTTP_FORBIDDEN:
        return movieError::serverForbids;
    case AVERROR_HTTP_NOT_FOUND:
        return movieError::serverHasNoSuchFile;
    case AVERROR_HTTP_BAD_REQUEST:
    case AVERROR_HTTP_OTHER_4XX:
        return movieError::serverRefuses;
    case AVERROR_HTTP_SERVER_ERROR:
        return movieError::serverFails;
    case AVERROR_PROTOCOL_NOT_FOUND:
        return movieError::unknownScheme;
    case AVERROR(ECONNREFUSED):
        return movieError::connectionRefused;
    case AVERROR(EHOSTUNREACH):
    case AVERROR(ENETUNREACH):
        return movieError::hostUnreachable;
    case AVERROR(ETIMEDOUT):
    case AVERROR_EXIT:
        return movieError::timedOut;
    case AVERROR_INVALIDDATA:
        return wasConnected ? movieError::invalidMovie : movieError::connectionFailed;
    case AVERROR(EIO): // that of a name that is not found, too
        return wasConnected || isHostKnown(url) ? movieError::connectionFailed : movieError::unknownHost;
    default:
        return wasConnected ? movieError::couldNotOpen : movieError::connectionFailed;
    }
}

} // namespace platform

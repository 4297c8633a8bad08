// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

#include <array>
#include <cstddef>
#include <cstdint>

struct AVDictionary;
struct AVFormatContext;
struct AVIOContext;

namespace platform {

/// Follows the boxes at the top level of an MP4 or QuickTime file as its bytes pass by, from the first one on: whether
/// the index (moov) comes before the media (mdat).
class TopBoxes {
public:
    void take(const unsigned char* data, std::size_t size);
    /// The media came, and no index before it.
    bool isIndexLast() const { return _indexIsLast; }

private:
    void readHeader();

    static constexpr std::size_t shortHeader = 8;
    static constexpr std::size_t longHeader = 16;
    std::array<unsigned char, longHeader> _header{};
    std::size_t _held = 0; // of the header
    std::uint64_t _position = 0;
    std::uint64_t _box = 0; // where the header's box begins
    bool _done = false;
    bool _indexIsLast = false;
};

/// What is seen of a connection while a movie is opened through it: the libraries' one answer does not say why.
/// One a thread at a time; outlives the context's opening.
class NetworkInput {
public:
    /// Watches the first connection that the context opens.
    explicit NetworkInput(AVFormatContext& context);
    NetworkInput(const NetworkInput&) = delete;
    NetworkInput& operator=(const NetworkInput&) = delete;
    ~NetworkInput();

    /// Whether the server answered with the file's beginning.
    bool isConnected() const { return _connected; }
    /// What is asked for comes after everything else, and the server does not send from the middle: nothing will play.
    bool needsRanges() const { return _connected && !_isSeekable && _boxes.isIndexLast(); }

private:
    static int open(AVFormatContext* context, AVIOContext** input, const char* url, int flags, AVDictionary** options);
    static int read(void* opaque, std::uint8_t* buffer, int size);

    int (*_open)(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**);
    int (*_read)(void*, std::uint8_t*, int) = nullptr;
    bool _connected = false;
    bool _isSeekable = false;
    TopBoxes _boxes;
};

/// The error (namespace movieError) of a network address that the libraries could not open with this code. May look the
/// host's name up, which can take seconds.
std::int16_t networkError(const QUrl& url, int code, bool wasConnected);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <optional>

struct AVDictionary;
struct AVFormatContext;
struct AVIOContext;

namespace platform {

/// The protocols by which the parts of a movie from a network may be had, as libavformat takes a list: nothing of this
/// machine. What an HTTP server's may is the library's own list; the others are those below RTSP and RTMP.
inline constexpr const char* partProtocols =
    "http,https,httpproxy,tls,tcp,udp,udplite,rtp,srtp,crypto,data,ffrtmphttp,ffrtmpcrypt";
/// The same for a local movie: it has no parts elsewhere. (A list that names nothing.)
inline constexpr const char* localProtocols = "none";

/// Whether opening the URL may have to wait for a network.
bool isNetworkURL(const QUrl& url);

/// What the libraries take as the address: a path for local files (never taken for an option or a protocol), else the
/// encoded URL.
QByteArray addressOf(const QUrl& url);

/// A movie as libavformat reads it. What calls itself a movie may be a list of other files: of a local one nothing but
/// itself is ever opened, of one from a network nothing that is local. One thread at a time; the library is loaded.
class MovieInput {
public:
    MovieInput();
    MovieInput(const MovieInput&) = delete;
    MovieInput& operator=(const MovieInput&) = delete;
    ~MovieInput();

    /// To be prepared before opening; null when memory is short, and after opening failed.
    AVFormatContext* context() const { return _context; }
    /// Before opening: reading ends once `cancelled` has been set for a while. Whoever reads looks at it between
    /// packets; this is for a file in which the library goes on looking. To cut every reading short would be called an
    /// error of a good movie in the log. It outlives this.
    void endWith(const std::atomic<bool>& cancelled);
    /// Once. Negative numbers are the library's errors. The options are taken out of `options`, except those that it
    /// does not know.
    int open(const QUrl& url, AVDictionary*& options);

private:
    static int isToEnd(void* self);

    const std::atomic<bool>* _cancelled = nullptr;
    /// When it was first found set.
    std::optional<std::chrono::steady_clock::time_point> _cancelledAt;
    AVFormatContext* _context;
    AVIOContext* _file = nullptr;
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/Movie.h"
#include "platform/movie/SubtitlePackets.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QUrl>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace platform {

class MoviePlayer;

/// What opening a movie gave.
struct OpenedMovie {
    /// Nothing when it cannot be played.
    std::optional<MovieInfo> info;
    /// Why not (namespace movieError), or what else there is to say (movieError::cannotPlay).
    std::int16_t error = movieError::none;
};

/// A small file of a network, as far as it was read.
struct FetchedFile {
    QByteArray bytes;
    /// Where it was in the end: servers send on to others.
    QUrl url;
    /// Why there is none (namespace movieError).
    std::int16_t error = movieError::none;
};

/// Fetches at most `limit` bytes of a file by HTTP. Blocks, at most 20 seconds and 10 without anything from the server,
/// or until `cancelled` is set. Any thread but the main one; holds nothing of whoever gave it.
using FetchFile = std::function<FetchedFile(const QUrl& url, qsizetype limit, const std::atomic<bool>& cancelled)>;

/// A movie being opened. Destroying it gives that up: its completion is not called any more.
class MovieOpening {
public:
    MovieOpening() = default;
    MovieOpening(const MovieOpening&) = delete;
    MovieOpening& operator=(const MovieOpening&) = delete;
    virtual ~MovieOpening() = default;
};

/// Opens movies and owns the player. Only the composition names the real class. Main thread.
class MovieToolkit {
public:
    MovieToolkit() = default;
    MovieToolkit(const MovieToolkit&) = delete;
    MovieToolkit& operator=(const MovieToolkit&) = delete;
    virtual ~MovieToolkit() = default;

    /// Starts and ends the toolkit; the player exists in between.
    virtual void enter() = 0;
    virtual void exit() = 0;

    /// Opens a movie, a file or a URL of a scheme that can be read, without waiting: `completion` is called once, from
    /// the run loop, unless the answer of this call was destroyed or the toolkit ended before. A local file takes about
    /// a millisecond; a network address is given up when nothing comes from it for 10 seconds. The toolkit has been
    /// entered.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening> openAsync(const QUrl& url,
                                                                  std::function<void(OpenedMovie)> completion) = 0;
    /// Decodes the picture that is attached to a local file, without waiting; `completion` is called as openAsync says,
    /// with a picture of at most `maximumCoverSide` pixels a side, or a null one where there is none that can be shown.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening> coverAsync(const QUrl& url,
                                                                   std::function<void(QImage)> completion) = 0;
    static constexpr int maximumCoverSide = 1280;

    /// Looks for black bars around the picture of a local file that lasts so many seconds, in some of its keyframes;
    /// as coverAsync.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening>
    blackBarsAsync(const QUrl& url, double duration, std::function<void(PictureShape::Crop)> completion) = 0;

    /// Decodes the keyframe before a time, in seconds, of a local file, beside the player; as coverAsync, with a
    /// picture of at most `bounds` pixels. It is what the file holds: in its own pixels, neither turned nor otherwise
    /// changed.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening>
    keyframeAsync(const QUrl& url, double seconds, const QSize& bounds, std::function<void(QImage)> completion) = 0;

    /// Looks for the first line and the last one of a track of subtitles of a local file, by its number; as coverAsync.
    [[nodiscard]] virtual std::unique_ptr<MovieOpening>
    subtitleEndsAsync(const QUrl& url, int track, std::function<void(std::optional<SubtitleEnds>)> completion) = 0;

    virtual FetchFile fileFetcher() const = 0;
    virtual ReadSubtitlePackets subtitlePacketReader() const = 0;

    virtual MoviePlayer& player() = 0;
};

} // namespace platform

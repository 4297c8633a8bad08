// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/RunLoop.h"

#include <QImage>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>

namespace platform {
class MovieOpening;
class MovieToolkit;
class PrivateSubfolder;
template <class Value>
class Delivery;
} // namespace platform

class QVMovie;

/// A small picture of the current movie as a file that other programs may show: the cover that is attached to it, else
/// a still. It is decoded and written beside the main thread, a moment after the movie began. Main thread.
class MediaArtwork {
public:
    /// How long the movie has for itself first, seconds.
    static constexpr double delay = 1;
    static constexpr int side = 512;

    /// `found` is called when there is a picture; the toolkit outlives it.
    MediaArtwork(const Environment& environment, platform::MovieToolkit& toolkit, std::function<void()> found);
    MediaArtwork(const MediaArtwork&) = delete;
    MediaArtwork& operator=(const MediaArtwork&) = delete;
    ~MediaArtwork();

    /// Looks for that of the movie, in place of what stood for another one.
    void follow(const std::shared_ptr<QVMovie>& movie);
    /// The file; empty while there is none. It goes with the movie.
    const QUrl& url() const { return _url; }

private:
    using Written = platform::Delivery<QString>;
    void ask(const std::weak_ptr<QVMovie>& wanted);
    void write(const QImage& picture);
    void forget();

    Environment _environment;
    platform::MovieToolkit& _toolkit;
    std::function<void()> _found;
    std::weak_ptr<QVMovie> _movie;
    std::unique_ptr<platform::Timer> _timer;
    std::unique_ptr<platform::MovieOpening> _opening;
    std::shared_ptr<platform::PrivateSubfolder> _folder;
    std::shared_ptr<Written> _written;
    std::uint64_t _count = 0;
    QUrl _url;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/ToneMapping.h"

#include <QImage>
#include <QSize>
#include <QUrl>

#include <atomic>
#include <cstddef>
#include <memory>

struct AVFrame;

namespace platform {

/// The first picture of a movie that is shown, decoded without the player: it stands on the screen while the player is
/// still starting.
class FirstFrame {
public:
    /// Whose picture is wanted: the movie's, that of the cover attached to it, or the movie's keyframe before a time,
    /// which alone is decoded; that one also as it is stored, where it has to be rotated.
    enum class PictureOf { movie, cover, keyframe, storedKeyframe };
    /// Decodes it: the movie's first one, or the one that the player shows at a time, in seconds from the movie's
    /// beginning, for which all pictures since the keyframe before it are decoded. Null where that is not simple
    /// (rotated, nothing decoded soon). Any thread.
    static std::shared_ptr<const FirstFrame> decode(const QUrl& url, const std::atomic<bool>& cancelled,
                                                    PictureOf wanted = PictureOf::movie, double seconds = 0);
    FirstFrame(AVFrame* frame, const DynamicRange& range);
    FirstFrame(const FirstFrame&) = delete;
    FirstFrame& operator=(const FirstFrame&) = delete;
    ~FirstFrame();

    /// Scales it to `size` pixels of blue, green, red, unused; false when that failed.
    bool render(const QSize& size, unsigned char* pixels, std::size_t stride) const;

    /// The picture, shrunk into `bounds` where it is larger; a null image when that failed.
    QImage image(const QSize& bounds) const;

private:
    /// What of the file is read before it is sought in.
    enum class Look { header, streams };
    static std::shared_ptr<const FirstFrame> decode(const QUrl& url, const std::atomic<bool>& cancelled,
                                                    PictureOf wanted, double seconds, Look look);
    bool render(const QSize& size, int pixelFormat, void* pixels, std::size_t stride) const;

    AVFrame* _frame;
    std::shared_ptr<const ToneMapping> _toneMapping; // null for the standard range
};

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

namespace platform {

/// How the loaded movie is being played at this moment. A text is empty, and a number 0, where it is not known.
struct PlaybackFacts {
    /// As FFmpeg's libraries name them.
    QString container = {};
    QString videoCodec = {};
    QString pixelFormat = {};
    /// The transfer function and the primaries of the decoded pictures, as the player names them ("pq", "bt.2020").
    QString transfer = {};
    QString primaries = {};
    QString audioCodec = {};
    /// "stereo", "5.1".
    QString channels = {};
    /// The way to the loudspeakers ("pulse").
    QString audioOutput = {};
    /// The interface to the hardware that decodes the picture ("vaapi"); empty where software does.
    QString hardwareDecoder = {};
    /// As it is stored, and as the movie wants it displayed.
    QSize storedSize = {};
    QSize displayedSize = {};
    /// Pictures a second: as the file says, and as they come.
    double frameRate = 0;
    double measuredFrameRate = 0;
    // Bits a second.
    double videoBitRate = 0;
    double audioBitRate = 0;
    /// Samples a second.
    int sampleRate = 0;
    /// Pictures since the movie was loaded: those that were shown, those of them that were shown noticeably after their
    /// time, and those that were left out, by the decoder or after it.
    std::int64_t framesShown = 0;
    std::int64_t framesLate = 0;
    std::int64_t framesLeftOut = 0;
    /// How much of the movie lies ready, seconds, and how fast more of it comes, bytes a second.
    double bufferSeconds = 0;
    double bufferSpeed = 0;
    /// Of a live movie: seconds by which it is behind what could be seen now.
    std::optional<double> behindLive = {};

    friend bool operator==(const PlaybackFacts&, const PlaybackFacts&) = default;
};

} // namespace platform

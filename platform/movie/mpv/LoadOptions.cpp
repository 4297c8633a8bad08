// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/LoadOptions.h"

#include "platform/movie/Movie.h"
#include "platform/movie/mpv/MovieInput.h"

#include <QByteArrayList>

namespace platform {

namespace {

// Measured with H.264, HEVC, VP9 and AV1 of 1080p: 6 to 11 ms a picture at 30 pictures and 4 to 12 Mbit a second, and
// 24 ms at 40 Mbit.
constexpr double maximumPixels = 1920.0 * 1088.0;
constexpr double maximumPixelsPerSecond = maximumPixels * 31;
constexpr double maximumBitsPerSecond = 12e6;

QByteArray optionOf(int track) {
    return track > 0 ? QByteArray::number(track) : QByteArray("no");
}

} // namespace

QByteArray audioOption(const TrackSelection& tracks) {
    return tracks.audio ? optionOf(*tracks.audio) : QByteArray("auto");
}

QByteArray videoOption(const TrackSelection& tracks) {
    return tracks.video ? optionOf(*tracks.video) : QByteArray("auto");
}

QByteArray subtitleOption(const TrackSelection& tracks) {
    return optionOf(tracks.subtitleFile.isEmpty() ? tracks.subtitles : 0);
}

QByteArray secondSubtitleOption(const TrackSelection& tracks) {
    return optionOf(tracks.secondSubtitles);
}

QByteArray loadOptions(const MovieInfo& movie, double start, const TrackSelection& tracks, const QByteArray& filters) {
    // Said each time: a track that was selected while a movie played is the core's option for those to come.
    QByteArrayList options{"vid=" + videoOption(tracks), "aid=" + audioOption(tracks), "sid=" + subtitleOption(tracks),
                           "secondary-sid=" + secondSubtitleOption(tracks)};
    if (start > 0)
        options << "start=" + QByteArray::number(start, 'f', 6);
    if (!isNetworkURL(movie.url))
        options << "access-references=no" << QByteArray("demuxer-lavf-o=protocol_whitelist=") + localProtocols;
    // The player leaves turning to its renderers, and the software renderer crashes on a turned picture instead.
    if (movie.quarterTurns != 0)
        options << "video-rotate=no";
    // Told with their length, for their commas.
    if (!filters.isEmpty())
        options << "vf=%" + QByteArray::number(filters.size()) + "%" + filters;
    if (!isDecodedByOneThread(movie))
        options << "vd-lavc-threads=0";
    return options.join(',');
}

bool isDecodedByOneThread(const MovieInfo& movie) {
    const double pixels = movie.naturalSize.width() * movie.naturalSize.height();
    const double frameRate = movie.frameDuration > 0 ? movie.timeScale / movie.frameDuration : 0;
    return pixels <= maximumPixels && pixels * frameRate <= maximumPixelsPerSecond &&
           movie.bitRate <= maximumBitsPerSecond;
}

} // namespace platform

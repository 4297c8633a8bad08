// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/LoadOptions.h"

#include "platform/movie/Movie.h"

#include <QByteArrayList>

#include <cstring>

namespace platform {

namespace {

constexpr double maximumPixelsForOneThread = 1920.0 * 1088.0;

} // namespace

QByteArray loadOptions(const MovieInfo& movie, double start) {
    QByteArrayList options;
    if (start > 0)
        options << "start=" + QByteArray::number(start, 'f', 6);
    // The player leaves turning to its renderers, and the software renderer crashes on a turned picture instead.
    static constexpr const char* turns[] = {nullptr, "lavfi=[transpose=clock]", "lavfi=[hflip,vflip]",
                                            "lavfi=[transpose=cclock]"};
    if (const char* turn = turns[movie.quarterTurns]) {
        // Told with its length, for its commas.
        const QByteArray length = QByteArray::number(static_cast<int>(std::strlen(turn)));
        options << "video-rotate=no"
                << "vf=%" + length + "%" + turn;
    }
    if (movie.naturalSize.width() * movie.naturalSize.height() > maximumPixelsForOneThread)
        options << "vd-lavc-threads=0";
    return options.join(',');
}

} // namespace platform

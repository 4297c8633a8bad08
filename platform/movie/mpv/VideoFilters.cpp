// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/VideoFilters.h"

#include <QByteArrayList>

#include <cmath>

namespace platform {

namespace {

constexpr const char* turns[] = {"", "transpose=clock", "hflip,vflip", "transpose=cclock"};

QByteArray number(double value) {
    return QByteArray::number(value, 'f', 6);
}

} // namespace

QByteArray filterOption(const VideoFilters& wanted) {
    QByteArrayList filters;
    const PictureShape& shape = wanted.shape;
    // Fields are lines of the stored picture: they come first.
    if (wanted.fields == VideoFilters::Fields::marked)
        filters << "bwdif=mode=send_field:deint=interlaced";
    else if (wanted.fields == VideoFilters::Fields::all)
        filters << "bwdif=mode=send_field:deint=all";
    if (wanted.fileTurns > 0)
        filters << turns[wanted.fileTurns];
    if (const auto& crop = shape.crop; !crop.isNone())
        filters << "crop=w=iw*" + number(1 - crop.left - crop.right) + ":h=ih*" + number(1 - crop.top - crop.bottom) +
                       ":x=iw*" + number(crop.left) + ":y=ih*" + number(crop.top);
    if (shape.quarterTurns > 0)
        filters << turns[shape.quarterTurns];
    if (shape.mirrored)
        filters << "hflip";
    // As mpv's own renderer takes these numbers.
    const PictureAdjustment& by = wanted.adjustment;
    if (by.contrast != 0 || by.brightness != 0 || by.saturation != 0 || by.gamma != 0)
        filters << "eq=contrast=" + number((100 + by.contrast) / 100.0) +
                       ":brightness=" + number(by.brightness / 100.0) +
                       ":saturation=" + number((100 + by.saturation) / 100.0) +
                       ":gamma=" + number(std::exp(std::log(8.0) * by.gamma / 100.0));
    if (by.hue != 0)
        filters << "hue=h=" + number(by.hue * 1.8);
    return filters.isEmpty() ? QByteArray() : "lavfi=[" + filters.join(',') + ']';
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/VobSubImage.h"

#include "subtitles/vobsub/RunLengthDecoder.h"

#include <algorithm>

namespace {

QRgb premultiplied(const VobSubColor& color) {
    const auto multiplied = [&](std::uint8_t part) { return part * color.alpha / 255; };
    return qRgba(multiplied(color.red), multiplied(color.green), multiplied(color.blue), color.alpha);
}

} // namespace

QImage VobSubImage::expanded() const {
    const SubpictureControl::Rect& crop = _parts.crop;
    QImage image(crop.width(), crop.height(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(0);
    std::array<QRgb, 4> pixels{};
    std::transform(_parts.colors.begin(), _parts.colors.end(), pixels.begin(), premultiplied);

    uchar* const bits = image.bits();
    const qsizetype bytesPerLine = image.bytesPerLine();
    RunLengthDecoder decoder(_parts.unit, _parts.offset, _parts.pixelEnd, _parts.mode);
    decoder.decode(_parts.width, crop.bottom, [&](std::int32_t x, std::int32_t y, std::int32_t count, auto code) {
        const std::int32_t from = std::max(x, crop.left);
        const std::int32_t to = std::min(x + count, crop.right);
        if (pixels[code] == 0 || y < crop.top || from >= to)
            return;
        auto* const line = reinterpret_cast<QRgb*>(bits + (y - crop.top) * bytesPerLine);
        std::fill(line + (from - crop.left), line + (to - crop.left), pixels[code]);
    });
    return image;
}

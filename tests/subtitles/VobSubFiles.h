// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/QVVobSubPacket.h"
#include "tools/vobsub/VobSubWriter.h"

#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <random>

/// Colours that a test can tell apart, opaque where the subpicture says so.
inline VobSubIndex plainIndex(const vobsub::PairWriter& pair = {}) {
    VobSubIndex index;
    index._size = QSizeF(pair.width, pair.height);
    index._scaleX = index._scaleY = 1;
    std::transform(pair.palette.begin(), pair.palette.end(), index._originalPalette.begin(), [](std::uint32_t rgb) {
        const auto byte = [&](unsigned shift) { return static_cast<std::uint8_t>(rgb >> shift & 0xFF); };
        return VobSubColor{byte(16), byte(8), byte(0), 0};
    });
    return index;
}

/// A picture of random runs up to so long, with a line of one code here and there.
inline vobsub::Bitmap randomBitmap(int width, int height, int maximumRun, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    vobsub::Bitmap bitmap{width, height};
    for (int y = 0; y < height; ++y) {
        const bool isPlain = below(5) == 0;
        for (int x = 0; x < width;) {
            const int length = isPlain ? width : std::min(1 + below(maximumRun), width - x);
            bitmap.fill(x, y, length, 1, static_cast<std::uint8_t>(below(4)));
            x += length;
        }
    }
    return bitmap;
}

/// A subpicture whose corners are visible, so that nothing is cropped.
inline vobsub::Subpicture uncropped(vobsub::Bitmap bitmap) {
    bitmap.at(0, 0) = 1;
    bitmap.at(bitmap.width - 1, bitmap.height - 1) = 2;
    return {.bitmap = std::move(bitmap)};
}

/// What a picture's pixels must be, computed from its codes one by one.
inline QImage expectedImage(const vobsub::Subpicture& subpicture, const VobSubIndex& index) {
    const vobsub::Bitmap& bitmap = subpicture.bitmap;
    QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < bitmap.height; ++y) {
        for (int x = 0; x < bitmap.width; ++x) {
            const std::uint8_t code = bitmap.at(x, y);
            const VobSubColor& color = index._originalPalette[subpicture.colors[code]];
            const int alpha = subpicture.contrasts[code] * 17;
            const QRgb pixel =
                qRgba(color.red * alpha / 255, color.green * alpha / 255, color.blue * alpha / 255, alpha);
            reinterpret_cast<QRgb*>(image.scanLine(y))[x] = pixel;
        }
    }
    return image;
}

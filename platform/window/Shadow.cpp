// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Shadow.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

constexpr double kLargestBlur = 256;     // pixels
constexpr double kFarthest = 16384;      // pixels
constexpr int kManyPixels = 1'000'000;   // from here on the blur works on half the resolution
constexpr int kPasses = 3;               // boxes, which together come close to a bell curve
constexpr unsigned kFixedOne = 1U << 16; // of the fixed-point reciprocals

/// One byte of coverage a pixel.
struct Coverage {
    Coverage(int width_, int height_)
        : width(width_)
        , height(height_)
        , bytes(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

    std::uint8_t* row(int y) { return bytes.data() + static_cast<std::ptrdiff_t>(y) * width; }
    const std::uint8_t* row(int y) const { return bytes.data() + static_cast<std::ptrdiff_t>(y) * width; }

    int width;
    int height;
    std::vector<std::uint8_t> bytes;
};

/// The picture's alpha, each byte the mean of `reduction` by `reduction` pixels.
Coverage coverageOf(const QImage& picture, int reduction) {
    Coverage coverage((picture.width() + reduction - 1) / reduction, (picture.height() + reduction - 1) / reduction);
    std::vector<unsigned> sums(static_cast<std::size_t>(coverage.width));
    const auto share = kFixedOne / static_cast<unsigned>(reduction * reduction);
    for (int y = 0; y < coverage.height; ++y) {
        std::fill(sums.begin(), sums.end(), 0U);
        const int end = std::min((y + 1) * reduction, picture.height());
        for (int from = y * reduction; from < end; ++from) {
            const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(from));
            for (int x = 0; x < picture.width(); ++x)
                sums[static_cast<std::size_t>(x / reduction)] += static_cast<unsigned>(qAlpha(pixels[x]));
        }
        std::uint8_t* row = coverage.row(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            row[x] = static_cast<std::uint8_t>((sums[x] * share + kFixedOne / 2) >> 16);
    }
    return coverage;
}

/// The mean of the 2 * reach + 1 neighbours in the row.
void blurRow(const std::uint8_t* from, std::uint8_t* to, int width, int reach) {
    const unsigned share = kFixedOne / static_cast<unsigned>(2 * reach + 1);
    unsigned sum = 0;
    for (int x = 0; x < std::min(reach, width); ++x)
        sum += from[x];
    for (int x = 0; x < width; ++x) {
        if (x + reach < width)
            sum += from[x + reach];
        if (x - reach - 1 >= 0)
            sum -= from[x - reach - 1];
        to[x] = static_cast<std::uint8_t>((sum * share + kFixedOne / 2) >> 16);
    }
}

/// The same in the columns, a row at a time: the memory is walked in order.
void blurColumns(const Coverage& from, Coverage& to, int reach) {
    const unsigned share = kFixedOne / static_cast<unsigned>(2 * reach + 1);
    std::vector<unsigned> sums(static_cast<std::size_t>(from.width), 0U);
    const auto add = [&](int y) {
        const std::uint8_t* row = from.row(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            sums[x] += row[x];
    };
    const auto subtract = [&](int y) {
        const std::uint8_t* row = from.row(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            sums[x] -= row[x];
    };
    for (int y = 0; y < std::min(reach, from.height); ++y)
        add(y);
    for (int y = 0; y < from.height; ++y) {
        if (y + reach < from.height)
            add(y + reach);
        if (y - reach - 1 >= 0)
            subtract(y - reach - 1);
        std::uint8_t* row = to.row(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            row[x] = static_cast<std::uint8_t>((sums[x] * share + kFixedOne / 2) >> 16);
    }
}

void blur(Coverage& coverage, double standardDeviation) {
    // As wide as makes the passes together deviate by this much.
    const int reach =
        static_cast<int>(std::lround((std::sqrt(12 / kPasses * standardDeviation * standardDeviation + 1) - 1) / 2));
    if (reach < 1 || coverage.bytes.empty())
        return;
    Coverage other(coverage.width, coverage.height);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(coverage.width));
    for (int y = 0; y < coverage.height; ++y) {
        std::uint8_t* own = coverage.row(y);
        blurRow(own, row.data(), coverage.width, reach);
        blurRow(row.data(), own, coverage.width, reach);
        blurRow(own, other.row(y), coverage.width, reach);
    }
    blurColumns(other, coverage, reach);
    blurColumns(coverage, other, reach);
    blurColumns(other, coverage, reach);
}

double pixels(double points, double pixelRatio, double most) {
    const double distance = points * pixelRatio;
    return std::isfinite(distance) ? std::clamp(distance, -most, most) : 0;
}

/// a * b / 255, rounded.
unsigned times(unsigned a, unsigned b) {
    const unsigned product = a * b + 128;
    return (product + (product >> 8)) >> 8;
}

} // namespace

void castShadow(QImage& picture, const Shadow& shadow, double pixelRatio) {
    if (picture.isNull() || !shadow.color.isValid() || shadow.color.alpha() == 0)
        return;
    const double deviation =
        std::max(0.0, pixels(static_cast<double>(shadow.blurRadius), pixelRatio, kLargestBlur)) / 2;
    const int reduction = deviation >= 2 && picture.width() * picture.height() > kManyPixels ? 2 : 1;
    Coverage coverage = coverageOf(picture, reduction);
    blur(coverage, deviation / reduction);

    const int right = static_cast<int>(std::lround(pixels(shadow.offset.width(), pixelRatio, kFarthest)));
    const int down = -static_cast<int>(std::lround(pixels(shadow.offset.height(), pixelRatio, kFarthest)));
    const QRgb color = shadow.color.rgba();
    const auto alpha = static_cast<unsigned>(qAlpha(color));
    const unsigned red = times(static_cast<unsigned>(qRed(color)), alpha);
    const unsigned green = times(static_cast<unsigned>(qGreen(color)), alpha);
    const unsigned blue = times(static_cast<unsigned>(qBlue(color)), alpha);
    const int firstX = std::max(right, 0);
    const int endX = std::min(picture.width(), picture.width() + right);
    const int endY = std::min(picture.height(), picture.height() + down);
    for (int y = std::max(down, 0); y < endY; ++y) {
        auto* pixelsOfRow = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const std::uint8_t* row = coverage.row((y - down) / reduction);
        for (int x = firstX; x < endX; ++x) {
            const unsigned covered = row[(x - right) / reduction];
            if (covered == 0)
                continue;
            // The ink lies over the shadow.
            const QRgb ink = pixelsOfRow[x];
            const unsigned share = times(covered, 255U - static_cast<unsigned>(qAlpha(ink)));
            pixelsOfRow[x] = ink + ((times(alpha, share) << 24) | (times(red, share) << 16) |
                                    (times(green, share) << 8) | times(blue, share));
        }
    }
}

} // namespace platform

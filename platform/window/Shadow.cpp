// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Shadow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

constexpr double maximumBlur = 256;          // pixels
constexpr double farthestCoordinate = 16384; // pixels
constexpr int manyPixels = 1'000'000;        // from here on the blur works on half the resolution
constexpr unsigned strength = 2;             // of a blurred shadow over a mere spread of the ink
constexpr int passes = 3;                    // boxes, which together come close to a bell curve
constexpr unsigned fixedPointOne = 1U << 16; // of the fixed-point reciprocals

/// One byte of coverage a pixel.
struct Coverage {
    Coverage(int columns, int rows)
        : width(columns)
        , height(rows)
        , bytes(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

    std::uint8_t* row(int y) { return bytes.data() + static_cast<std::ptrdiff_t>(y) * width; }
    const std::uint8_t* row(int y) const { return bytes.data() + static_cast<std::ptrdiff_t>(y) * width; }

    int width;
    int height;
    std::vector<std::uint8_t> bytes;
};

/// The picture's alpha.
Coverage coverageOf(const QImage& picture) {
    Coverage coverage(picture.width(), picture.height());
    for (int y = 0; y < coverage.height; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::uint8_t* row = coverage.row(y);
        for (int x = 0; x < coverage.width; ++x)
            row[x] = static_cast<std::uint8_t>(pixels[x] >> 24);
    }
    return coverage;
}

/// The picture's alpha at half the resolution; what lies beyond an odd edge counts as empty.
Coverage halvedCoverageOf(const QImage& picture) {
    Coverage coverage((picture.width() + 1) / 2, (picture.height() + 1) / 2);
    std::vector<unsigned> sums(static_cast<std::size_t>(coverage.width));
    for (int y = 0; y < coverage.height; ++y) {
        std::fill(sums.begin(), sums.end(), 2U); // rounds
        for (int from = 2 * y; from < std::min(2 * y + 2, picture.height()); ++from) {
            const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(from));
            for (int x = 0; x < picture.width(); ++x)
                sums[static_cast<std::size_t>(x >> 1)] += pixels[x] >> 24;
        }
        std::uint8_t* row = coverage.row(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            row[x] = static_cast<std::uint8_t>(sums[x] >> 2);
    }
    return coverage;
}

/// The mean of the 2 * reach + 1 neighbours. Before both rows lie reach + 1 empty pixels, after them reach.
void blurRow(const std::uint8_t* from, std::uint8_t* to, int width, int reach) {
    const unsigned share = fixedPointOne / static_cast<unsigned>(2 * reach + 1);
    unsigned sum = 0;
    for (int x = 0; x < std::min(reach, width); ++x)
        sum += from[x];
    for (int x = 0; x < width; ++x) {
        sum = sum + from[x + reach] - from[x - reach - 1];
        to[x] = static_cast<std::uint8_t>((sum * share + fixedPointOne / 2) >> 16);
    }
}

/// The same in the columns, a row at a time: the memory is walked in order.
void blurColumns(const Coverage& from, Coverage& to, int reach) {
    const unsigned share = fixedPointOne / static_cast<unsigned>(2 * reach + 1);
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
            row[x] = static_cast<std::uint8_t>((sums[x] * share + fixedPointOne / 2) >> 16);
    }
}

void blur(Coverage& coverage, double standardDeviation) {
    // As wide as makes the passes together deviate by this much.
    const int reach =
        static_cast<int>(std::lround((std::sqrt(12 / passes * standardDeviation * standardDeviation + 1) - 1) / 2));
    if (reach < 1 || coverage.bytes.empty())
        return;
    const auto width = static_cast<std::size_t>(coverage.width);
    const auto margin = static_cast<std::size_t>(reach) + 1;
    std::vector<std::uint8_t> one(width + 2 * margin), two(width + 2 * margin);
    for (int y = 0; y < coverage.height; ++y) {
        std::uint8_t* row = coverage.row(y);
        std::copy_n(row, width, one.data() + margin);
        blurRow(one.data() + margin, two.data() + margin, coverage.width, reach);
        blurRow(two.data() + margin, one.data() + margin, coverage.width, reach);
        blurRow(one.data() + margin, two.data() + margin, coverage.width, reach);
        std::copy_n(two.data() + margin, width, row);
    }
    Coverage other(coverage.width, coverage.height);
    blurColumns(coverage, other, reach);
    blurColumns(other, coverage, reach);
    blurColumns(coverage, other, reach);
    // Spread over the blur, the strokes of letters would leave but a faint veil.
    std::transform(other.bytes.begin(), other.bytes.end(), coverage.bytes.begin(),
                   [](std::uint8_t covered) { return static_cast<std::uint8_t>(std::min(strength * covered, 255U)); });
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

double shadowReach(const Shadow& shadow) {
    constexpr double farthestReach = 256; // points: beyond it, a shadow is cut
    if (!shadow.color.isValid() || shadow.color.alpha() == 0)
        return 0;
    // The boxes of the blur together reach three times its deviation, which is half the radius.
    const double blurred = 1.5 * std::max(0.0, pixels(static_cast<double>(shadow.blurRadius), 1, maximumBlur));
    const double moved = std::max(std::abs(pixels(shadow.offset.width(), 1, farthestCoordinate)),
                                  std::abs(pixels(shadow.offset.height(), 1, farthestCoordinate)));
    return std::min(std::ceil(blurred + moved), farthestReach);
}

void castShadow(QImage& picture, const Shadow& shadow, double pixelRatio) {
    if (picture.isNull() || !shadow.color.isValid() || shadow.color.alpha() == 0)
        return;
    const double deviation = std::max(0.0, pixels(static_cast<double>(shadow.blurRadius), pixelRatio, maximumBlur)) / 2;
    const bool many = picture.width() * picture.height() > manyPixels;
    const int halvings = many && deviation >= 2 ? 1 : 0;
    Coverage coverage = halvings ? halvedCoverageOf(picture) : coverageOf(picture);
    blur(coverage, deviation / (1 << halvings));

    const int right = static_cast<int>(std::lround(pixels(shadow.offset.width(), pixelRatio, farthestCoordinate)));
    const int down = -static_cast<int>(std::lround(pixels(shadow.offset.height(), pixelRatio, farthestCoordinate)));
    // The shadow's pixel for every share of it that is seen.
    std::array<QRgb, 256> shades;
    for (unsigned share = 0; share < shades.size(); ++share) {
        const QColor& color = shadow.color;
        const unsigned alpha = times(static_cast<unsigned>(color.alpha()), share);
        shades[share] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), static_cast<int>(alpha)));
    }
    const int firstX = std::max(right, 0);
    const int endX = std::min(picture.width(), picture.width() + right);
    const int endY = std::min(picture.height(), picture.height() + down);
    for (int y = std::max(down, 0); y < endY; ++y) {
        auto* pixelsOfRow = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const std::uint8_t* row = coverage.row((y - down) >> halvings);
        for (int x = firstX; x < endX; ++x) {
            // The ink lies over the shadow.
            const QRgb ink = pixelsOfRow[x];
            pixelsOfRow[x] = ink + shades[times(row[(x - right) >> halvings], 255U - (ink >> 24))];
        }
    }
}

} // namespace platform

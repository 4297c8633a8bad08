// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/BlackBars.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace platform {

namespace {

/// Bars are as black as the codec left them.
constexpr int blackest = 24;
/// A speck in a bar is no picture: so many of a line's pixels may be brighter.
constexpr double speck = 0.004;
constexpr double smallestBar = 0.01;
constexpr double largestBar = 0.4;

struct Edges {
    int left, top, right, bottom; // pixels
};

std::optional<Edges> edgesOf(const QImage& picture) {
    const int width = picture.width(), height = picture.height();
    std::vector<int> ofColumn(static_cast<std::size_t>(width)), ofRow(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < width; ++x)
            if (qGray(line[x]) > blackest) {
                ++ofColumn[static_cast<std::size_t>(x)];
                ++ofRow[static_cast<std::size_t>(y)];
            }
    }
    const auto firstSeen = [](auto begin, auto end, int across) {
        return std::find_if(begin, end, [=](int bright) { return bright > across * speck; }) - begin;
    };
    const auto top = firstSeen(ofRow.begin(), ofRow.end(), width);
    if (top == height)
        return std::nullopt;
    return Edges{static_cast<int>(firstSeen(ofColumn.begin(), ofColumn.end(), height)), static_cast<int>(top),
                 static_cast<int>(firstSeen(ofColumn.rbegin(), ofColumn.rend(), height)),
                 static_cast<int>(firstSeen(ofRow.rbegin(), ofRow.rend(), width))};
}

double barOf(int edge, int side) {
    const double share = static_cast<double>(edge) / side;
    return share < smallestBar || share > largestBar ? 0 : share;
}

} // namespace

PictureShape::Crop blackBars(std::span<const QImage> pictures) {
    std::optional<Edges> all;
    QSize size;
    for (const QImage& given : pictures) {
        const QImage picture = given.convertToFormat(QImage::Format_RGB32);
        const auto edges = picture.isNull() ? std::nullopt : edgesOf(picture);
        if (!edges)
            continue;
        size = picture.size();
        all = !all ? *edges
                   : Edges{std::min(all->left, edges->left), std::min(all->top, edges->top),
                           std::min(all->right, edges->right), std::min(all->bottom, edges->bottom)};
    }
    if (!all)
        return {};
    return {barOf(all->left, size.width()), barOf(all->top, size.height()), barOf(all->right, size.width()),
            barOf(all->bottom, size.height())};
}

} // namespace platform

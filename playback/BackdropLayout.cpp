// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BackdropLayout.h"

#include <algorithm>
#include <cmath>

namespace {

// Shares of the view that an image takes at most.
constexpr double imageHeight = 0.5;
constexpr double imageWidth = 0.8;
constexpr double largestMagnification = 2;
// Points of a style.
constexpr double gapBelowImage = 28;
constexpr double gapBelowTitle = 6;

} // namespace

BackdropLayout::Places BackdropLayout::places(const Sizes& sizes) {
    QSizeF image(0, 0);
    if (!sizes.image.isEmpty()) {
        const double factor =
            std::min({imageWidth * sizes.view.width() / sizes.image.width(),
                      imageHeight * sizes.view.height() / sizes.image.height(), largestMagnification * sizes.scale});
        image = QSizeF(std::round(sizes.image.width() * factor), std::round(sizes.image.height() * factor));
    }
    const double belowImage = image.isEmpty() ? 0 : std::round(gapBelowImage * sizes.scale);
    const double belowTitle = sizes.detail.isEmpty() ? 0 : std::round(gapBelowTitle * sizes.scale);
    const double height = image.height() + belowImage + sizes.title.height() + belowTitle + sizes.detail.height();
    double top = std::round((sizes.view.height() + height) / 2);
    const auto below = [&](const QSizeF& size, double gap) {
        const platform::Rect place(std::round((sizes.view.width() - size.width()) / 2), top - size.height(),
                                   size.width(), size.height());
        top -= size.height() + gap;
        return place;
    };
    Places places;
    places.image = below(image, belowImage);
    places.title = below(sizes.title, belowTitle);
    places.detail = below(sizes.detail, 0);
    return places;
}

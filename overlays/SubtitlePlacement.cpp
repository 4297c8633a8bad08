// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitlePlacement.h"

#include "overlays/OverlayPlacement.h"

#include <algorithm>

namespace {

constexpr float kQVAspect4x3 = 1.3333334F;
constexpr float kQVAspect16x9 = 1.7777778F;
constexpr float wideFrom = 1.5F;

} // namespace

namespace SubtitlePlacement {

TextSize textSize(double pictureWidth, double fitWidth, float smallest, float largest) {
    const double ratio = fitWidth > pictureWidth ? pictureWidth / fitWidth : 1.0;
    return {std::max(smallest, static_cast<float>(ratio * static_cast<double>(largest))), ratio};
}

platform::Rect placed(const platform::Rect& rect, std::uint32_t alignment, const Ground& ground) {
    const double lowest = ground.parent.y();
    const double viewBottom = lowest + ground.picture.y();
    const double edge = std::max(lowest, viewBottom + ground.bar.value_or(0));
    const auto wanted = [&] {
        switch (alignment & OverlayPlacement::verticalMask) {
        case 0x00:
            return viewBottom - rect.height();
        case 0x10:
            return edge;
        case 0x20:
            return OverlayPlacement::verticalOrigin(alignment, platform::Rect(0, edge, 0, 0), rect.height(),
                                                    ground.padding);
        default:
            return lowest;
        }
    };
    double y = wanted();
    if (y < lowest)
        y = edge;
    y = std::max(lowest, std::min(y, ground.parent.maxY() - rect.height()));
    const double x = OverlayPlacement::horizontalOrigin(alignment, ground.parent, rect.width(), ground.padding);
    return {x, y, rect.width(), rect.height()};
}

float frameAspect(float movieAspect) {
    // Written so that what is no number counts as wide.
    return movieAspect < wideFrom ? kQVAspect4x3 : kQVAspect16x9;
}

FrameScale frameScale(const QSizeF& frame, double viewWidth, float aspect) {
    const auto scale = [](double shown, double pixels) {
        return pixels == 0 ? 1.0F : static_cast<float>(shown / pixels);
    };
    return {scale(viewWidth, frame.width()), scale(viewWidth / static_cast<double>(aspect), frame.height())};
}

platform::Rect bitmapFrame(const platform::Rect& rect, const FrameScale& scale, const platform::Rect& view,
                           float aspect) {
    const double bottom = view.y() - (view.width() / static_cast<double>(aspect) - view.height()) * 0.5;
    const auto x = static_cast<double>(scale.x);
    const auto y = static_cast<double>(scale.y);
    return {view.x() + x * rect.x(), bottom + y * rect.y(), x * rect.width(), y * rect.height()};
}

platform::Rect clearOfBar(const platform::Rect& rect, const platform::Rect& view, double bar) {
    const platform::Rect covered(view.x(), view.y(), view.width(), bar);
    return rect.intersects(covered) ? rect.translated(QPointF(0, covered.maxY() - rect.y())) : rect;
}

} // namespace SubtitlePlacement

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitlePlacement.h"

#include "overlays/OverlayPlacement.h"

#include <algorithm>

namespace {

constexpr float kQVAspect4x3 = 1.3333334F;
constexpr float kQVAspect16x9 = 1.7777778F;
constexpr float wideFrom = 1.5F;

/// The part of the picture that the parent shows, on the screen; all of the parent without one.
platform::Rect shownPicture(const SubtitlePlacement::Ground& ground) {
    const platform::Rect shown = ground.picture.translated(ground.parent.origin()).intersected(ground.parent);
    return shown.isEmpty() ? ground.parent : shown;
}

/// The y of what stands in a row above the lowest.
double raised(const platform::Rect& rect, std::uint32_t alignment, const SubtitlePlacement::Ground& ground,
              SubtitlePlacement::Place::Row row) {
    const platform::Rect shown = shownPicture(ground);
    if (row == SubtitlePlacement::Place::Row::middle)
        return shown.y() + (shown.height() - rect.height()) * 0.5;
    const bool keepsGap = (alignment & OverlayPlacement::verticalMask) == 0x20;
    const std::uint32_t top = OverlayPlacement::insideParent | 0x10;
    return OverlayPlacement::verticalOrigin(top, shown, rect.height(), keepsGap ? ground.padding : 0);
}

/// The x at a side of the picture, within the parent.
double aside(const platform::Rect& rect, const SubtitlePlacement::Ground& ground, platform::LineSide side) {
    const std::uint32_t field = side == platform::LineSide::left ? 1 : side == platform::LineSide::right ? 2 : 0;
    const double x = OverlayPlacement::horizontalOrigin(field, shownPicture(ground), rect.width(), ground.padding);
    return std::max(ground.parent.x(), std::min(x, ground.parent.maxX() - rect.width()));
}

} // namespace

namespace SubtitlePlacement {

TextSize textSize(double pictureWidth, double fitWidth, float smallest, float largest) {
    const double ratio = fitWidth > pictureWidth ? pictureWidth / fitWidth : 1.0;
    return {std::max(smallest, static_cast<float>(ratio * static_cast<double>(largest))), ratio};
}

platform::Rect placed(const platform::Rect& rect, std::uint32_t alignment, const Ground& ground,
                      const std::optional<Place>& place) {
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
    double y = !place || place->row == Place::Row::bottom ? wanted() : raised(rect, alignment, ground, place->row);
    if (y < lowest)
        y = edge;
    if (!place || place->row == Place::Row::bottom)
        y += ground.raise;
    y = std::max(lowest, std::min(y, ground.parent.maxY() - rect.height()));
    const double x = place ? aside(rect, ground, place->side)
                           : OverlayPlacement::horizontalOrigin(alignment, ground.parent, rect.width(), ground.padding);
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "platform/window/TextLayout.h"

#include <cstdint>
#include <optional>

/// How large the text of a subtitle is and where it stands, in points; y grows upwards.
namespace SubtitlePlacement {

/// The size of the letters for a picture `pictureWidth` wide that would be `fitWidth` wide where it fits the screen:
/// they shrink with the picture, down to the smallest size, and never grow beyond the largest.
struct TextSize {
    float size;
    double ratio;
};
TextSize textSize(double pictureWidth, double fitWidth, float smallest, float largest);

/// What a subtitle stands on.
struct Ground {
    platform::Rect parent; // on the screen
    double padding = 0;
    /// The movie view within the parent.
    platform::Rect picture;
    /// Of the controller bar, or nothing while it is hidden.
    std::optional<double> bar;
    /// By how much more what stands at the bottom stands above it.
    double raise = 0;
};

/// A place on the picture that a subtitle asks for itself.
struct Place {
    enum class Row { bottom, middle, top };
    Row row = Row::bottom;
    platform::LineSide side = platform::LineSide::middle;

    bool operator==(const Place&) const = default;
};

/// The rectangle moved to where an alignment code puts it. The horizontal field is that of every overlay; the vertical
/// one knows below the picture (0x00), on its bottom edge (0x10) and at the bottom (0x20), which is the padding above
/// that edge. The edge of the picture is that of the part that the parent shows, above the bar. What has no place below
/// the picture stands on its edge; nothing stands above the parent's top edge. A place asked for comes before the code,
/// which still says how far from the picture's top or bottom edge a subtitle stands; at a side it keeps the padding.
platform::Rect placed(const platform::Rect& rect, std::uint32_t alignment, const Ground& ground,
                      const std::optional<Place>& place = {});

/// Width by height of the frame that the bitmaps of a movie stand on: that of a wide or of a narrow television,
/// whichever the movie's own is nearer to.
float frameAspect(float movieAspect);

/// Points for a pixel of the bitmaps' frame, which is shown as wide as the movie view and as high as its aspect makes
/// it.
struct FrameScale {
    float x;
    float y;
};
FrameScale frameScale(const QSizeF& frame, double viewWidth, float aspect);

/// Where a bitmap stands on the screen. `rect` is its place in its frame, y upwards; the frame is centred on the movie
/// view, whose place on the screen is `view`, from top to bottom.
platform::Rect bitmapFrame(const platform::Rect& rect, const FrameScale& scale, const platform::Rect& view,
                           float aspect);

/// The rectangle, moved up onto the bar at the bottom of the view where it would lie across it. Both stand on the
/// screen.
platform::Rect clearOfBar(const platform::Rect& rect, const platform::Rect& view, double bar);

} // namespace SubtitlePlacement

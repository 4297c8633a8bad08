// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <QSizeF>

#include <cstdint>

/// Where an overlay stands and how large it is, in points; y grows upwards. What is no number, or beyond every screen,
/// is brought back to what a window can have.
namespace OverlayPlacement {

// The fields of an alignment code.
inline constexpr std::uint32_t horizontalMask = 0x0F; // 0 centred, 1 left, 2 right
inline constexpr std::uint32_t verticalMask = 0xF0;   // 0x00 centred, 0x10 top, 0x20 bottom
inline constexpr std::uint32_t referenceMask = 0xF00;
inline constexpr std::uint32_t insideParent = 0x100;

/// What surrounds an overlay's content, in points of its style.
struct Panel {
    bool backgroundOn = false;
    bool backgroundRounded = false;
    float radius = 0;
    bool frameOn = false;
    float frameWidth = 0;
    /// Points of the screen for a point of the style.
    double scale = 1;
};

/// How far the panel reaches beyond the content on every side, in points of the screen.
double backgroundMargin(const Panel& panel);

/// Whether an overlay has its edge of the parent for itself, or half of it, because one stands in the other corner.
enum class Edge { whole, halved };
/// How large the content can be that a panel with its margin puts inside the parent, `padding` away from the edges.
QSizeF largestContent(const QSizeF& parent, double padding, double margin, Edge edge);
/// Whether two overlays stand in the two corners of one edge.
bool standInOneEdge(std::uint32_t alignment, std::uint32_t other);

/// The x of a window `width` wide inside the parent's frame, `padding` away from its edge.
double horizontalOrigin(std::uint32_t alignment, const platform::Rect& parent, double width, double padding);
double verticalOrigin(std::uint32_t alignment, const platform::Rect& parent, double height, double padding);

/// The rectangle moved to where the alignment code puts it in the parent's frame.
platform::Rect placedInParent(const platform::Rect& rect, std::uint32_t alignment, const platform::Rect& parent,
                              double padding);

} // namespace OverlayPlacement

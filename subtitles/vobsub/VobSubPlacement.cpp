// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/VobSubPlacement.h"

namespace {

/// Where a length begins that is aligned at 0: there, in its middle or at its end.
float aligned(std::int32_t alignment, float length) {
    switch (alignment) {
    case 1:
        return -length / 2;
    case 2:
        return -length;
    default:
        return 0;
    }
}

} // namespace

platform::Rect VobSubPlacement::place(const SubpictureControl::Rect& rect, const VobSubIndex& index) {
    float x = static_cast<float>(rect.left) * index._scaleX;
    float y = static_cast<float>(rect.top) * index._scaleY;
    const float width = static_cast<float>(rect.width()) * index._scaleX;
    const float height = static_cast<float>(rect.height()) * index._scaleY;
    if (index._align) {
        x = aligned(index._alignH, width);
        y = aligned(index._alignV, height);
    }
    x += static_cast<float>(index._origin.x());
    y += static_cast<float>(index._origin.y());
    y = static_cast<float>(index._size.height()) - y - height;
    return {x, y, width, height};
}

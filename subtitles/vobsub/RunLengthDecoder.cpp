// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/RunLengthDecoder.h"

SubpictureControl::Rect RunLengths::visiblePart(RunLengthDecoder decoder, std::int32_t width, std::int32_t height,
                                                const std::array<bool, 4>& visible) {
    // Right and bottom are the last pixels here.
    SubpictureControl::Rect box{width, height, 0, 0};
    decoder.decode(width, height, [&](std::int32_t x, std::int32_t y, std::int32_t count, std::uint32_t code) {
        if (!visible[code])
            return;
        box.left = std::min(box.left, x);
        box.right = std::max(box.right, x + count - 1);
        box.top = std::min(box.top, y);
        box.bottom = std::max(box.bottom, y);
    });
    if (box.left >= box.right || box.top >= box.bottom)
        return {0, 0, width, height};
    return {box.left, box.top, box.right + 1, box.bottom + 1};
}

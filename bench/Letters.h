// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/vobsub/VobSubWriter.h"

#include <random>

/// Two lines of letters, as far as run lengths are concerned: strokes with outlines, and space between the lines.
inline vobsub::Subpicture lettersLike(unsigned seed) {
    std::mt19937 random(seed);
    vobsub::Subpicture subpicture{.bitmap = {720, 100}};
    subpicture.y = 460;
    subpicture.stop = 300;
    vobsub::Bitmap& bitmap = subpicture.bitmap;
    for (const int top : {6, 54}) {
        for (int x = 20; x < 690;) {
            const int stroke = 4 + static_cast<int>(random() % 3);
            const int height = 24 + static_cast<int>(random() % 16);
            bitmap.fill(x - 2, top - 2, stroke + 4, height + 4, 2);
            for (int y = 0; y < height; ++y) // slanted, so that lines differ
                bitmap.fill(x + y % 2, top + y, stroke - 1, 1, 1);
            x += stroke + 6 + static_cast<int>(random() % 10);
        }
    }
    return subpicture;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/SceneGeometry.h"

#include <gtest/gtest.h>

using namespace platform::sceneGeometry;

TEST(SceneGeometry, points_become_pixels_upside_down) {
    struct Case {
        platform::Rect points;
        double ratio;
        QRect rounded, covering;
    };
    const QSizeF content(100, 50);
    for (const Case& c : {Case{platform::Rect(0, 0, 100, 50), 1, QRect(0, 0, 100, 50), QRect(0, 0, 100, 50)},
                          Case{platform::Rect(0, 0, 100, 50), 1.5, QRect(0, 0, 150, 75), QRect(0, 0, 150, 75)},
                          Case{platform::Rect(10, 5, 20, 10), 2, QRect(20, 70, 40, 20), QRect(20, 70, 40, 20)},
                          Case{platform::Rect(0.4, 0.4, 1, 1), 1, QRect(0, 49, 1, 1), QRect(0, 48, 2, 2)},
                          Case{platform::Rect(-10.5, 40, 5, 20), 1, QRect(-11, -10, 5, 20), QRect(-11, -10, 6, 20)}}) {
        EXPECT_EQ(toPixels(c.points, content, c.ratio), c.rounded) << c.points.x();
        EXPECT_EQ(toCoveringPixels(c.points, content, c.ratio), c.covering) << c.points.x();
    }
}

TEST(SceneGeometry, rectangles_that_touch_in_points_touch_in_pixels) {
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        int right = 0;
        for (int i = 0; i < 40; ++i) {
            const QRect pixels = toPixels(platform::Rect(i * 3.371, 0, 3.371, 1), QSizeF(200, 1), ratio);
            EXPECT_EQ(pixels.left(), right) << ratio << ' ' << i;
            right = pixels.right() + 1;
        }
    }
}

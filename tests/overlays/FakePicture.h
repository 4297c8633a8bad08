// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/PictureGeometry.h"

/// A movie view of the test's size: as wide as the rig's window, with a band above and below.
class FakePicture final : public PictureGeometry {
public:
    platform::Rect frame{0, 96, 1024, 576};
    QSizeF fit{1024, 576};
    float aspect = 16.0F / 9.0F;
    bool bar = false;
    platform::Rect pictureFrame() const override { return frame; }
    QSizeF sizeForFitScreen(std::int32_t mode) const override { return mode == 3 ? fit : QSizeF(1, 1); }
    float aspectRatio() const override { return aspect; }
    bool isControllerBarVisible() const override { return bar; }
    unsigned getControllerHeight() const override { return 16; }
};

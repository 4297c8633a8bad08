// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/View.h"

#include <QImage>

namespace platform {

/// A view that shows one image, scaled to fill it, each axis on its own. Main thread.
class ImageView final : public View {
public:
    /// A null image is none.
    const QImage& image() const { return _image; }
    void setImage(const QImage& image);

    void draw(QPainter& painter, const Rect& dirty) override;

private:
    QImage _image;
    QImage _shrunken; // as it was drawn last; null where it was not shrunk
};

} // namespace platform

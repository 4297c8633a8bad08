// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSizeF>

namespace platform {

/// How a movie's picture is shown otherwise than its file says: cut, then turned, then mirrored.
struct PictureShape {
    /// Width by height of the whole picture; 0: as the file says.
    double aspect = 0;
    /// What is cut off at each edge, shares of the whole picture as the file shows it.
    struct Crop {
        double left = 0, top = 0, right = 0, bottom = 0;
        bool isNone() const { return left <= 0 && top <= 0 && right <= 0 && bottom <= 0; }
        friend bool operator==(const Crop&, const Crop&) = default;
    };
    Crop crop;
    /// Clockwise, 0 to 3.
    int quarterTurns = 0;
    /// Left and right exchanged.
    bool mirrored = false;
    friend bool operator==(const PictureShape&, const PictureShape&) = default;

    /// What is left of a picture as large as this: by the aspect that is wanted, or by that of the file.
    enum class By { wanted, file };
    QSizeF applied(const QSizeF& natural, By by = By::wanted) const {
        QSizeF size = natural;
        if (by == By::wanted && aspect > 0)
            size.setWidth(size.height() * aspect);
        size = QSizeF(size.width() * (1 - crop.left - crop.right), size.height() * (1 - crop.top - crop.bottom));
        return quarterTurns % 2 == 1 ? size.transposed() : size;
    }
};

/// Of the colours, -100 to 100; 0 leaves them as they are.
struct PictureAdjustment {
    int contrast = 0;
    int brightness = 0;
    int gamma = 0;
    int saturation = 0;
    int hue = 0;
    friend bool operator==(const PictureAdjustment&, const PictureAdjustment&) = default;
};

/// When the two fields of a picture are made pictures of their own: in interlaced movies, always, or never.
enum class Deinterlacing { automatic, on, off };

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVChildOverlay.h"
#include "platform/window/ImageView.h"

/// A child overlay as large as its one image, scaled by a factor for each axis. Main thread.
class QVImageOverlay : public QVChildOverlay {
public:
    QVImageOverlay(const Environment& environment, platform::Window& parent,
                   const QString& style = kQVDefaultOverlayStyle);

    const QImage& image() const { return _view.image(); }
    /// A null image is none: the overlay keeps its size.
    void setImage(const QImage& image) { setImage(image, image.size()); }
    /// The same with the size, in points, at which it stands unscaled.
    void setImage(const QImage& image, const QSizeF& size);

    float scaleX() const { return _scaleX; }
    float scaleY() const { return _scaleY; }
    void setScale(float scaleX, float scaleY);

    /// Fits the view to its scaled image and the window to the view.
    void sizeToFit();
    QSizeF contentSize() const override { return _view.bounds().size(); }

protected:
    const char* logName() const override { return "QVImageOverlay"; }
    void adoptNewOverlayFrame(const platform::Rect& frame) override;

private:
    platform::ImageView _view;
    QSizeF _imageSize{0, 0};
    float _scaleX = 1.0F;
    float _scaleY = 1.0F;
};

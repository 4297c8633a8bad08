// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVChildOverlay.h"
#include "platform/window/ImageView.h"
#include "platform/window/TextView.h"

#include <QImage>

/// What lies at a place of the movie, above the place on the controller bar: a small picture, the time and the chapter,
/// on a panel of the default style. Main thread.
class PlacePreview final : public QVChildOverlay {
public:
    PlacePreview(const Environment& environment, platform::Window& parent);

    struct Place {
        /// The middle of what is shown, and its lower edge; content coordinates of the parent.
        QPointF at;
        /// A line each; the chapter may be empty.
        QString time;
        QString chapter;
        /// Width by height of the picture; 0 for a place without one.
        double aspect = 0;
    };
    void showPlace(const Place& place);
    /// That of the place that is shown; a null one leaves its space empty.
    void setPicture(const QImage& picture);
    /// The pixels that a picture of the movie is to have at most: no side is longer, however it is turned.
    QSize pictureBounds() const;

    QString text() const { return _text.text(); }
    const QImage& picture() const { return _picture.image(); }

    /// Never as clear as other panels may be: it comes over subtitles, whose letters would be read among its own.
    void setBackgroundColor(const QColor& color) override;
    QSizeF contentSize() const override;
    void contentSizeChanged() override;
    void parentSizeChanged() override;

protected:
    const char* logName() const override { return "PlacePreview"; }
    void adoptNewOverlayFrame(const platform::Rect& frame) override;
    void postFadeOut() override;

private:
    QSizeF pictureSize() const;
    void layOutText();

    Place _place;
    platform::ImageView _picture;
    platform::TextView _text;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageSubView.h"

#include "overlays/PictureGeometry.h"
#include "overlays/SubtitlePlacement.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"

QVImageSubView::QVImageSubView(const Environment& environment, platform::Window& parent, const PictureGeometry& picture,
                               const QString& style)
    : QVImageOverlay(environment, parent, style)
    , _picture(picture) {
    contentSizeChanged();
}

bool QVImageSubView::hasImage() const {
    return _subtitle && _subtitle->image() && !image().isNull();
}

void QVImageSubView::setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) {
    if (subtitle == _subtitle)
        return;
    _subtitle = subtitle;
    const QImage pixels = subtitle && subtitle->image() ? subtitle->image()->expanded() : QImage();
    if (pixels.isNull()) {
        hide();
        return;
    }
    setImage(pixels, subtitle->image()->size);
    show();
}

void QVImageSubView::show() {
    if (hasImage())
        QVImageOverlay::show();
}

void QVImageSubView::postFadeOut() {
    QVImageOverlay::postFadeOut();
    if (!_subtitle)
        setImage(QImage());
}

void QVImageSubView::currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification) {
    const auto track = std::dynamic_pointer_cast<QVVobSubSubtitles>(notification.current);
    _info = track ? track->info() : nullptr;
    _recalculateAspect();
}

void QVImageSubView::movieViewSizeChanged(const QVMovieViewSizeChangedNotification&) {
    _recalculateAspect();
    contentSizeChanged();
}

void QVImageSubView::_recalculateAspect() {
    _aspect = _info.expired() ? 1.0F : SubtitlePlacement::frameAspect(_picture.aspectRatio());
    _recalculateScale();
}

void QVImageSubView::_recalculateScale() {
    const auto info = _info.lock();
    if (!info)
        return;
    const auto [x, y] = SubtitlePlacement::frameScale(info->index()._size, _picture.pictureFrame().width(), _aspect);
    setScale(x, y);
}

void QVImageSubView::contentSizeChanged() {
    platform::Rect rect(QPointF(0, 0), contentSize());
    if (_subtitle && parentWindow()) {
        const platform::Rect view = _picture.pictureFrame().translated(parentWindow()->frame().origin());
        rect = adjustForBackgroundStyle(
            SubtitlePlacement::bitmapFrame(_subtitle->rect(), {scaleX(), scaleY()}, view, _aspect));
        if (_picture.isControllerBarVisible())
            rect = SubtitlePlacement::clearOfBar(rect, view, _picture.getControllerHeight());
    } else {
        rect = adjustForBackgroundStyle(rect);
    }
    applyNewOverlayFrame(rect, "%@: Subtitles Frame After Recalc: x:%d y:%d w:%d h:%d");
}

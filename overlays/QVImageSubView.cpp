// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageSubView.h"

#include "overlays/PictureGeometry.h"
#include "overlays/SubtitlePlacement.h"
#include "settings/QVOverlayStyleDefaults.h"
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

void QVImageSubView::setMaxAlpha(float alpha) {
    _ofTrack.maxAlpha = alpha;
    takeFromTrack();
}

void QVImageSubView::setFadingInInterval(double seconds) {
    _ofTrack.fadingInInterval = seconds;
    takeFromTrack();
}

void QVImageSubView::setFadingOutInterval(double seconds) {
    _ofTrack.fadingOutInterval = seconds;
    takeFromTrack();
}

void QVImageSubView::takeFromTrack() {
    const auto style = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(environment().settings, this->style());
    const auto counts = [&](const auto& value, const QString& key) {
        return value && !(style && style->isChosen(key));
    };
    if (counts(_ofTrack.maxAlpha, kMaxAlpha))
        QVImageOverlay::setMaxAlpha(*_ofTrack.maxAlpha);
    if (counts(_ofTrack.fadingInInterval, kFadingInInterval))
        QVImageOverlay::setFadingInInterval(*_ofTrack.fadingInInterval);
    if (counts(_ofTrack.fadingOutInterval, kFadingOutInterval))
        QVImageOverlay::setFadingOutInterval(*_ofTrack.fadingOutInterval);
}

bool QVImageSubView::takeStyle(const QString& key, const OverlayStyle& style) {
    const bool taken = QVImageOverlay::takeStyle(key, style);
    // What was chosen may have been taken back.
    if (key == kMaxAlpha || key == kFadingInInterval || key == kFadingOutInterval)
        takeFromTrack();
    return taken;
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
        rect = SubtitlePlacement::clearOfBar(rect, parentWindow()->frame(), _picture.coveredHeight());
    } else {
        rect = adjustForBackgroundStyle(rect);
    }
    applyNewOverlayFrame(rect, "%@: Subtitles Frame After Recalc: x:%d y:%d w:%d h:%d");
}

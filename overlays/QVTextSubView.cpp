// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVTextSubView.h"

#include "overlays/PictureGeometry.h"
#include "overlays/SubtitlePlacement.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/Fonts.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitle.h"

#include <algorithm>

namespace {

/// The size code of a movie as large as the screen shows it whole.
constexpr std::int32_t fitScreenSize = 3;

QString twoDigits(double value) {
    return QString::number(value, 'g', 2);
}

} // namespace

QVTextSubView::QVTextSubView(const Environment& environment, platform::Window& parent, const PictureGeometry& picture,
                             const QString& style, Row row)
    : QVTextOverlay(environment, parent, style)
    , _picture(picture)
    , _row(row) {
    recalculateFontSize();
}

SubtitleMarkup::Cue QVTextSubView::drawn() const {
    if (!_subtitle)
        return {};
    const QString text = _subtitle->beginningOfText(SubtitleMarkup::maximumRead);
    if (!environment().settings.boolForKey(kQVSubtitlesMarkup))
        return {{text, {}}, {}};
    return SubtitleMarkup::read(text);
}

void QVTextSubView::draw(const SubtitleMarkup::Cue& cue) {
    const std::optional<SubtitlePlacement::Place> place =
        _row == Row::top ? SubtitlePlacement::Place{SubtitlePlacement::Place::Row::top} : cue.place;
    const bool moves = place != _place;
    _place = place;
    setLineSide(_place ? _place->side : platform::LineSide::middle);
    setText(cue.text);
    if (moves)
        contentSizeChanged();
}

void QVTextSubView::setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) {
    if (subtitle == _subtitle)
        return;
    _subtitle = subtitle;
    if (const SubtitleMarkup::Cue cue = drawn(); !cue.text.text.isEmpty()) {
        draw(cue);
        show();
    } else {
        hide();
    }
}

void QVTextSubView::show() {
    if (!drawn().text.text.isEmpty())
        QVTextOverlay::show();
}

void QVTextSubView::postFadeOut() {
    QVTextOverlay::postFadeOut();
    if (!_subtitle)
        setText(QString());
}

void QVTextSubView::recalculateFontSize() {
    const double width = _picture.pictureFrame().width();
    const double fit = _picture.sizeForFitScreen(fitScreenSize).width();
    const auto scale = static_cast<float>(this->scale());
    const auto [size, ratio] =
        SubtitlePlacement::textSize(width, fit, textFontSizeMin() * scale, textFontSize() * scale);
    setTextFont(platform::convertedFont(textFont(), size));
    trace("%@: Changed current subtitle size to: %.2g, (min: %.2g, max: %.2g ratio: %.2g)\n", logName(),
          twoDigits(static_cast<double>(size)), twoDigits(static_cast<double>(textFontSizeMin())),
          twoDigits(static_cast<double>(textFontSize())), twoDigits(ratio));
}

void QVTextSubView::contentSizeChanged() {
    platform::Rect rect = adjustForBackgroundStyle(platform::Rect(QPointF(0, 0), contentSize()));
    if (parentWindow()) {
        SubtitlePlacement::Ground ground{parentWindow()->frame(), scaledPadding(), _picture.pictureFrame(), {}};
        ground.raise =
            std::clamp(environment().settings.integerForKey(kQVSubtitlesHeight), 0, 100) * ground.parent.height() / 100;
        if (_picture.isControllerBarVisible())
            ground.bar = _picture.getControllerHeight();
        rect = SubtitlePlacement::clearOfBar(SubtitlePlacement::placed(rect, alignemntStyle(), ground, _place),
                                             ground.parent, _picture.coveredHeight());
    }
    applyNewOverlayFrame(rect, "%@: Subtitles Frame After Recalc: x:%d y:%d w:%d h:%d");
}

void QVTextSubView::movieViewSizeChanged(const QVMovieViewSizeChangedNotification&) {
    recalculateFontSize();
    contentSizeChanged();
}

bool QVTextSubView::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVSubtitlesHeight) {
        contentSizeChanged();
        return true;
    }
    if (notification.key != kQVSubtitlesMarkup)
        return QVTextOverlay::preferencesChanged(notification);
    if (const SubtitleMarkup::Cue cue = drawn(); !cue.text.text.isEmpty())
        draw(cue);
    else
        hide();
    return true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PictureSample.h"

#include "context/PictureSource.h"
#include "platform/base/Localization.h"
#include "playback/PictureColors.h"
#include "prefs/SampleStill.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace {

/// Seconds between two looks at the movie: each renders it once more, and the movie itself comes first.
constexpr double lookInterval = 0.2;

/// The same changes that the player's filters make, on light and two differences of color as ITU-R BT.601 has them.
QImage inColors(QImage picture, const platform::PictureAdjustment& by) {
    constexpr double white = 255;
    const double contrast = 1 + by.contrast / 100.0;
    const double gamma = std::exp(std::log(8.0) * by.gamma / 100.0);
    std::array<double, 256> lights{};
    for (std::size_t light = 0; light < lights.size(); ++light) {
        const double shown = (static_cast<double>(light) / white - 0.5) * contrast + 0.5 + by.brightness / 100.0;
        lights[light] = white * std::pow(std::clamp(shown, 0.0, 1.0), 1 / gamma);
    }
    const double saturation = 1 + by.saturation / 100.0;
    const double angle = by.hue * std::numbers::pi / 100;
    const double along = saturation * std::cos(angle), across = saturation * std::sin(angle);
    const auto code = [](double value) { return static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0))); };
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double light = 0.299 * qRed(line[x]) + 0.587 * qGreen(line[x]) + 0.114 * qBlue(line[x]);
            const double blue = (qBlue(line[x]) - light) / 1.772, red = (qRed(line[x]) - light) / 1.402;
            const double shown = lights[static_cast<std::size_t>(code(light))];
            const double u = along * blue - across * red, v = across * blue + along * red;
            line[x] = qRgb(code(shown + 1.402 * v), code(shown - 0.344 * u - 0.714 * v), code(shown + 1.772 * u));
        }
    }
    return picture;
}

} // namespace

PictureSample::PictureSample(const Environment& environment, PictureSource& pictures)
    : _environment(environment)
    , _pictures(pictures)
    , _onPreferences(environment.notifications.observe<QVPreferencesChangedNotification>(
          [this](const QVPreferencesChangedNotification& notification) {
              if (PictureColors::isKey(notification.key))
                  update();
          })) {
    setObjectName(QStringLiteral("pictureSample"));
    setAccessibleName(platform::localizedString(QStringLiteral("Picture")));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureSample::~PictureSample() = default;

QSize PictureSample::sizeHint() const {
    return {28 * fontMetrics().height(), 14 * fontMetrics().height()};
}

QSize PictureSample::minimumSizeHint() const {
    return {12 * fontMetrics().height(), 6 * fontMetrics().height()};
}

void PictureSample::look() {
    _still = _pictures.still(size() * devicePixelRatioF());
    update();
}

void PictureSample::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    look();
    _looks = _environment.loop.schedule(lookInterval, true, [this] { look(); });
}

void PictureSample::hideEvent(QHideEvent* event) {
    _looks.reset();
    QWidget::hideEvent(event);
}

void PictureSample::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto placed = [](const QSizeF& size, const QRectF& within) {
        QRectF place({}, size.scaled(within.size(), Qt::KeepAspectRatio));
        place.moveCenter(within.center());
        return place;
    };
    if (!_still.isNull()) {
        painter.drawImage(placed(_still.size(), rect()), _still);
        return;
    }
    const platform::PictureAdjustment colors = PictureColors::stored(_environment.settings);
    const double gap = fontMetrics().height() * 0.5;
    QRectF half(0, 0, (width() - gap) / 2, height());
    for (const SampleStill still : {SampleStill::light, SampleStill::dark}) {
        const QRectF place = placed({16, 9}, half);
        QImage picture((place.size() * devicePixelRatioF()).toSize(), QImage::Format_RGB32);
        QPainter drawing(&picture);
        paintStill(drawing, picture.rect(), still);
        drawing.end();
        painter.drawImage(place, inColors(std::move(picture), colors));
        half.translate(half.width() + gap, 0);
    }
}

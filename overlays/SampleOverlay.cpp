// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SampleOverlay.h"

#include "overlays/PictureGeometry.h"
#include "overlays/QVImageOverlay.h"
#include "overlays/QVTextSubView.h"
#include "platform/base/Localization.h"
#include "platform/window/Fonts.h"
#include "subtitles/QVSubtitle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

QString sampleText(const char* identifier) {
    return platform::localizedString(QString::fromLatin1(identifier));
}

/// As discs have it: white letters with a black edge, in the low resolution of their pictures.
QImage discSubtitle(const QString& text) {
    constexpr double letters = 34; // pixels
    constexpr double edge = 5;
    QFont font = platform::fontWithFamilyName(QStringLiteral("Sans Serif"), 0);
    font.setPixelSize(static_cast<int>(letters));
    const QFontMetricsF metrics(font);
    QPainterPath path;
    path.addText(QPointF(edge, edge + metrics.ascent()), font, text);
    QImage image(static_cast<int>(std::ceil(metrics.horizontalAdvance(text) + 2 * edge)),
                 static_cast<int>(std::ceil(metrics.height() + 2 * edge)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(Qt::black, edge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, Qt::white);
    return image;
}

/// A picture where most discs have it: in the middle, above the picture's bottom edge.
class SampleImage final : public QVImageOverlay {
public:
    SampleImage(const Environment& environment, platform::Window& window, const PictureGeometry& picture)
        : QVImageOverlay(environment, window, kQVVobSubOverlayStyle)
        , _picture(picture) {
        setImage(discSubtitle(sampleText("StyleSampleSubtitle")));
        fit();
    }
    void movieViewSizeChanged(const QVMovieViewSizeChangedNotification&) override { fit(); }
    void parentSizeChanged() override {
        QVImageOverlay::parentSizeChanged();
        fit();
    }
    void contentSizeChanged() override {
        platform::Rect rect = adjustForBackgroundStyle(platform::Rect(QPointF(0, 0), contentSize()));
        if (parentWindow()) {
            const platform::Rect place = pictureOnScreen();
            constexpr double raise = 0.06;
            rect = platform::Rect(place.x() + (place.width() - rect.width()) * 0.5, place.y() + place.height() * raise,
                                  rect.width(), rect.height());
        }
        applyNewOverlayFrame(rect, "%@: Overlay Frame After Recalc: x:%d y:%d w:%d h:%d");
    }

protected:
    const char* logName() const override { return "SampleImage"; }

private:
    platform::Rect pictureOnScreen() const {
        const platform::Rect parent = parentWindow()->frame();
        const platform::Rect shown = _picture.pictureFrame().translated(parent.origin()).intersected(parent);
        return shown.isEmpty() ? parent : shown;
    }
    void fit() {
        if (!parentWindow())
            return;
        constexpr double discWidth = 720;
        const auto factor = static_cast<float>(pictureOnScreen().width() / discWidth);
        setScale(factor, factor);
        contentSizeChanged();
    }

    const PictureGeometry& _picture;
};

} // namespace

std::unique_ptr<QVChildOverlay> makeSampleOverlay(const Environment& environment, platform::Window& window,
                                                  const PictureGeometry& picture, const QString& key) {
    if (key == kQVFullscreenOverlayStyle)
        return nullptr;
    if (key == kQVSubtitlesOverlayStyle) {
        auto subtitles = std::make_unique<QVTextSubView>(environment, window, picture, key);
        subtitles->setSubtitle(std::make_shared<QVSubtitle>(sampleText("StyleSampleSubtitle"), 0, 1));
        return subtitles;
    }
    if (key == kQVVobSubOverlayStyle) {
        auto image = std::make_unique<SampleImage>(environment, window, picture);
        image->show();
        return image;
    }
    auto overlay = std::make_unique<QVTextOverlay>(environment, window, key, QVTextOverlay::LongLines::shortened);
    overlay->setText(key == kQVOSDOverlayStyle
                         ? platform::localizedFormat(QStringLiteral("Time: %@/%@"),
                                                     {QStringLiteral("0:42:17"), QStringLiteral("1:58:03")})
                         : sampleText("StyleSampleFeedback"));
    overlay->show();
    return overlay;
}

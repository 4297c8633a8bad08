// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/StyleSample.h"

#include "overlays/PictureGeometry.h"
#include "overlays/QVTextOverlay.h"
#include "overlays/QVTextSubView.h"
#include "platform/base/Localization.h"
#include "platform/window/SceneComposer.h"
#include "platform/window/Window.h"
#include "platform/window/WindowHost.h"
#include "prefs/SampleStill.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "subtitles/QVSubtitle.h"

#include <QEvent>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace {

// A screen in points, on which a text of a usual size fills half a line, and a picture with bars above and below it.
constexpr double screenWidth = 640;
constexpr double screenHeight = 400;
constexpr double pictureHeight = 256;

/// The main window never rests less opaque.
constexpr float smallestWindowAlpha = 0.2F;

/// A movie that fits the screen.
class SamplePicture final : public PictureGeometry {
public:
    platform::Rect pictureFrame() const override {
        return {0, (screenHeight - pictureHeight) * 0.5, screenWidth, pictureHeight};
    }
    QSizeF sizeForFitScreen(std::int32_t) const override { return {screenWidth, pictureHeight}; }
    float aspectRatio() const override { return static_cast<float>(screenWidth / pictureHeight); }
    bool isControllerBarVisible() const override { return false; }
    unsigned getControllerHeight() const override { return 0; }
};

/// Has the widget painted anew.
class SampleHost final : public platform::WindowHost {
public:
    explicit SampleHost(QWidget& widget)
        : _widget(widget) {}
    void frameChanged() override { _widget.update(); }
    void alphaChanged() override { _widget.update(); }
    void levelChanged() override {}
    void orderedChanged() override {}
    void displayNeeded(const platform::Rect&) override { _widget.update(); }
    void displayNow(const platform::Rect&) override { _widget.update(); }
    void makeKeyAndOrderFront() override {}
    void setPointerHidden(bool) override {}
    double pixelRatio() const override { return _widget.devicePixelRatioF(); }

private:
    QWidget& _widget;
};

} // namespace

/// A screen with one overlay of a style on it.
class StyleSample::Scene {
public:
    Scene(const Environment& environment, QWidget& widget, const QString& key)
        : _environment(environment)
        , _key(key)
        , _host(widget) {
        _root.setHost(&_host);
        _root.orderFront();
        if (key == kQVSubtitlesOverlayStyle) {
            auto subtitles = std::make_unique<QVTextSubView>(environment, _root, _picture, key);
            subtitles->setSubtitle(std::make_shared<QVSubtitle>(sampleText("StyleSampleSubtitle"), 0, 1));
            _overlay = std::move(subtitles);
        } else if (key == kQVFullscreenOverlayStyle) {
            _onPreferences = environment.notifications.observe<QVPreferencesChangedNotification>(
                [&widget](const QVPreferencesChangedNotification&) { widget.update(); });
        } else {
            _overlay = std::make_unique<QVTextOverlay>(environment, _root, key);
            _overlay->setText(
                key == kQVOSDOverlayStyle
                    ? platform::localizedFormat(QStringLiteral("Time: %@/%@"),
                                                {QStringLiteral("0:42:17"), QStringLiteral("1:58:03")})
                    : sampleText(key == kQVVobSubOverlayStyle ? "StyleSampleSubtitle" : "StyleSampleFeedback"));
            _overlay->show();
        }
    }
    ~Scene() { _root.setHost(nullptr); }

    void paint(QPainter& painter, const QRect& place, double pixelRatio, SampleStill still) {
        const double scale = place.width() / screenWidth;
        const QRectF screen(place);
        const bool hasBars = _key == kQVSubtitlesOverlayStyle || !_overlay;
        const QRectF picture(screen.x(), screen.y() + (screenHeight - pictureHeight) * 0.5 * scale, screen.width(),
                             pictureHeight * scale);
        if (!_overlay) {
            paintWindow(painter, screen, picture, still);
            return;
        }
        painter.fillRect(screen, Qt::black);
        paintStill(painter, hasBars ? picture : screen, still);
        const double ratio = scale * pixelRatio;
        const QSize pixels(qRound(place.width() * pixelRatio), qRound(place.height() * pixelRatio));
        QImage layer(pixels, QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        QPainter over(&layer);
        _composer.drawOver(over, layer.rect(), ratio);
        over.end();
        layer.setDevicePixelRatio(pixelRatio);
        painter.drawImage(place.topLeft(), layer);
    }

private:
    static QString sampleText(const char* identifier) {
        return platform::localizedString(QString::fromLatin1(identifier));
    }

    /// The main window over a desktop: its colour around the movie, as opaque as it comes to be.
    void paintWindow(QPainter& painter, const QRectF& screen, const QRectF& picture, SampleStill still) {
        const auto defaults = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(_environment.settings, _key);
        const OverlayStyle style = defaults ? defaults->values() : OverlayStyle();
        paintDesktop(painter, screen, still);
        _root.setBackgroundColor(style.backgroundColor.value_or(QColor()));
        painter.save();
        painter.setOpacity(
            static_cast<double>(std::max(platform::Window::shownAlpha(style.maxAlpha), smallestWindowAlpha)));
        const QColor bars = _composer.background();
        painter.fillRect(QRectF(screen.topLeft(), picture.topRight()), bars);
        painter.fillRect(QRectF(picture.bottomLeft(), screen.bottomRight()), bars);
        paintStill(painter, picture, still);
        painter.restore();
    }

    Environment _environment;
    QString _key;
    SamplePicture _picture;
    platform::Window _root{platform::Rect(0, 0, screenWidth, screenHeight)};
    SampleHost _host;
    platform::SceneComposer _composer{_root};
    std::unique_ptr<QVTextOverlay> _overlay; // none for the main window's style
    platform::Subscription _onPreferences;
};

StyleSample::StyleSample(const Environment& environment)
    : _environment(environment) {
    setObjectName(QStringLiteral("sample"));
    setAccessibleName(platform::localizedString(QStringLiteral("StyleSample")));
    setToolTip(platform::localizedString(QStringLiteral("StyleSampleTip")));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHorizontalStretch(1);
    setSizePolicy(policy);
}

StyleSample::~StyleSample() = default;

void StyleSample::showStyle(const QString& key) {
    _scene = std::make_unique<Scene>(_environment, *this, key);
    update();
}

QSize StyleSample::sizeHint() const {
    const int width = 22 * fontMetrics().height();
    return {width, 2 * static_cast<int>(width * screenHeight / screenWidth) + fontMetrics().height()};
}

QSize StyleSample::minimumSizeHint() const {
    return {12 * fontMetrics().height(), 12 * fontMetrics().height()};
}

void StyleSample::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        update();
}

void StyleSample::paintEvent(QPaintEvent*) {
    if (!_scene)
        return;
    // One above the other, as large as they both fit, at the top.
    const int gap = fontMetrics().height() / 2;
    const double height = std::min((this->height() - gap) * 0.5, width() * screenHeight / screenWidth);
    const QSize size(static_cast<int>(height * screenWidth / screenHeight), static_cast<int>(height));
    const int left = (width() - size.width()) / 2;
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    _scene->paint(painter, QRect(QPoint(left, 0), size), devicePixelRatioF(), SampleStill::light);
    _scene->paint(painter, QRect(QPoint(left, size.height() + gap), size), devicePixelRatioF(), SampleStill::dark);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/StyleSample.h"

#include "context/Notifications.h"
#include "context/PictureSource.h"
#include "overlays/FadeDemonstration.h"
#include "overlays/PictureGeometry.h"
#include "overlays/QVChildOverlay.h"
#include "overlays/SampleOverlay.h"
#include "platform/base/Localization.h"
#include "platform/window/SceneComposer.h"
#include "platform/window/Window.h"
#include "platform/window/WindowHost.h"
#include "prefs/SampleStill.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <optional>
#include <utility>

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
    void setAspect(double aspect) { _size = QSizeF(aspect, 1).scaled(screenWidth, screenHeight, Qt::KeepAspectRatio); }
    platform::Rect pictureFrame() const override {
        return {(screenWidth - _size.width()) * 0.5, (screenHeight - _size.height()) * 0.5, _size.width(),
                _size.height()};
    }
    QSizeF sizeForFitScreen(std::int32_t) const override { return _size; }
    float aspectRatio() const override { return static_cast<float>(_size.width() / _size.height()); }
    bool isControllerBarVisible() const override { return false; }
    unsigned getControllerHeight() const override { return 0; }

private:
    QSizeF _size{screenWidth, pictureHeight};
};

/// The main window, as far as it shows its style by itself.
class SampleWindow final : public QVStyledOverlay {
public:
    SampleWindow(const Environment& environment, const platform::Rect& frame)
        : QVStyledOverlay(environment, frame, kQVFullscreenOverlayStyle) {}

protected:
    float smallestShownAlpha() const override { return smallestWindowAlpha; }
};

/// Has the widget painted anew, at most twenty-five times a second: a slider that is dragged changes the style with
/// each of its steps, and the movie behind comes first.
class SampleHost final : public platform::WindowHost {
public:
    SampleHost(platform::RunLoop& loop, QWidget& widget)
        : _loop(loop)
        , _widget(widget) {}
    void frameChanged() override { paintSoon(); }
    void alphaChanged() override { paintSoon(); }
    void levelChanged() override {}
    void orderedChanged() override {}
    void displayNeeded(const platform::Rect&) override { paintSoon(); }
    void displayNow(const platform::Rect&) override { paintSoon(); }
    void makeKeyAndOrderFront() override {}
    void setPointerHidden(bool) override {}
    void showMenu(platform::Menu&) override {}
    double pixelRatio() const override { return _widget.devicePixelRatioF(); }

private:
    void paintSoon() {
        if (std::exchange(_isDue, true))
            return;
        constexpr double pause = 0.04;
        _timer = _loop.schedule(pause, false, [this] {
            _isDue = false;
            _widget.update();
        });
    }

    platform::RunLoop& _loop;
    QWidget& _widget;
    std::unique_ptr<platform::Timer> _timer;
    bool _isDue = false;
};

} // namespace

/// A screen with one overlay of a style on it, or with the main window alone.
class StyleSample::Scene {
public:
    Scene(const Environment& environment, QWidget& widget, const QString& key)
        : _host(environment.loop, widget)
        , _isWindow(key == kQVFullscreenOverlayStyle)
        , _hasBars(_isWindow || key == kQVSubtitlesOverlayStyle)
        , _root(_isWindow ? std::make_unique<SampleWindow>(environment, screenFrame)
                          : std::make_unique<platform::Window>(screenFrame)) {
        _root->setHost(&_host);
        _root->orderFront();
        QVStyledOverlay* shown = nullptr;
        if (_isWindow) {
            shown = static_cast<SampleWindow*>(_root.get());
            shown->show();
        } else {
            _overlay = makeSampleOverlay(environment, *_root, _picture, key);
            shown = _overlay.get();
        }
        _fades.emplace(environment, *shown);
    }
    ~Scene() { _root->setHost(nullptr); }

    void setAspect(double aspect) {
        if (_picture.setAspect(aspect); _overlay)
            _overlay->movieViewSizeChanged(QVMovieViewSizeChangedNotification{nullptr});
    }

    /// `paintPicture` puts a picture into a place.
    template <class PaintPicture>
    void paint(QPainter& painter, const QRect& place, double pixelRatio, SampleStill desktop,
               PaintPicture paintPicture) {
        const double scale = place.width() / screenWidth;
        const QRectF screen(place);
        const platform::Rect frame = _picture.pictureFrame();
        const QRectF picture(screen.x() + frame.x() * scale, screen.y() + frame.y() * scale, frame.width() * scale,
                             frame.height() * scale);
        if (_isWindow) {
            paintWindow(painter, screen, picture, desktop, paintPicture);
            return;
        }
        painter.fillRect(screen, Qt::black);
        paintPicture(_hasBars ? picture : screen);
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
    /// A movie stands on the screen as it is.
    void showBars() { _hasBars = true; }

private:
    /// The main window over a desktop: its colour around the movie, as opaque as it is now.
    template <class PaintPicture>
    void paintWindow(QPainter& painter, const QRectF& screen, const QRectF& picture, SampleStill desktop,
                     PaintPicture paintPicture) {
        paintDesktop(painter, screen, desktop);
        painter.save();
        painter.setOpacity(painter.opacity() * static_cast<double>(_root->alphaValue()));
        QPainterPath bars;
        bars.addRect(screen);
        bars.addRect(picture);
        painter.fillPath(bars, _composer.background());
        paintPicture(picture);
        painter.restore();
    }

    inline static const platform::Rect screenFrame{0, 0, screenWidth, screenHeight};
    SamplePicture _picture;
    SampleHost _host;
    bool _isWindow;
    bool _hasBars;
    std::unique_ptr<platform::Window> _root;
    platform::SceneComposer _composer{*_root};
    std::unique_ptr<QVChildOverlay> _overlay; // none for the main window's style
    std::optional<FadeDemonstration> _fades;
};

StyleSample::StyleSample(const Environment& environment, PictureSource& pictures)
    : _environment(environment)
    , _pictures(pictures)
    , _onMovie(environment.notifications.observe<QVPlaylistMovieChangedNotification>(
          [this](const QVPlaylistMovieChangedNotification&) { takeStillOfNewMovie(0); })) {
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
    _still = QImage();
    takeStill();
    update();
}

void StyleSample::takeStill() {
    if (!isVisible() || !_scene)
        return;
    _still = _pictures.still(size() * devicePixelRatioF());
    if (!_still.isNull()) {
        _scene->setAspect(static_cast<double>(_still.width()) / _still.height());
        _scene->showBars();
    }
    update();
}

/// Its first picture takes a moment.
void StyleSample::takeStillOfNewMovie(int tries) {
    constexpr int maximumTries = 10;
    constexpr double pause = 0.3;
    if (tries == maximumTries)
        return;
    _newMovie = _environment.loop.schedule(pause, false, [this, tries] {
        takeStill();
        if (_still.isNull())
            takeStillOfNewMovie(tries + 1);
    });
}

void StyleSample::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    takeStill();
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
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!isEnabled())
        painter.setOpacity(0.4);
    const auto paint = [&](int top, double height, SampleStill desktop, auto paintPicture) {
        const QSize size(static_cast<int>(height * screenWidth / screenHeight), static_cast<int>(height));
        const QRect place(QPoint((width() - size.width()) / 2, top), size);
        _scene->paint(painter, place, devicePixelRatioF(), desktop, paintPicture);
    };
    // As large as fits, at the top.
    const double whole = width() * screenHeight / screenWidth;
    if (!_still.isNull()) {
        paint(0, std::min<double>(height(), whole), SampleStill::light,
              [&](const QRectF& place) { painter.drawImage(place, _still); });
        return;
    }
    const int gap = fontMetrics().height() / 2;
    const double half = std::min((height() - gap) * 0.5, whole);
    for (const SampleStill still : {SampleStill::light, SampleStill::dark})
        paint(still == SampleStill::light ? 0 : static_cast<int>(half) + gap, half, still,
              [&](const QRectF& place) { paintStill(painter, place, still); });
}

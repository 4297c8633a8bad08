// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BarPointer.h"

#include "overlays/ClockText.h"
#include "platform/base/UserDefaults.h"
#include "playback/Chapters.h"
#include "playback/FloatingBar.h"
#include "playback/PlacePreview.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "settings/SettingsKeys.h"

#include <cmath>
#include <cstdint>

namespace {
/// The bar over the picture goes when the pointer has rested so long elsewhere. Seconds.
constexpr double restTime = 2;
} // namespace

BarPointer::BarPointer(const Environment& environment, platform::Window& window, QVMovieView& view,
                       platform::MovieToolkit& toolkit)
    : _environment(environment)
    , _window(window)
    , _view(view)
    , _pictures(toolkit, [this] { showPicture(); }) {
    platform::NotificationCenter& center = environment.notifications;
    _preferencesChanged =
        center.observe<QVPreferencesChangedNotification>([this](const QVPreferencesChangedNotification& changed) {
            if (changed.key == kQVControllerOverPicture || changed.key == kQVControllerVisible)
                follow();
        });
    _movieChanged = center.observe<QVPlaylistMovieChangedNotification>([this](const auto&) {
        endPlace();
        follow();
    });
    // The bar below the picture may have come or gone, or stands elsewhere.
    _sizeChanged = center.observe<QVMovieViewSizeChangedNotification>([this](const auto&) {
        endPlace();
        follow();
    });
    _view.setControllerObserver([this] {
        if (_floating && _floating->isVisible())
            _floating->stateChanged();
    });
}

BarPointer::~BarPointer() {
    _view.setControllerObserver(nullptr);
}

ControllerOverPicture BarPointer::floating() const {
    using enum ControllerOverPicture;
    if (!_view.movie() || _view.isControllerVisible())
        return off;
    const std::int32_t way = _environment.settings.integerForKey(kQVControllerOverPicture);
    return way == static_cast<std::int32_t>(always)             ? always
           : way == static_cast<std::int32_t>(whenPointerMoves) ? whenPointerMoves
                                                                : off;
}

void BarPointer::follow() {
    const ControllerOverPicture way = floating();
    const bool stands =
        way == ControllerOverPicture::always || (way == ControllerOverPicture::whenPointerMoves && _pointerMoves);
    if (!stands) {
        if (_floating && _floating->isVisible()) {
            _floating->hide();
            endPlace();
            _view.setCoveredHeight(0);
        }
        return;
    }
    if (!_floating)
        _floating = std::make_unique<FloatingBar>(_environment, _window, _view);
    if (!_floating->isVisible())
        _floating->show();
    _view.setCoveredHeight(_floating->coveredHeight());
}

void BarPointer::moved(const std::optional<QPointF>& point) {
    _point = point;
    if (point) {
        _pointerMoves = true;
        if (_restTimer)
            _restTimer->rearm(restTime);
        else
            _restTimer = _environment.loop.schedule(restTime, false, [this] { pointerRests(); });
    } else {
        // A menu may have opened from the bar, which stays meanwhile.
        _restTimer = _environment.loop.schedule(restTime, false, [this] { pointerRests(); });
    }
    follow();
    _view.pointerMoved(point);
    if (_floating)
        _floating->pointerMoved(point);
    showPlace();
}

void BarPointer::pointerRests() {
    // Whoever has the pointer on the bar is using it.
    const bool isUsed = _floating && (_floating->isPressed() || (_point && _floating->holds(*_point)));
    if (isUsed) {
        _restTimer = _environment.loop.schedule(restTime, false, [this] { pointerRests(); });
        return;
    }
    _restTimer.reset();
    _pointerMoves = false;
    follow();
}

void BarPointer::showPlace() {
    const auto place = !_point                                  ? std::nullopt
                       : _floating && _floating->holds(*_point) ? _floating->barPlaceAt(*_point)
                                                                : _view.barPlaceAt(*_point);
    const std::shared_ptr<QVMovie> movie = _view.movie();
    if (!place || !movie) {
        endPlace();
        return;
    }
    if (!_preview)
        _preview = std::make_unique<PlacePreview>(_environment, _window);
    const double time = place->share * movie->duration();
    const auto& chapters = movie->info().chapters;
    const std::int32_t chapter = Chapters::positionAt(chapters, static_cast<std::int32_t>(time));
    const bool hasPictures = PlacePictures::hasPictures(*movie);
    if (hasPictures)
        _pictures.ask(movie, place->share, _preview->pictureBounds());
    _preview->showPlace({QPointF(_point->x(), place->bar.maxY()),
                         stringWithTimeIntervalInSeconds(static_cast<std::int32_t>(time / movie->timeScale())),
                         Chapters::name(chapters, chapter),
                         hasPictures ? static_cast<double>(_view.aspectRatio()) : 0});
    showPicture();
}

/// The picture of another place stays until that of this one is there: what flickers is read less easily.
void BarPointer::showPicture() {
    if (!_preview || !_preview->isVisible())
        return;
    if (const QImage picture = _pictures.current(); !picture.isNull())
        _preview->setPicture(picture);
}

void BarPointer::endPlace() {
    _pictures.end();
    if (_preview && _preview->isVisible())
        _preview->hide();
}

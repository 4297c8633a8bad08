// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVStyledOverlay.h"

#include "overlays/QVFadeCalculator.h"
#include "overlays/StyleTable.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/Tracing.h"

#include <algorithm>
#include <utility>

namespace {

/// Seconds between the steps of a fade; shorter fades are none.
constexpr double fadingStep = 0.05;

/// Seconds that a style may ask for.
constexpr double maximumInterval = 60;

/// Written so that an interval that is no number counts as none.
bool takesTime(double interval) {
    return interval >= fadingStep;
}

/// A fade or a hold of the style in seconds. Launching and quitting wait for fades: one that nobody would wait for, or
/// that is no number, counts as none.
double fadeOfStyle(double interval) {
    return interval <= maximumInterval ? interval : 0;
}

bool isWindowVisible(const platform::Window& window) {
    const auto* overlay = dynamic_cast<const QVStyledOverlay*>(&window);
    return overlay ? overlay->isVisible() : window.isOrderedIn();
}

} // namespace

QVStyledOverlay::QVStyledOverlay(const Environment& environment, const platform::Rect& contentRect,
                                 const QString& style)
    : platform::Window(contentRect)
    , _environment(environment)
    , _style(style) {
    const OverlayStyle values = styleValues();
    Window::setBackgroundColor(values.backgroundColor.value_or(QColor()));
    _fadingInInterval = fadeOfStyle(values.fadingInInterval);
    _fadingOutInterval = fadeOfStyle(values.fadingOutInterval);
    _fadingDelayInterval = fadeOfStyle(values.fadingDelayInterval);
    _maxAlpha = values.maxAlpha;
    _minAlpha = values.minAlpha;
    setAlphaValue(_minAlpha);

    platform::NotificationCenter& center = _environment.notifications;
    _onPreferences = center.observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) { preferencesChanged(notification); });
    _onMovieViewSize = center.observe<QVMovieViewSizeChangedNotification>(
        [this](const QVMovieViewSizeChangedNotification& notification) { movieViewSizeChanged(notification); });
    _onCurrentMovie = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const QVPlaylistMovieChangedNotification& notification) { currentMovieChanged(notification); });
}

QVStyledOverlay::~QVStyledOverlay() = default;

OverlayStyle QVStyledOverlay::styleValues() const {
    const auto defaults = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(_environment.settings, _style);
    return defaults ? defaults->values() : OverlayStyle();
}

void QVStyledOverlay::show() {
    if (parentWindow() && !isWindowVisible(*parentWindow())) {
        if (QVStyledOverlay* parent = parentOverlay())
            parent->childWaits(*this);
        return;
    }
    const bool wasShown = std::exchange(_shownLast, true);
    if (!wasShown)
        _environment.notifications.post(QVOverlayVisibilityChangedNotification{this});
    if (_fadingState == FadingState::fadingIn)
        return;
    _fadingState = FadingState::fadingIn;
    if (!takesTime(_fadingInInterval) || alphaValue() >= restingAlpha()) {
        postFadeIn();
        return;
    }
    trace("%@: Start Fading IN, interval: %f", logName(), QString::number(_fadingInInterval, 'f', 6));
    const auto calculator =
        QVFadeCalculator::fadeInCalculator(_environment.loop, _fadingInInterval, static_cast<double>(alphaValue()));
    setFadeTimer(_environment.loop.schedule(fadingStep, true, [this, calculator] { doFadeIn(calculator); }));
}

void QVStyledOverlay::hide() {
    _shownLast = false;
    if (QVStyledOverlay* parent = parentOverlay())
        parent->childWasHidden(*this);
    if (_fadingState == FadingState::fadingOut)
        return;
    _fadingState = FadingState::fadingOut;
    const double interval = fadingOutInterval();
    if (!takesTime(interval) || alphaValue() <= shownAlpha(_minAlpha)) {
        postFadeOut();
        return;
    }
    trace("%@: Start Fading OUT, interval: %f", logName(), QString::number(interval, 'f', 6));
    const auto calculator =
        QVFadeCalculator::fadeOutCalculator(_environment.loop, interval, static_cast<double>(alphaValue()));
    setFadeTimer(_environment.loop.schedule(fadingStep, true, [this, calculator] { doFadeOut(calculator); }));
}

void QVStyledOverlay::hideAtOnce() {
    hide();
    if (_fadingState == FadingState::fadingOut)
        postFadeOut();
}

void QVStyledOverlay::doFadeIn(const QVFadeCalculator& calculator) {
    if (alphaValue() < restingAlpha())
        setAlphaValue(static_cast<float>(calculator.valueNow()));
    if (alphaValue() >= restingAlpha())
        postFadeIn();
}

void QVStyledOverlay::doFadeOut(const QVFadeCalculator& calculator) {
    if (alphaValue() > shownAlpha(_minAlpha))
        setAlphaValue(static_cast<float>(calculator.valueNow()));
    if (alphaValue() <= shownAlpha(_minAlpha))
        postFadeOut();
}

void QVStyledOverlay::postFadeIn() {
    setAlphaValue(restingAlpha());
    setFadeTimer(nullptr);
    _fadingState = FadingState::idle;
    if (_autopop)
        delay();
}

void QVStyledOverlay::postFadeOut() {
    setAlphaValue(_minAlpha);
    setFadeTimer(nullptr);
    _fadingState = FadingState::idle;
    _autopop = false;
    _environment.notifications.post(QVOverlayVisibilityChangedNotification{this});
}

void QVStyledOverlay::autopop() {
    _autopop = true;
    switch (_fadingState) {
    case FadingState::idle:
    case FadingState::fadingOut:
        show();
        break;
    case FadingState::delaying:
        delay();
        break;
    case FadingState::fadingIn:
        break; // the hold follows
    }
}

void QVStyledOverlay::delay() {
    // Written so that an interval that is no number counts as none.
    const double interval = holdInterval();
    const double hold = interval > 0 ? interval : 0;
    if (_fadingState == FadingState::delaying && _fadingTimer && _fadingTimer->isValid()) {
        _fadingTimer->rearm(hold);
        return;
    }
    _fadingState = FadingState::delaying;
    trace("%@: Start Fading DELAY, interval: %f", logName(), QString::number(interval, 'f', 6));
    setFadeTimer(_environment.loop.schedule(hold, false, [this] { postDelay(); }));
}

void QVStyledOverlay::postDelay() {
    if (_autopop)
        hide();
}

void QVStyledOverlay::setMaxAlpha(float alpha) {
    if (alpha == _maxAlpha)
        return;
    _maxAlpha = alpha;
    if (_minAlpha > _maxAlpha)
        _minAlpha = _maxAlpha;
    if (_shownLast && (_fadingState == FadingState::idle || _fadingState == FadingState::delaying))
        setAlphaValue(restingAlpha());
}

void QVStyledOverlay::setMinAlpha(float alpha) {
    if (alpha == _minAlpha)
        return;
    _minAlpha = alpha;
    if (_minAlpha > _maxAlpha)
        _maxAlpha = _minAlpha;
    if (_shownLast && _minAlpha > alphaValue() && _fadingState == FadingState::idle)
        setAlphaValue(restingAlpha());
}

bool QVStyledOverlay::isVisible() const {
    return isOrderedIn() && _shownLast;
}

float QVStyledOverlay::restingAlpha() const {
    return std::max(shownAlpha(_maxAlpha), smallestShownAlpha());
}

QVStyledOverlay* QVStyledOverlay::parentOverlay() const {
    return dynamic_cast<QVStyledOverlay*>(parentWindow());
}

void QVStyledOverlay::childWaits(const QVStyledOverlay&) {}

void QVStyledOverlay::childWasHidden(const QVStyledOverlay&) {}

bool QVStyledOverlay::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key != _style)
        return false;
    const OverlayStyle values = styleValues();
    bool handledAll = true;
    for (const QString& key : notification.styleKeys)
        handledAll = takeStyle(key, values) && handledAll;
    return handledAll;
}

bool QVStyledOverlay::takeStyle(const QString& key, const OverlayStyle& style) {
    using Overlay = QVStyledOverlay;
    static const StyleTable<Overlay> table{
        {&OverlayStyle::backgroundColor,
         [](Overlay& overlay, const OverlayStyle& values) {
             overlay.setBackgroundColor(values.backgroundColor.value_or(QColor()));
             overlay.contentView().setNeedsDisplay();
         }},
        {&OverlayStyle::fadingInInterval,
         [](Overlay& overlay, const OverlayStyle& values) {
             overlay._fadingInInterval = fadeOfStyle(values.fadingInInterval);
         }},
        {&OverlayStyle::fadingOutInterval,
         [](Overlay& overlay, const OverlayStyle& values) {
             overlay._fadingOutInterval = fadeOfStyle(values.fadingOutInterval);
         }},
        {&OverlayStyle::fadingDelayInterval,
         [](Overlay& overlay, const OverlayStyle& values) {
             overlay._fadingDelayInterval = fadeOfStyle(values.fadingDelayInterval);
         }},
        {&OverlayStyle::minAlpha, &Overlay::setMinAlpha},
        {&OverlayStyle::maxAlpha, &Overlay::setMaxAlpha},
    };
    return table.take(*this, key, style);
}

void QVStyledOverlay::movieViewSizeChanged(const QVMovieViewSizeChangedNotification&) {}

void QVStyledOverlay::currentMovieChanged(const QVPlaylistMovieChangedNotification&) {}

void QVStyledOverlay::currentSubtitlesChanged(const QVSubtitlesChangedNotification&) {}

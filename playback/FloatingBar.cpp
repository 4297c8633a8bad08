// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/FloatingBar.h"

#include "platform/movie/Movie.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using platform::ControllerBar;

namespace {

/// Over the picture the bar is as large as a finger's aim is good: twice as high as the one below it.
constexpr double enlarged = 2;
/// Points of the style: on a wide screen the bar keeps its ends in reach.
constexpr double widest = 1200;

} // namespace

FloatingBar::FloatingBar(const Environment& environment, platform::Window& parent, platform::MovieView& movie)
    : QVChildOverlay(environment, parent)
    , _movie(movie) {
    overlayContentView().addSubview(_controls);
    parent.contentView().addSubview(_press);
    contentSizeChanged();
}

double FloatingBar::barScale() const {
    return enlarged * scale();
}

QSizeF FloatingBar::contentSize() const {
    if (!parentWindow())
        return QSizeF(0, 0);
    const double margins = adjustForBackgroundStyle(platform::Rect()).width();
    const double available = parentWindow()->frame().width() - 2 * scaledPadding() - margins;
    return QSizeF(std::clamp(available, 1.0, widest * scale()), ControllerBar::height * barScale());
}

void FloatingBar::contentSizeChanged() {
    platform::Rect rect = adjustForBackgroundStyle(platform::Rect(QPointF(0, 0), contentSize()));
    if (const platform::Window* parent = parentWindow()) {
        const platform::Rect screen = parent->frame();
        rect = platform::Rect(
            QPointF(screen.x() + std::round((screen.width() - rect.width()) / 2), screen.y() + scaledPadding()),
            rect.size());
    }
    applyNewOverlayFrame(rect, "%@: Overlay Frame After Recalc: x:%d y:%d w:%d h:%d");
    placePress();
}

void FloatingBar::adoptNewOverlayFrame(const platform::Rect& frame) {
    const QSizeF margin = (frame.size() - contentSize()) / 2;
    _controls.setFrame(platform::Rect(QPointF(margin.width(), margin.height()), contentSize()));
}

/// Presses are the bar's where it is seen, and the movie's where it is not.
void FloatingBar::placePress() {
    const bool takes = parentWindow() && isVisible();
    _press.setFrame(takes ? frame().translated(-parentWindow()->frame().origin()) : platform::Rect());
}

void FloatingBar::show() {
    stateChanged();
    QVChildOverlay::show();
    placePress();
}

void FloatingBar::hide() {
    QVChildOverlay::hide();
    placePress();
}

platform::Rect FloatingBar::barRect() const {
    return parentWindow() ? _controls.frame().translated(frame().origin() - parentWindow()->frame().origin())
                          : platform::Rect();
}

QSizeF FloatingBar::barSize() const {
    return contentSize() / barScale();
}

QPointF FloatingBar::inBar(QPointF point) const {
    const platform::Rect bar = barRect();
    return QPointF(point.x() - bar.x(), bar.maxY() - point.y()) / barScale();
}

ControllerBar::State FloatingBar::shownState() const {
    ControllerBar::State state = _movie.controllerState();
    state.pointed = _pointed;
    return ControllerBar::shownState(state, barSize());
}

void FloatingBar::stateChanged() {
    const ControllerBar::State state = shownState();
    if (state == std::exchange(_shown, state))
        return;
    contentView().setNeedsDisplay();
}

bool FloatingBar::holds(QPointF point) const {
    return isVisible() && parentWindow() && frame().translated(-parentWindow()->frame().origin()).contains(point);
}

void FloatingBar::pointerMoved(const std::optional<QPointF>& point) {
    const ControllerBar::Layout layout = ControllerBar::layout(barSize(), _shown);
    _pointed = point && holds(*point) ? layout.controlAt(inBar(*point)) : ControllerBar::Control::none;
    if (isVisible())
        stateChanged();
}

std::optional<platform::MovieView::BarPlace> FloatingBar::barPlaceAt(QPointF point) const {
    if (!holds(point) || !_movie.movieObject() || _movie.movieObject()->duration() <= 0)
        return std::nullopt;
    const ControllerBar::Layout layout = ControllerBar::layout(barSize(), _shown);
    const QPointF at = inBar(point);
    if (layout.controlAt(at) != ControllerBar::Control::time)
        return std::nullopt;
    return platform::MovieView::BarPlace{layout.placeAt(at.x()), frame().translated(-parentWindow()->frame().origin())};
}

void FloatingBar::Controls::draw(QPainter& painter, const platform::Rect&) {
    painter.save();
    painter.scale(_bar.barScale(), _bar.barScale());
    _bar._shown = _bar.shownState();
    ControllerBar::draw(painter, _bar.barSize(), _bar._shown, _bar._movie.chapterMarks(), ControllerBar::Ground::none);
    painter.restore();
}

bool FloatingBar::Press::mouseDown(const platform::MouseEvent& event) {
    if (event.button != platform::MouseButton::left)
        return false;
    if (event.clickCount > 1)
        return true; // the press itself came before it
    isFollowed = true;
    const auto layout = ControllerBar::layout(_bar.barSize(), _bar._shown);
    _bar._movie.performController(_bar._bar.press(_bar.inBar(event.locationInWindow), layout));
    return true;
}

bool FloatingBar::Press::mouseDragged(const platform::MouseEvent& event) {
    const auto layout = ControllerBar::layout(_bar.barSize(), _bar._shown);
    _bar._movie.performController(_bar._bar.drag(_bar.inBar(event.locationInWindow), layout));
    return true;
}

bool FloatingBar::Press::mouseUp(const platform::MouseEvent&) {
    _bar._bar.release();
    return std::exchange(isFollowed, false);
}

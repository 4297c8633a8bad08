// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieView.h"

#include "platform/movie/Movie.h"
#include "platform/window/Window.h"
#include "platform/window/WindowHost.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

MovieView::MovieView(MoviePlayer& player)
    : _player(player) {
    _player.setObserver(this);
}

MovieView::~MovieView() {
    _player.setObserver(nullptr);
    if (_movie && _player.loaded() == _movie.get())
        _player.load(nullptr);
}

void MovieView::setMovieObject(std::shared_ptr<Movie> movie) {
    if (movie == _movie && _player.loaded() == movie.get()) {
        // Loading it again would open the file again.
        _player.pause();
        return;
    }
    // The old movie lives on until the player has let go of it.
    const std::shared_ptr<Movie> old = std::exchange(_movie, std::move(movie));
    _player.load(_movie.get());
    setNeedsDisplay();
}

void MovieView::start() {
    if (_movie)
        _player.play();
}

void MovieView::stop() {
    if (_movie)
        _player.pause();
}

std::optional<double> MovieView::behindLive() const {
    return _movie ? _player.behindLive() : std::nullopt;
}

bool MovieView::isPlaying() const {
    return _movie && _player.isPlaying();
}

float MovieView::rate() const {
    return _movie ? _player.rate() : 0.0F;
}

void MovieView::setRate(float rate) {
    if (_movie)
        _player.setRate(rate);
}

float MovieView::volume() const {
    return _player.volume();
}

void MovieView::setVolume(float volume) {
    _player.setVolume(volume);
}

bool MovieView::isMuted() const {
    return _player.isMuted();
}

void MovieView::setMuted(bool muted) {
    _player.setMuted(muted);
}

void MovieView::gotoBeginning() {
    // A movie just loaded stands there: a move would only delay its first picture.
    if (_movie && _player.time() != 0)
        _player.seek(0, MoviePlayer::JumpReport::reported);
}

void MovieView::gotoEnd() {
    if (_movie && _player.time() != _movie->duration())
        _player.seek(_movie->duration(), MoviePlayer::JumpReport::reported);
}

void MovieView::stepForward() {
    if (_movie)
        _player.step(1);
}

void MovieView::stepBack() {
    if (_movie)
        _player.step(-1);
}

void MovieView::showController(bool visible, bool adjustingSize) {
    if (visible == _controllerVisible)
        return;
    _controllerVisible = visible;
    if (adjustingSize) {
        // The bar hangs below the picture, which keeps its place.
        const Rect old = frame();
        const double height = std::max(old.height() + (visible ? controllerHeight() : -controllerHeight()), 0.0);
        setFrame(Rect(old.x(), old.maxY() - height, old.width(), height));
    }
    setNeedsDisplay();
}

bool MovieView::handleMovieKey(const KeyEvent& event) {
    if (!_movie || event.charactersIgnoringModifiers.isEmpty())
        return false;
    switch (event.charactersIgnoringModifiers.at(0).unicode()) {
    case functionKey::space:
        if (isPlaying())
            stop();
        else
            start();
        return true;
    case functionKey::left:
        stepBack();
        return true;
    case functionKey::right:
        stepForward();
        return true;
    default:
        return false;
    }
}

void MovieView::draw(QPainter& painter, const Rect& dirty) {
    const Rect bar = controllerRect();
    if (!_controllerVisible || bar.isEmpty() || !dirty.intersects(bar))
        return;
    _shownState = shownController();
    const double scale = controllerHeight() / ControllerBar::height;
    painter.save();
    painter.translate(0, bounds().height() - bar.height());
    painter.scale(scale, scale);
    ControllerBar::draw(painter, barSize(), _shownState, chapterMarks());
    painter.restore();
}

Rect MovieView::drawnRect() const {
    return _controllerVisible ? controllerRect() : Rect();
}

VideoLayer* MovieView::videoLayer() {
    return _player.videoLayer(); // also without a movie: the host prepares it before there is one
}

Rect MovieView::pictureRect() const {
    const double bar = _controllerVisible ? controllerRect().height() : 0;
    return Rect(0, bar, bounds().width(), bounds().height() - bar);
}

bool MovieView::mouseDown(const MouseEvent& event) {
    const QPointF point = convertFromWindow(event.locationInWindow);
    const Rect bar = controllerRect();
    if (!_controllerVisible || event.button != MouseButton::left || !bar.contains(point))
        return false;
    if (event.clickCount > 1)
        return true; // the press itself came before it
    _tracking = true;
    performController(_bar.press(inBar(point), barLayout()));
    return true;
}

bool MovieView::mouseDragged(const MouseEvent& event) {
    if (!_tracking)
        return false;
    performController(_bar.drag(inBar(convertFromWindow(event.locationInWindow)), barLayout()));
    return true;
}

bool MovieView::mouseUp(const MouseEvent&) {
    _bar.release();
    return std::exchange(_tracking, false);
}

void MovieView::playerFrameDue() {
    if (Window* shownIn = window(); shownIn && shownIn->host())
        shownIn->host()->displayNow(convertToWindow(pictureRect()));
}

void MovieView::playerFrameChanged() {
    // The picture may have stood elsewhere until now: that of the movie before keeps its place.
    View& whole = superview() ? *superview() : *this;
    whole.setNeedsDisplayInRect(whole.bounds());
}

void MovieView::playingChanged(bool) {}

void MovieView::playerStateChanged() {
    if (const bool playing = isPlaying(); playing != _wasPlaying) {
        _wasPlaying = playing;
        playingChanged(playing);
    }
    controllerStateChanged();
    if (_controllerVisible)
        showBarAnew();
}

void MovieView::showBarAnew() {
    const ControllerBar::State state = shownController();
    if (state == _shownState)
        return;
    _shownState = state;
    setNeedsDisplayInRect(controllerRect());
}

void MovieView::pointerMoved(const std::optional<QPointF>& point) {
    using Control = ControllerBar::Control;
    const QPointF inView = point ? convertFromWindow(*point) : QPointF();
    const bool isOver = point && _controllerVisible && controllerRect().contains(inView);
    const Control pointed = isOver ? barLayout().controlAt(inBar(inView)) : Control::none;
    if (pointed == std::exchange(_pointed, pointed) || !_controllerVisible)
        return;
    showBarAnew();
}

std::optional<MovieView::BarPlace> MovieView::barPlaceAt(QPointF point) const {
    const QPointF inView = convertFromWindow(point);
    if (!_controllerVisible || !_movie || _movie->duration() <= 0 || !controllerRect().contains(inView))
        return std::nullopt;
    const ControllerBar::Layout layout = barLayout();
    const QPointF at = inBar(inView);
    if (layout.controlAt(at) != ControllerBar::Control::time)
        return std::nullopt;
    return BarPlace{layout.placeAt(at.x()), convertToWindow(controllerRect())};
}

Rect MovieView::controllerRect() const {
    return Rect(0, 0, bounds().width(), std::min(controllerHeight(), bounds().height()));
}

double MovieView::controllerHeight() const {
    const Window* shownIn = window();
    return ControllerBar::heightOnScreen(shownIn ? shownIn->frame().height() : 0);
}

QSizeF MovieView::barSize() const {
    return controllerRect().size() * (ControllerBar::height / controllerHeight());
}

QPointF MovieView::inBar(QPointF point) const {
    return QPointF(point.x(), controllerRect().maxY() - point.y()) * (ControllerBar::height / controllerHeight());
}

ControllerBar::Layout MovieView::barLayout() const {
    return ControllerBar::layout(barSize(), controllerState());
}

ControllerBar::State MovieView::shownController() const {
    ControllerBar::State state = controllerState();
    state.pointed = _pointed;
    return ControllerBar::shownState(state, barSize());
}

void MovieView::performController(const ControllerBar::Command& command) {
    using Control = ControllerBar::Control;
    switch (command.control) {
    case Control::none:
        break;
    case Control::play:
        if (isPlaying())
            stop();
        else
            start();
        break;
    case Control::mute:
        setMuted(!isMuted());
        break;
    case Control::volume:
        if (isMuted())
            setMuted(false);
        setVolume(static_cast<float>(command.value));
        break;
    case Control::time:
        if (sliderLength() > 0) {
            const auto time = static_cast<std::int32_t>(std::lround(command.value * sliderLength()));
            if (time != _player.time())
                _player.seek(time, MoviePlayer::JumpReport::reported);
        }
        break;
    case Control::previous:
    case Control::next:
    case Control::tracks:
        barButtonPressed(command.control);
        break;
    }
}

std::vector<double> MovieView::chapterMarks() const {
    std::vector<double> marks;
    if (_movie && _movie->duration() > 0)
        for (const Chapter& chapter : _movie->info().chapters)
            if (chapter.start > 0)
                marks.push_back(static_cast<double>(chapter.start) / _movie->duration());
    return marks;
}

ControllerBar::State MovieView::controllerState() const {
    ControllerBar::State state;
    state.playing = isPlaying();
    state.muted = isMuted();
    state.volume = std::clamp(static_cast<double>(volume()), 0.0, 1.0);
    if (!_movie)
        return state;
    const double units = std::max(_movie->timeScale(), 1);
    state.time = clockText(_player.time() / units);
    const double length = sliderLength();
    if (length <= 0)
        return state;
    const std::optional<double> behind = _player.behindLive();
    state.duration = behind ? liveText(*behind) : clockText(length / units);
    state.position = std::clamp(_player.time() / length, 0.0, 1.0);
    state.arrived = std::clamp(_player.arrivedUntil() / length, 0.0, 1.0);
    return state;
}

double MovieView::sliderLength() const {
    if (!_movie)
        return 0;
    const std::optional<double> behind = _player.behindLive();
    return behind ? _player.time() + *behind * _movie->timeScale() : std::max(_movie->duration(), 0);
}

} // namespace platform

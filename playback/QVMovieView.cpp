// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/QVMovieView.h"

#include "context/CommandTarget.h"
#include "context/FeedbackDisplay.h"
#include "context/Notifications.h"
#include "overlays/ClockText.h"
#include "platform/base/Localization.h"
#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/VideoLayer.h"
#include "platform/window/Window.h"
#include "playback/DropTarget.h"
#include "playback/MovieOrdering.h"
#include "playback/PictureColors.h"
#include "playback/QVMovie.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <utility>

namespace {

constexpr const char* className = "QVMovieView";
constexpr double panInterval = 0.05;
/// Seconds after which it is said that nothing comes.
constexpr double stallTimeout = 4;
/// Seconds by which a live movie is behind at least where that is worth a word.
constexpr double noticeablyBehind = 2;

} // namespace

QVMovieView::QVMovieView(const Environment& environment, const Collaborators& collaborators)
    : MovieView(collaborators.player)
    , _environment(environment)
    , _desktop(collaborators.desktop)
    , _commands(collaborators.commands)
    , _feedback(collaborators.feedback)
    , _drops(collaborators.drops)
    , _waitMessage(environment, collaborators.feedback)
    , _size(environment.settings.integerForKey(kQVDefaultMovieSize)) {
    platform::NotificationCenter& center = environment.notifications;
    _movieChanged = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { currentMovieChanged(notification); });
    _preferencesChanged = center.observe<QVPreferencesChangedNotification>(
        [this](const auto& notification) { preferencesChanged(notification); });
    setAdjustment(PictureColors::stored(environment.settings));
}

QVMovieView::~QVMovieView() = default;

std::shared_ptr<QVMovie> QVMovieView::movie() const {
    return std::static_pointer_cast<QVMovie>(movieObject());
}

void QVMovieView::setMovie(const std::shared_ptr<QVMovie>& movie) {
    if (superview())
        superview()->setNeedsDisplayInRect(frame());
    stop();
    if (const auto old = this->movie())
        old->cancelCallbacks();
    if (_commands.forceMuted())
        _commands.setForceMuted(false);
    const float volume = this->volume();
    setFrame(platform::Rect());
    showController(true, false);
    if (movie)
        movie->selectTracks();
    setMovieObject(movie);
    if (movie)
        movie->resetCallbacks();
    setVolume(volume);
    showControllerBySetting();
    setMovieSize(_size, Recalculation::forced);
}

platform::PictureShape QVMovieView::shape() const {
    return movie() ? movie()->shape() : platform::PictureShape();
}

void QVMovieView::setShape(const platform::PictureShape& shape) {
    const auto shown = movie();
    if (!shown || shown->shape() == shape)
        return;
    shown->setShape(shape);
    player().shapeChanged();
    setMovieSize(_size, Recalculation::forced);
}

void QVMovieView::setMovieSize(std::int32_t code, Recalculation recalculation) {
    const bool forced = recalculation == Recalculation::forced;
    if (code == _size && !forced)
        return;
    trace("%@: Changing movie size. Old size: %d, new size: %d, force recalc: %d", className, _size, code, forced);
    _size = code;
    const platform::Window* window = this->window();
    if (!window || !movie()) {
        // A step has nothing to step from yet, and must not be taken from the empty view of the next movie.
        if (code == movieSize::smaller || code == movieSize::bigger)
            _size = movieSize::custom;
        return;
    }
    const platform::Rect old = frame();
    const MovieSizing::Plan plan = MovieSizing::planSize(code, old.size(), geometry());
    _size = plan.code;
    if (plan.customScale)
        _environment.settings.setFloat(*plan.customScale, kQVMovieCustomScale);
    if (superview())
        superview()->setNeedsDisplayInRect(old.grown(1));
    setFrame(MovieSizing::placed(plan.size, geometry()));
    setNeedsDisplay();
    _environment.settings.setInteger(_size, kQVDefaultMovieSize);
    _environment.notifications.post(QVMovieViewSizeChangedNotification{this});
}

MovieSizing::Geometry QVMovieView::geometry() const {
    const auto shown = movie();
    const platform::Window* window = this->window();
    return {shown ? shown->naturalBounds().size() : QSizeF(0, 0), window ? window->frame().size() : QSizeF(0, 0),
            isControllerVisible(), _environment.settings.floatForKey(kQVMovieCustomScale)};
}

QImage QVMovieView::still(const QSize& bounds) {
    platform::VideoLayer* const layer = movie() ? videoLayer() : nullptr;
    if (!layer)
        return {};
    QImage picture = layer->still(bounds);
    setNeedsDisplay();
    return picture;
}

unsigned QVMovieView::getControllerHeight() const {
    return static_cast<unsigned>(MovieSizing::controllerHeight(geometry()));
}

float QVMovieView::magnification() const {
    const auto shown = movie();
    return shown ? MovieSizing::magnification(frame().size(), shown->naturalBounds().size()) : 0.0F;
}

float QVMovieView::aspectRatio() const {
    const QSizeF natural = movie() ? movie()->naturalBounds().size() : QSizeF(0, 0);
    return natural.height() > 0 ? static_cast<float>(natural.width()) / static_cast<float>(natural.height()) : 0.0F;
}

QSizeF QVMovieView::sizeForFitScreen(std::int32_t mode) const {
    return window() && movie() ? MovieSizing::sizeForFitScreen(geometry(), mode) : QSizeF(0, 0);
}

QSizeF QVMovieView::sizeForMagnification(float m) const {
    return MovieSizing::sizeForMagnification(geometry(), m);
}

std::int32_t QVMovieView::time() const {
    const auto shown = movie();
    return shown ? shown->time() : 0;
}

void QVMovieView::setTime(std::int32_t time) {
    if (const auto shown = movie())
        shown->setTime(time);
}

void QVMovieView::jump(std::int32_t direction, double seconds) {
    if (const auto shown = movie())
        setTime(MovieSizing::jumpTarget(shown->time(), direction, seconds, shown->timeScale(), shown->duration()));
}

void QVMovieView::start() {
    trace("%@: Start Playing movie", className);
    MovieView::start();
}

void QVMovieView::stop() {
    trace("%@: Stop Playing movie", className);
    MovieView::stop();
}

void QVMovieView::waitChanged(const platform::MoviePlayer::Wait& wait) {
    using What = platform::MoviePlayer::Wait::What;
    _stallTimer.reset();
    if (wait.what == What::nothing) {
        _waitMessage.end();
        return;
    }
    if (wait.what == What::lostConnection) {
        _waitMessage.end();
        _feedback.postFeedback(platform::localizedString(QStringLiteral("Connection Lost")));
        return;
    }
    if (wait.what == What::connection) {
        _waitMessage.show(platform::localizedString(QStringLiteral("Reconnecting...")));
        return;
    }
    if (wait.what == What::beginning)
        _waitMessage.show(
            platform::localizedFormat(QStringLiteral("Loading: %@"), {fileNameOfURL(movieObject()->url())}));
    else
        _waitMessage.show(
            platform::localizedFormat(QStringLiteral("Buffering: %d %%"), {QString::number(wait.percent)}));
    // It is told anew with each percent.
    _stallTimer = _environment.loop.schedule(stallTimeout, false, [this] {
        _waitMessage.show(platform::localizedString(QStringLiteral("Stalled: No Data from the Server")));
    });
}

void QVMovieView::movieFailed() {
    _environment.notifications.post(QVMovieFailedNotification{movie()});
}

void QVMovieView::playingChanged(bool playing) {
    // That the user watches is said again with each picture.
    if (!playing) {
        _desktop.setUserActive(false);
        return;
    }
    // A movie that was at its end is to reach it again.
    if (const auto shown = movie())
        shown->armEnd();
    // Fast motion that ran into an end left it stopped and silent.
    if (rate() == 1.0F && _commands.forceMuted())
        _commands.setForceMuted(false);
}

void QVMovieView::saveMovieState() {
    _state = {isPlaying(), rate()};
    trace("%@: Saved movie state: playing: %d, rate: %g", className, _state.isPlaying, _state.rate);
}

void QVMovieView::restoreMovieState() {
    if (_state.isPlaying)
        start();
    setRate(_state.rate);
    trace("%@: Restored movie state: playing: %d, rate: %g", className, _state.isPlaying, _state.rate);
}

void QVMovieView::toggleController() {
    const bool show = !isControllerVisible();
    trace("%@: %s movie contoller.", className, show ? "Showing" : "Hiding");
    showController(show, true);
    setMovieSize(_size, Recalculation::forced);
    _environment.settings.setBool(show, kQVControllerVisible);
}

void QVMovieView::setCoveredHeight(double points) {
    if (points == std::exchange(_coveredHeight, points))
        return;
    _environment.notifications.post(QVMovieViewSizeChangedNotification{this});
}

QString QVMovieView::clockText(double seconds) const {
    return stringWithTimeIntervalInSeconds(static_cast<std::int32_t>(seconds));
}

QString QVMovieView::liveText(double seconds) const {
    return seconds < noticeablyBehind ? platform::localizedString(QStringLiteral("Live"))
                                      : u'\u2212' + clockText(seconds);
}

void QVMovieView::barButtonPressed(platform::ControllerBar::Control button) {
    using Control = platform::ControllerBar::Control;
    _commands.performCommand(button == Control::previous ? "previous-movie"
                             : button == Control::next   ? "next-movie"
                                                         : "show-tracks",
                             Feedback::yes);
}

void QVMovieView::controllerStateChanged() {
    if (_controllerObserver)
        _controllerObserver();
    _environment.notifications.post(QVPlayerStateChangedNotification{this});
}

void QVMovieView::showControllerBySetting() {
    showController(_environment.settings.boolForKey(kQVControllerVisible), true);
}

void QVMovieView::setVolume(float volume) {
    MovieView::setVolume(volume);
    _environment.notifications.post(QVMovieVolumeChangedNotification{this});
}

QString QVMovieView::volumeInfoAsString() const {
    const int percentage = static_cast<int>((static_cast<double>(volume()) + 0.005) * 100);
    const QString text = isMuted() ? platform::localizedString(QStringLiteral("Muted"))
                                   : platform::formatted(QStringLiteral("%d%%"), {QString::number(percentage)});
    return platform::localizedFormat(QStringLiteral("Volume: %@"), {text});
}

QString QVMovieView::mutedInfoAsString() const {
    const QString text = platform::localizedString(isMuted() ? QStringLiteral("On") : QStringLiteral("Off"));
    return platform::localizedFormat(QStringLiteral("Mute: %@"), {text});
}

bool QVMovieView::scroll(float dx, float dy) {
    platform::Window* window = this->window();
    if (!window)
        return false;
    const auto offset = MovieSizing::scrollOffset(frame(), window->contentView().bounds(), dx, dy);
    if (!offset)
        return false;
    setFrame(frame().translated(*offset));
    setNeedsDisplay();
    return true;
}

void QVMovieView::startAutoscroll(int direction) {
    _direction = direction;
    platform::Window* window = this->window();
    if (window && !_scrollTimer && MovieSizing::canPan(direction, frame(), window->contentView().bounds()))
        _scrollTimer = _environment.loop.schedule(panInterval, true, [this] { autoscroll(); });
}

void QVMovieView::stopAutoscroll(int direction) {
    if (direction == _direction)
        _scrollTimer.reset();
}

void QVMovieView::autoscroll() {
    const QPointF step = MovieSizing::panStep(_direction, magnification());
    if (!scroll(static_cast<float>(step.x()), static_cast<float>(step.y())))
        _scrollTimer.reset();
}

bool QVMovieView::keyDown(const platform::KeyEvent& event) {
    if (_commands.processKeyboardEvent(event))
        return true;
    const bool taken = handleMovieKey(event);
    const QString characters = event.charactersIgnoringModifiers.toLower();
    const char16_t character = characters.isEmpty() ? u'\0' : characters.at(0).unicode();
    const bool isMovieKey = character == platform::functionKey::left || character == platform::functionKey::right ||
                            character == platform::functionKey::space;
    if (!isMovieKey)
        return taken;
    if (!movie())
        _desktop.beep();
    else if (character == platform::functionKey::left)
        confirm("Step Backward");
    else if (character == platform::functionKey::right)
        confirm("Step Forward");
    else
        confirm(isPlaying() ? "Movie: Play" : "Movie: Pause");
    return true;
}

void QVMovieView::confirm(const char* key) {
    _feedback.postFeedback(platform::localizedString(QString::fromUtf8(key)));
}

bool QVMovieView::keyUp(const platform::KeyEvent& event) {
    return _commands.processKeyboardEvent(event);
}

bool QVMovieView::mouseDragged(const platform::MouseEvent& event) {
    if (isTrackingController())
        return MovieView::mouseDragged(event);
    if (event.button == platform::MouseButton::right || event.button == platform::MouseButton::other)
        return false;
    scroll(static_cast<float>(event.deltaX), static_cast<float>(event.deltaY));
    return true;
}

std::uint32_t QVMovieView::draggingEntered(const platform::DraggingInfo& info) {
    return _drops.draggingEntered(info);
}

std::uint32_t QVMovieView::draggingUpdated(const platform::DraggingInfo& info) {
    return _drops.draggingUpdated(info);
}

void QVMovieView::draggingExited() {
    _drops.draggingExited();
}

bool QVMovieView::performDragOperation(const platform::DraggingInfo& info) {
    return _drops.performDragOperation(info);
}

void QVMovieView::currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) {
    // Loaded where it was left, the movie would show that place first.
    if (notification.movie && notification.movie != movie())
        notification.movie->setTimeValue(notification.time);
    setMovie(notification.movie);
    if (notification.time == 0)
        gotoBeginning();
}

void QVMovieView::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVControllerVisible) {
        trace("%@: %s movie contoller.", className, isControllerVisible() ? "Hiding" : "Showing");
        showControllerBySetting();
        setMovieSize(_size, Recalculation::forced);
    } else if (notification.key == kQVDefaultMovieSize) {
        setMovieSize(_environment.settings.integerForKey(kQVDefaultMovieSize), Recalculation::ifChanged);
    } else if (PictureColors::isKey(notification.key)) {
        setAdjustment(PictureColors::stored(_environment.settings));
    }
}

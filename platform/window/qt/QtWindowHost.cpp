// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/QtWindowHost.h"

#include "platform/base/Log.h"
#include "platform/window/GraphicsDevice.h"
#include "platform/window/SceneGeometry.h"
#include "platform/window/VideoLayer.h"
#include "platform/window/Window.h"
#include "platform/window/qt/ForeignPanel.h"
#include "platform/window/qt/OpenGLContext.h"
#include "platform/window/qt/QtEvents.h"
#include "platform/window/qt/QtMenus.h"
#include "platform/window/qt/WindowSystem.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QCursor>
#include <QDropEvent>
#include <QExposeEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>
#include <QPainter>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QTimerEvent>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

constexpr QEvent::Type paintEventType = static_cast<QEvent::Type>(QEvent::User + 10);

/// As long after a movie's picture the next one is awaited: that of fifty in a second comes within it. Of slower movies
/// it does not, and what fades over them is painted in between.
constexpr qint64 awaitedMilliseconds = 25;

/// Opacity of a window does something only where a compositing manager runs.
bool windowSystemFades() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The platform without a screen has the interface, but no connection.
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return false;
    constexpr char name[] = "_NET_WM_CM_S0";
    const auto freed = [](void* reply) { std::free(reply); };
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(freed)> atom(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, sizeof(name) - 1, name), nullptr), freed);
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(freed)> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr), freed);
    return owner && owner->owner != XCB_WINDOW_NONE;
}

/// Tells X11 the desktop entry that the window belongs to. Wayland hears it from Qt.
void nameWindowClass(const QWindow& window) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return;
    QByteArray names = QByteArrayLiteral("lumaro");
    names.append('\0').append(QGuiApplication::desktopFileName().toUtf8()).append('\0');
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()), XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()), names.constData());
}

} // namespace

QtWindowHost::QtWindowHost(platform::Window& root, Renderer renderer)
    : _root(root)
    , _composer(root) {
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setTitle(QCoreApplication::applicationName());
    if (chooseOpenGL(renderer)) {
        setSurfaceType(QSurface::OpenGLSurface);
    } else {
        setSurfaceType(QSurface::RasterSurface);
        _backingStore = std::make_unique<QBackingStore>(this);
    }
    setCursor(Qt::ArrowCursor);
    HeldKeys::reportRepeatsWithoutReleases();
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &QtWindowHost::followKeyboard);
    connect(this, &QWindow::windowStateChanged, this, &QtWindowHost::followKeyboard);
    _root.setHost(this);
    placeOnScreen();
}

QtWindowHost::~QtWindowHost() {
    if (_openGL)
        _composer.forEachVideoLayer(devicePixelRatio(), [](VideoLayer& layer, const QRect&) { layer.endGL(); });
    _root.setHost(nullptr);
}

void QtWindowHost::setMainMenu(Menu& menu, MenuTarget& target) {
    _menus = std::make_unique<QtMenus>(*this, menu, target);
}

bool QtWindowHost::chooseOpenGL(Renderer renderer) {
    if (renderer == Renderer::software || (renderer == Renderer::automatic && !hasGraphicsDevice()))
        return false;
    auto openGL = std::make_unique<OpenGLContext>();
    if (!openGL->create() || (renderer == Renderer::automatic && openGL->drawing() == GLContext::Drawing::byProcessor))
        return false;
    bool taken = true;
    _composer.forEachVideoLayer(devicePixelRatio(),
                                [&](VideoLayer& layer, const QRect&) { taken = layer.beginGL(*openGL) && taken; });
    if (!taken) {
        _composer.forEachVideoLayer(devicePixelRatio(), [](VideoLayer& layer, const QRect&) { layer.endGL(); });
        return false;
    }
    _openGL = std::move(openGL);
    return true;
}

// What the root tells

void QtWindowHost::placeOnScreen() {
    const QScreen* main = QGuiApplication::primaryScreen();
    if (!main)
        return;
    const QRect frame = sceneGeometry::toWindowSystem(_root.frame(), main->geometry().height()).toRect();
    for (QScreen* candidate : QGuiApplication::screens()) {
        if (candidate->geometry() != frame)
            continue;
        // A whole screen is asked for as such: panels and docks then lie below. Wayland is told which screen when a
        // window appears, not while it fills another one. Which one it fills is what was asked for: Qt 6.8's screen()
        // names the first one that the window touched while it appeared.
        const bool appearsAnew = isWayland() && isVisible() && _filledScreen != candidate;
        _filledScreen = candidate;
        if (appearsAnew)
            setVisible(false);
        setScreen(candidate);
        setWindowStates(Qt::WindowFullScreen);
        setGeometry(frame);
        if (appearsAnew)
            setVisible(true);
        return;
    }
    _filledScreen = nullptr;
    setWindowStates(Qt::WindowNoState);
    setGeometry(frame);
}

void QtWindowHost::frameChanged() {
    if (!_followingWindowSystem)
        placeOnScreen();
    displayNeeded(_root.contentView().bounds());
}

void QtWindowHost::alphaChanged() {
    // Where a compositor takes it, the window system fades the window; else its content is darkened.
    const bool fades = windowSystemFades();
    _composer.setPaintsAlpha(!fades);
    if (fades)
        setOpacity(static_cast<double>(_root.alphaValue()));
    orderedChanged();
    displayNeeded(_root.contentView().bounds());
}

void QtWindowHost::levelChanged() {
    const bool above = _root.level() > windowLevel::normal;
    if (flags().testFlag(Qt::WindowStaysOnTopHint) != above)
        setFlag(Qt::WindowStaysOnTopHint, above);
}

void QtWindowHost::orderedChanged() {
    // A window faded out altogether is unmapped: it must take no clicks.
    const bool shown = _root.isOrderedIn() && _root.alphaValue() > 0;
    if (!shown && _root.minimizesWhenHidden()) {
        if (isVisible() && !std::exchange(_minimized, true))
            setWindowStates(windowStates() | Qt::WindowMinimized);
        return;
    }
    if (std::exchange(_minimized, false))
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
    if (shown == isVisible())
        return;
    setVisible(shown);
    if (shown)
        requestActivate();
}

void QtWindowHost::makeKeyAndOrderFront() {
    orderedChanged();
    if (windowStates() & Qt::WindowMinimized)
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
    raise();
    // A panel that waits for its answer stays above, and keeps the keyboard.
    if (QWindow* const panel = QGuiApplication::modalWindow()) {
        if (panel->isVisible()) {
            panel->raise();
            panel->requestActivate();
        }
        return;
    }
    requestActivate();
}

void QtWindowHost::setPointerHidden(bool hidden) {
    if (_menus && _menus->hasWindowsPointer())
        hidden = false;
    if (hidden == _pointerHidden)
        return;
    _pointerHidden = hidden;
    setCursor(hidden ? Qt::BlankCursor : Qt::ArrowCursor);
}

bool QtWindowHost::markDirty(const Rect& rect) {
    const QRect pixels = sceneGeometry::toCoveringPixels(rect, _root.frame().size(), devicePixelRatio())
                             .intersected(QRect(QPoint(0, 0), pixelSize()));
    if (pixels.isEmpty())
        return false;
    if (!isExposed()) {
        skipFrames();
        return false; // exposing paints everything
    }
    _dirty += pixels;
    return true;
}

void QtWindowHost::displayNeeded(const Rect& rect) {
    if (markDirty(rect) && !waitForPicture())
        schedulePaint();
}

void QtWindowHost::displayNow(const Rect& rect) {
    _sincePicture.start();
    if (markDirty(rect))
        paint();
}

// Painting

QRegion QtWindowHost::toPoints(const QRegion& pixels) const {
    const double ratio = devicePixelRatio();
    if (ratio == 1)
        return pixels;
    QRegion points;
    for (const QRect& rect : pixels)
        points +=
            QRectF(rect.x() / ratio, rect.y() / ratio, rect.width() / ratio, rect.height() / ratio).toAlignedRect();
    return points;
}

QSize QtWindowHost::pixelSize() const {
    return (QSizeF(size()) * devicePixelRatio()).toSize();
}

void QtWindowHost::schedulePaint() {
    // Posted, not painted at once, so that everything that changes in one pass of the event loop is painted together.
    if (std::exchange(_paintScheduled, true))
        return;
    QCoreApplication::postEvent(this, new QEvent(paintEventType), Qt::HighEventPriority);
}

/// What changes over a movie is painted with its next picture where that comes soon: to paint it by itself costs as
/// much, since the movie's picture below is rendered anew. False when no picture is awaited.
bool QtWindowHost::waitForPicture() {
    if (_pictureAwaited.isActive())
        return true;
    const qint64 left = _sincePicture.isValid() ? awaitedMilliseconds - _sincePicture.elapsed() : 0;
    if (left <= 0)
        return false;
    _pictureAwaited.start(static_cast<int>(left), Qt::PreciseTimer, this);
    return true;
}

void QtWindowHost::timerEvent(QTimerEvent* event) {
    if (event->timerId() != _pictureAwaited.timerId()) {
        QWindow::timerEvent(event);
        return;
    }
    _pictureAwaited.stop();
    paint();
}

void QtWindowHost::paint() {
    _pictureAwaited.stop();
    if (!isExposed() || _dirty.isEmpty())
        return;
    const QRegion dirty = std::exchange(_dirty, QRegion());
    if (_openGL)
        paintOpenGL();
    else
        paintSoftware(dirty);
}

void QtWindowHost::skipFrames() {
    _composer.forEachVideoLayer(devicePixelRatio(), [](VideoLayer& layer, const QRect&) { layer.skip(); });
}

void QtWindowHost::paintSoftware(const QRegion& marked) {
    const QRect whole(QPoint(0, 0), pixelSize());
    QRegion dirty = marked;
    if (_backingStore->size() != size()) {
        _backingStore->resize(size());
        dirty = whole;
    }
    _composer.forEachVideoLayer(devicePixelRatio(), [&](VideoLayer&, const QRect& picture) {
        if (dirty.intersects(picture))
            dirty += picture.intersected(whole);
    });
    const QRegion points = toPoints(dirty);
    _backingStore->beginPaint(points);
    QPaintDevice* device = _backingStore->paintDevice();
    auto* image = device->devType() == QInternal::Image ? static_cast<QImage*>(device) : nullptr;
    if (image && image->depth() == 32) {
        _composer.compose(*image, dirty, devicePixelRatio()); // straight into the window's pixels
    } else {
        if (_canvas.size() != whole.size())
            _canvas = QImage(whole.size(), QImage::Format_RGB32);
        _composer.compose(_canvas, dirty, devicePixelRatio());
        QPainter painter(device);
        painter.scale(1 / devicePixelRatio(), 1 / devicePixelRatio());
        for (const QRect& rect : dirty)
            painter.drawImage(rect, _canvas, rect);
    }
    _backingStore->endPaint();
    _backingStore->flush(points);
}

bool QtWindowHost::renewOpenGL() {
    auto openGL = std::make_unique<OpenGLContext>();
    if (!openGL->create())
        return false;
    Log::write(QStringLiteral("WARNING: QtWindowHost: The OpenGL context is lost; another one takes its place"));
    bool taken = true;
    _composer.forEachVideoLayer(devicePixelRatio(), [&](VideoLayer& layer, const QRect&) {
        layer.endGL();
        taken = layer.beginGL(*openGL) && taken;
    });
    _openGL = std::move(openGL);
    return taken && _openGL->context().makeCurrent(this);
}

void QtWindowHost::paintOpenGL() {
    if (!_openGL->context().makeCurrent(this) && !renewOpenGL())
        return;
    QOpenGLContext& context = _openGL->context();
    const QSize pixels = pixelSize();
    QOpenGLFunctions* gl = context.functions();
    const QColor color = _composer.background();
    gl->glViewport(0, 0, pixels.width(), pixels.height());
    gl->glClearColor(static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                     static_cast<float>(color.blueF()), 1.0F);
    gl->glClear(GL_COLOR_BUFFER_BIT);
    _composer.forEachVideoLayer(devicePixelRatio(), [&](VideoLayer& layer, const QRect& picture) {
        layer.renderGL(picture, pixels, context.defaultFramebufferObject());
    });
    // The renderer leaves the state of OpenGL as it likes; the painter wants it plain.
    gl->glBindFramebuffer(GL_FRAMEBUFFER, context.defaultFramebufferObject());
    gl->glDisable(GL_SCISSOR_TEST);
    gl->glDisable(GL_DEPTH_TEST);
    gl->glUseProgram(0);
    gl->glActiveTexture(GL_TEXTURE0);
    gl->glViewport(0, 0, pixels.width(), pixels.height());
    QOpenGLPaintDevice device(pixels);
    QPainter painter(&device);
    _composer.drawOver(painter, QRegion(QRect(QPoint(0, 0), pixels)), devicePixelRatio());
    painter.end();
    context.swapBuffers(this);
}

// What the window system tells

bool QtWindowHost::event(QEvent* event) {
    if (event->type() == paintEventType) {
        _paintScheduled = false;
        paint();
        return true;
    }
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        dragEvent(*static_cast<QDropEvent*>(event));
        return true;
    case QEvent::DragLeave:
        dragLeft();
        return true;
    case QEvent::PlatformSurface:
        if (static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() == QPlatformSurfaceEvent::SurfaceCreated)
            nameWindowClass(*this);
        break;
    case QEvent::WindowBlocked:
        // The panel that stands is told of their releases, one without a window of ours, too.
        releaseKeys();
        break;
    case QEvent::Leave:
        _root.dispatchMouseLeft();
        break;
    case QEvent::Close:
        // Alt+F4 and task lists ask; the window goes when the application has faded it out.
        if (!_root.delegate() || _root.delegate()->windowShouldClose(_root))
            break;
        event->ignore();
        return true;
    default:
        break;
    }
    return QWindow::event(event);
}

void QtWindowHost::exposeEvent(QExposeEvent*) {
    if (!isExposed())
        return;
    _dirty = QRegion(QRect(QPoint(0, 0), pixelSize()));
    paint();
}

void QtWindowHost::resizeEvent(QResizeEvent*) {
    const QScreen* main = QGuiApplication::primaryScreen();
    if (!main)
        return;
    // The window manager has the last word on the size; the model follows it.
    _followingWindowSystem = true;
    _root.setFrame(sceneGeometry::fromWindowSystem(geometry(), main->geometry().height()));
    _followingWindowSystem = false;
    displayNeeded(_root.contentView().bounds());
}

void QtWindowHost::keyPressEvent(QKeyEvent* event) {
    if (_menus && _menus->passToOpenMenu(*event))
        return;
    if (qtEvents::isModifierAlone(*event))
        return;
    const bool isRepeat = _heldKeys.press(event->nativeScanCode());
    if (_menus && _menus->performShortcut(qtEvents::shortcut(*event), isRepeat))
        return;
    _root.dispatchKey(qtEvents::keyEvent(*event, isRepeat));
}

void QtWindowHost::keyReleaseEvent(QKeyEvent* event) {
    // Some window systems report a release before each automatic repeat; the key is still held.
    if (event->isAutoRepeat() || qtEvents::isModifierAlone(*event))
        return;
    _heldKeys.release(event->nativeScanCode());
    _root.dispatchKey(qtEvents::keyEvent(*event, false));
}

void QtWindowHost::releaseKeys() {
    if (!_heldKeys.forget())
        return;
    KeyEvent released;
    released.type = KeyEvent::Type::up;
    _root.dispatchKey(released);
}

MouseEvent QtWindowHost::mouseEvent(const QMouseEvent& event) {
    const QPointF position = event.position();
    MouseEvent result;
    result.locationInWindow = sceneGeometry::flipped(position, _root.frame().size());
    result.deltaX = position.x() - _lastPointer.x();
    result.deltaY = position.y() - _lastPointer.y();
    result.button = qtEvents::mouseButton(event.button());
    result.clickCount = event.type() == QEvent::MouseButtonDblClick ? 2 : 1;
    result.modifierFlags = qtEvents::modifierFlags(event.modifiers());
    _lastPointer = position;
    return result;
}

void QtWindowHost::mousePressEvent(QMouseEvent* event) {
    setPointerHidden(false);
    if (_menus && _menus->pressed(*event))
        return;
    const MouseEvent translated = mouseEvent(*event);
    if (translated.button == MouseButton::right && _menus) {
        // The menu is told of their releases.
        releaseKeys();
        _menus->popUp(event->globalPosition().toPoint());
        return;
    }
    _root.dispatchMouseDown(translated);
}

void QtWindowHost::showMenu(Menu& menu) {
    if (!_menus)
        return;
    releaseKeys();
    setPointerHidden(false);
    _menus->popUp(menu, QCursor::pos());
}

void QtWindowHost::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!_menus || !_menus->tookDoubleClick())
        _root.dispatchMouseDown(mouseEvent(*event));
}

void QtWindowHost::wheelEvent(QWheelEvent* event) {
    setPointerHidden(false);
    if (_menus && _menus->isMenuOpen())
        return;
    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    _wheelTurned += event->angleDelta().y();
    if (const int steps = _wheelTurned / step) {
        _wheelTurned %= step;
        _root.dispatchWheel(steps);
    }
}

void QtWindowHost::mouseReleaseEvent(QMouseEvent* event) {
    if (_menus && _menus->released(*event))
        return;
    _root.dispatchMouseUp(mouseEvent(*event));
}

void QtWindowHost::mouseMoveEvent(QMouseEvent* event) {
    setPointerHidden(false);
    if (_menus && _menus->pointerMoved(*event)) {
        _root.dispatchMouseLeft();
        return;
    }
    const MouseEvent translated = mouseEvent(*event);
    if (event->buttons() & Qt::LeftButton)
        _root.dispatchMouseDragged(translated);
    else
        _root.dispatchMouseMoved(translated);
}

void QtWindowHost::focusInEvent(QFocusEvent*) {
    followKeyboard();
}

void QtWindowHost::focusOutEvent(QFocusEvent*) {
    // Whoever has the keyboard now is told of the keys' releases.
    releaseKeys();
    followKeyboard();
}

/// A menu or panel of ours (or one of the desktop's on our behalf) that has the keyboard leaves the window the user's;
/// only another program takes it, and minimising gives it away.
void QtWindowHost::followKeyboard() {
    const bool isOurs = QGuiApplication::applicationState() == Qt::ApplicationActive || ForeignPanel::isUp();
    const bool isMinimized = windowStates() & Qt::WindowMinimized;
    if (!isOurs || isMinimized)
        _root.setKey(false);
    else if (isActive())
        _root.setKey(true);
    else if (_minimized)
        requestActivate(); // brought back
}

View& QtWindowHost::dragTarget() const {
    View* const target = _root.contentView().hitTest(sceneGeometry::flipped(_dragPosition, _root.frame().size()));
    return target ? *target : _root.contentView();
}

void QtWindowHost::dragEvent(QDropEvent& event) {
    if (event.type() == QEvent::DragMove && _dragged)
        _dragged->sourceOperationMask = qtEvents::dragOperations(event);
    else
        _dragged = qtEvents::draggingInfo(event);
    _dragPosition = event.position();
    View& target = dragTarget();
    const std::uint32_t answer =
        event.type() == QEvent::DragMove ? target.draggingUpdated(*_dragged) : target.draggingEntered(*_dragged);
    if (answer == dragOperation::none) {
        event.ignore();
        return;
    }
    event.setDropAction(qtEvents::dropAction(answer, event.possibleActions()));
    event.accept();
    if (event.type() != QEvent::Drop)
        return;
    const DraggingInfo info = *std::exchange(_dragged, std::nullopt);
    if (target.performDragOperation(info))
        target.concludeDragOperation(info);
}

void QtWindowHost::dragLeft() {
    if (std::exchange(_dragged, std::nullopt))
        dragTarget().draggingExited();
}

} // namespace platform

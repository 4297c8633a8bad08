// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Events.h"
#include "platform/window/SceneComposer.h"
#include "platform/window/WindowHost.h"
#include "platform/window/qt/HeldKeys.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QImage>
#include <QPointF>
#include <QPointer>
#include <QRegion>
#include <QScreen>
#include <QWindow>

#include <memory>
#include <optional>

class QBackingStore;
class QDropEvent;

namespace platform {

class Menu;
class MenuTarget;
class OpenGLContext;
class QtMenus;
class View;
class Window;

/// Which way pictures come to the screen. Automatic takes OpenGL where hardware draws it, else software.
enum class Renderer { automatic, software, openGL };

/// Shows a root window in one frameless native window. It paints, in order, the root's background, the picture, the
/// content's views and the windows above; with the software renderer the picture goes straight into the window's own
/// pixels. Nothing is painted while nothing was marked for display.
class QtWindowHost final : public QWindow, public WindowHost {
public:
    QtWindowHost(platform::Window& root, Renderer renderer);
    ~QtWindowHost() override;

    /// The menu bar, shown while the pointer is at the top of the screen and as a context menu; its shortcuts act at
    /// any time.
    void setMainMenu(Menu& menu, MenuTarget& target);

    bool usesOpenGL() const { return _openGL != nullptr; }

    void frameChanged() override;
    void alphaChanged() override;
    void levelChanged() override;
    void orderedChanged() override;
    void displayNeeded(const Rect& rect) override;
    void displayNow(const Rect& rect) override;
    void makeKeyAndOrderFront() override;
    void setPointerHidden(bool hidden) override;
    void showMenu(Menu& menu) override;
    double pixelRatio() const override { return devicePixelRatio(); }

private:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    bool chooseOpenGL(Renderer renderer);
    void placeOnScreen();
    QSize pixelSize() const;
    bool markDirty(const Rect& rect);
    void schedulePaint();
    bool waitForPicture();
    void timerEvent(QTimerEvent* event) override;
    void paint();
    void paintSoftware(const QRegion& dirty);
    void paintOpenGL();
    /// Puts another context in place of the one that is lost, as when a graphics device is reset.
    bool renewOpenGL();
    QRegion toPoints(const QRegion& pixels) const;
    void skipFrames();
    void releaseKeys();
    void followKeyboard();
    MouseEvent mouseEvent(const QMouseEvent& event);
    View& dragTarget() const;
    void dragEvent(QDropEvent& event);
    void dragLeft();

    platform::Window& _root; // QSurface has a Window of its own
    SceneComposer _composer;
    std::unique_ptr<QBackingStore> _backingStore;
    QImage _canvas; // where the window's own pixels cannot be drawn into
    std::unique_ptr<OpenGLContext> _openGL;
    std::unique_ptr<QtMenus> _menus;
    QRegion _dirty;                  // pixels
    QPointer<QScreen> _filledScreen; // null while the window fills none
    bool _paintScheduled = false;
    QElapsedTimer _sincePicture; // of the movie; invalid before the first
    QBasicTimer _pictureAwaited;
    bool _followingWindowSystem = false;
    bool _pointerHidden = false;
    bool _minimized = false; // by the root, not by the user
    QPointF _lastPointer;
    std::optional<DraggingInfo> _dragged; // over the window
    QPointF _dragPosition;
    HeldKeys _heldKeys;
    int _wheelTurned = 0; // eighths of a degree, less than a step
};

} // namespace platform

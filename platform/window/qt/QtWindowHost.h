// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Events.h"
#include "platform/window/WindowHost.h"

#include <QPointF>
#include <QRegion>
#include <QWindow>

#include <functional>
#include <memory>

class QBackingStore;
class QDropEvent;
class QPainter;

namespace platform {

class Menu;
class MenuTarget;
class PictureLayer;
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

    /// How many times the window was painted (measurements).
    unsigned long paintCount() const { return _paintCount; }
    bool usesOpenGL() const { return _openGL != nullptr; }

    void frameChanged() override;
    void alphaChanged() override;
    void levelChanged() override;
    void orderedChanged() override;
    void displayNeeded(const QRectF& rect) override;
    void makeKeyAndOrderFront() override;
    void setPointerHidden(bool hidden) override;
    double pixelRatio() const override { return devicePixelRatio(); }

private:
    class OpenGL;

    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    bool chooseOpenGL(Renderer renderer);
    void placeOnScreen();
    QSize pixelSize() const;
    void schedulePaint();
    void paint();
    void paintSoftware(const QRegion& dirty);
    void paintOpenGL();
    /// The views' own drawing and the windows above, within `dirty` (pixels).
    void drawOver(QPainter& painter, const QRegion& dirty);
    void drawViews(QPainter& painter, const View& view, const QRegion& dirty);
    void forEachPicture(const View& view, const std::function<void(PictureLayer&, const QRect&)>& visit);
    void skipPictures();
    MouseEvent mouseEvent(const QMouseEvent& event);
    bool dragEvent(QDropEvent& event, QEvent::Type type);

    platform::Window& _root; // QSurface has a Window of its own
    std::unique_ptr<QBackingStore> _backingStore;
    std::unique_ptr<OpenGL> _openGL;
    std::unique_ptr<QtMenus> _menus;
    QRegion _dirty; // pixels
    bool _paintScheduled = false;
    bool _followingWindowSystem = false;
    bool _pointerHidden = false;
    QPointF _lastPointer;
    unsigned long _paintCount = 0;
};

} // namespace platform

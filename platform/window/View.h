// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "platform/window/Events.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace platform {

class VideoLayer;
class View;
class Window;

/// What a view asks of the window that shows it.
class ViewOwner {
public:
    /// Marks a part of the content for redisplay (content coordinates).
    virtual void displayNeeded(const Rect& rect) = 0;
    /// The view leaves the window: it gets no more of its keys and drags.
    virtual void forgetView(const View& view) = 0;

protected:
    ~ViewOwner() = default;
};

/// A rectangle of a window that draws itself and takes events. Coordinates are points, origin bottom left, y up; a
/// view's frame is in its superview's coordinates. Views do not own each other; a view leaves its superview when it is
/// destroyed. Main thread.
class View {
public:
    View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View();

    Rect frame() const { return _frame; }
    /// Moves and resizes the view and marks the old and the new area for redisplay.
    virtual void setFrame(const Rect& frame);
    /// The view's own rectangle: its frame's size at the origin.
    Rect bounds() const { return {QPointF(0, 0), _frame.size()}; }

    View* superview() const { return _superview; }
    const std::vector<View*>& subviews() const { return _subviews; }
    void addSubview(View& view);
    void removeFromSuperview();

    /// The window whose content this view is or lies in, or null.
    Window* window() const;

    /// The rectangle (in this view's coordinates) in the window's content coordinates.
    Rect convertToWindow(const Rect& rect) const;
    QPointF convertFromWindow(QPointF point) const;

    /// Marks the view, or a part of it in its own coordinates, for redisplay.
    void setNeedsDisplay();
    void setNeedsDisplayInRect(const Rect& rect);

    /// The bounds as a painter of draw() takes them: the origin is the top left corner there.
    QRectF paintedBounds() const;

    /// Draws the part `dirty` (own coordinates). The painter's origin is the view's top left corner with y growing
    /// downwards, as Qt draws; its clip is set. Called only where something is marked for redisplay.
    virtual void draw(QPainter& painter, const Rect& dirty);
    /// The part (own coordinates) that draw() draws into: nothing outside it is asked for.
    virtual Rect drawnRect() const { return bounds(); }
    /// The picture that the host puts into pictureRect() (own coordinates) before draw(), or null.
    virtual VideoLayer* videoLayer() { return nullptr; }
    virtual Rect pictureRect() const { return Rect(); }

    /// Events answer true when taken; the others go on to the superview and then to the window.
    virtual bool keyDown(const KeyEvent& event);
    virtual bool keyUp(const KeyEvent& event);
    virtual bool mouseDown(const MouseEvent& event);
    virtual bool mouseDragged(const MouseEvent& event);
    virtual bool mouseUp(const MouseEvent& event);
    virtual std::uint32_t draggingEntered(const DraggingInfo& info);
    virtual std::uint32_t draggingUpdated(const DraggingInfo& info);
    virtual void draggingExited();
    virtual bool performDragOperation(const DraggingInfo& info);
    virtual void concludeDragOperation(const DraggingInfo& info);

    /// The deepest view at a point of this view's superview's coordinates, or null.
    View* hitTest(QPointF point);

private:
    friend class Window;
    const View& root() const;

    Rect _frame;
    View* _superview = nullptr;
    Window* _window = nullptr; // of a content view only, as its owner
    ViewOwner* _owner = nullptr;
    std::vector<View*> _subviews;
};

} // namespace platform

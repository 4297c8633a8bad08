// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Window.h"

#include "platform/base/NotificationCenter.h"
#include "platform/window/WindowHost.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

/// Offers an event to a view and then to its superviews; the view that took it, or null. The superview is looked up
/// before the call, because a view may leave or end in its own handler.
template <class Event>
View* offer(View* view, bool (View::*handler)(const Event&), const Event& event) {
    while (view) {
        View* next = view->superview();
        if ((view->*handler)(event))
            return view;
        view = next;
    }
    return nullptr;
}

} // namespace

void WindowDelegate::windowDidBecomeKey(Window&) {}

void WindowDelegate::windowDidResignKey(Window&) {}

void WindowDelegate::windowDidResize(Window&) {}

bool WindowDelegate::windowShouldClose(Window&) {
    return true;
}

Window::Window(const Rect& frame)
    : _frame(frame) {
    _contentView._window = this;
    _contentView._owner = this;
    _contentView._frame = Rect(QPointF(0, 0), frame.size());
}

Window::~Window() {
    if (_parent)
        _parent->Window::removeChildWindow(*this);
    for (Window* child : _children)
        child->_parent = nullptr;
    _contentView._window = nullptr;
    _contentView._owner = nullptr;
}

void Window::setFrame(const Rect& frame) {
    if (frame == _frame)
        return;
    const Rect old = std::exchange(_frame, frame);
    const bool resized = old.size() != frame.size();
    if (_parent && _orderedIn && _alpha > 0) {
        _parent->compose(old.grown(_overhang).translated(-_parent->_frame.origin()));
        _parent->compose(frame.grown(_overhang).translated(-_parent->_frame.origin()));
    }
    // Children keep their place above their parent.
    const QPointF moved = frame.origin() - old.origin();
    if (!moved.isNull()) {
        const std::vector<Window*> children = _children;
        for (Window* child : children)
            child->setFrame(child->frame().translated(moved));
    }
    if (resized)
        _contentView.setFrame(Rect(QPointF(0, 0), frame.size()));
    if (_host)
        _host->frameChanged();
    if (resized) {
        NotificationCenter::defaultCenter().post(WindowDidResizeNotification{this});
        if (_delegate)
            _delegate->windowDidResize(*this);
    }
}

float Window::shownAlpha(float alpha) {
    // Written so that what is no number falls to 0.
    return alpha > 0.0F ? std::min(alpha, 1.0F) : 0.0F;
}

void Window::setAlphaValue(float alpha) {
    const float clamped = shownAlpha(alpha);
    if (clamped == _alpha)
        return;
    // Composed anew from its cached picture: the content is the same. A window that vanishes is still seen before.
    if (clamped == 0.0F)
        composeWhole();
    _alpha = clamped;
    if (clamped > 0.0F)
        composeWhole();
    if (_host)
        _host->alphaChanged();
}

void Window::setBackgroundColor(const QColor& color) {
    if (color == _backgroundColor)
        return;
    _backgroundColor = color;
    displayNeeded(_contentView.bounds());
}

void Window::setLevel(int level) {
    if (level == _level)
        return;
    _level = level;
    if (_host)
        _host->levelChanged();
}

void Window::orderFront() {
    if (_parent && _parent->_children.back() != this) {
        std::vector<Window*>& siblings = _parent->_children;
        const auto self = std::ranges::find(siblings, this);
        std::rotate(self, self + 1, siblings.end());
        composeWhole();
    }
    if (_orderedIn)
        return;
    _orderedIn = true;
    if (_host)
        _host->orderedChanged();
    else
        composeWhole();
}

void Window::orderOut() {
    if (!_orderedIn)
        return;
    if (!_host)
        composeWhole();
    _orderedIn = false;
    if (_host)
        _host->orderedChanged();
    setKey(false);
}

void Window::makeKeyAndOrderFront() {
    orderFront();
    if (_host)
        _host->makeKeyAndOrderFront();
    else if (!_parent)
        setKey(true); // no window system is there to say so
}

void Window::addChildWindow(Window& child) {
    for (const Window* ancestor = this; ancestor; ancestor = ancestor->_parent) {
        if (ancestor == &child)
            return;
    }
    if (child._parent)
        child._parent->removeChildWindow(child);
    _children.push_back(&child);
    child._parent = this;
    child.composeWhole();
}

void Window::removeChildWindow(Window& child) {
    if (child._parent != this)
        return;
    child.composeWhole();
    std::erase(_children, &child);
    child._parent = nullptr;
}

int Window::addTrackingRect(const Rect& rect) {
    _trackingAreas.push_back({++_lastTrackingTag, rect, false});
    return _lastTrackingTag;
}

void Window::removeTrackingRect(int tag) {
    std::erase_if(_trackingAreas, [tag](const TrackingArea& area) { return area.tag == tag; });
}

bool Window::dispatchKey(const KeyEvent& event) {
    const bool down = event.type == KeyEvent::Type::down;
    if (offer(_firstResponder, down ? &View::keyDown : &View::keyUp, event))
        return true;
    return down ? keyDown(event) : keyUp(event);
}

void Window::dispatchMouseDown(const MouseEvent& event) {
    View* hit = _contentView.hitTest(event.locationInWindow);
    // What follows goes to the view under the press, also when no view took it: panning needs no press. The view is
    // noted first, so that it is forgotten when it ends in its handler.
    _mouseView = hit;
    View* const taker = offer(hit, &View::mouseDown, event);
    if (!taker)
        mouseDown(event);
    else if (_mouseView)
        _mouseView = taker;
}

void Window::dispatchWheel(int steps) {
    wheelTurned(steps);
}

void Window::dispatchMouseDragged(const MouseEvent& event) {
    offer(_mouseView, &View::mouseDragged, event);
}

void Window::dispatchMouseUp(const MouseEvent& event) {
    offer(std::exchange(_mouseView, nullptr), &View::mouseUp, event);
    mouseUp(event);
    // A drag does not count as coming and going; where it ended does.
    trackPointer(event.locationInWindow, _contentView.hitTest(event.locationInWindow) != nullptr);
}

void Window::dispatchMouseMoved(const MouseEvent& event) {
    trackPointer(event.locationInWindow, true);
    mouseMoved(event);
}

void Window::dispatchMouseLeft() {
    trackPointer(QPointF(), false);
    mouseLeft();
}

void Window::setKey(bool key) {
    if (key == _key)
        return;
    _key = key;
    if (!_delegate)
        return;
    if (key)
        _delegate->windowDidBecomeKey(*this);
    else
        _delegate->windowDidResignKey(*this);
}

void Window::displayNeeded(const Rect& rect) {
    if (rect.intersected(_contentView.bounds()).isEmpty())
        return;
    ++_contentRevision;
    compose(rect);
}

void Window::compose(const Rect& rect) {
    const Rect visible = rect.intersected(_contentView.bounds());
    if (visible.isEmpty())
        return;
    if (_host)
        _host->displayNeeded(visible);
    else if (_parent && _orderedIn && _alpha > 0)
        _parent->compose(visible.grown(_overhang).translated(_frame.origin() - _parent->_frame.origin()));
}

void Window::setOverhang(double points) {
    if (points == _overhang)
        return;
    composeWhole();
    _overhang = points;
    displayNeeded(_contentView.bounds());
}

void Window::composeWhole() {
    compose(_contentView.bounds());
}

bool Window::keyDown(const KeyEvent&) {
    return false;
}

void Window::mouseDown(const MouseEvent&) {}

void Window::wheelTurned(int) {}

bool Window::keyUp(const KeyEvent&) {
    return false;
}

void Window::mouseMoved(const MouseEvent&) {}

void Window::mouseLeft() {}

void Window::mouseUp(const MouseEvent&) {}

void Window::mouseEntered(int) {}

void Window::mouseExited(int) {}

void Window::trackPointer(QPointF location, bool insideWindow) {
    // Areas may be added and removed by what they report: the changes are noted first and each area is looked up again.
    const auto isIn = [&](const TrackingArea& area) { return insideWindow && area.rect.contains(location); };
    const auto report = [&](bool entering) {
        std::vector<int> changed;
        for (const TrackingArea& area : _trackingAreas) {
            if (area.inside != entering && isIn(area) == entering)
                changed.push_back(area.tag);
        }
        for (const int tag : changed) {
            const auto area = std::ranges::find(_trackingAreas, tag, &TrackingArea::tag);
            if (area == _trackingAreas.end() || area->inside == entering)
                continue;
            area->inside = entering;
            if (entering)
                mouseEntered(tag);
            else
                mouseExited(tag);
        }
    };
    report(false);
    report(true);
}

void Window::forgetView(const View& view) {
    const auto liesIn = [&view](const View* candidate) {
        while (candidate && candidate != &view)
            candidate = candidate->superview();
        return candidate != nullptr;
    };
    if (liesIn(_firstResponder))
        _firstResponder = nullptr;
    if (liesIn(_mouseView))
        _mouseView = nullptr;
}

} // namespace platform

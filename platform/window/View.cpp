// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/View.h"

#include <algorithm>

namespace platform {

View::~View() {
    removeFromSuperview();
    if (_owner)
        _owner->forgetView(*this);
    for (View* child : _subviews)
        child->_superview = nullptr;
}

void View::setFrame(const Rect& frame) {
    if (frame == _frame)
        return;
    const Rect old = _frame;
    _frame = frame;
    if (_superview) {
        _superview->setNeedsDisplayInRect(old);
        _superview->setNeedsDisplayInRect(frame);
    } else if (_window) {
        setNeedsDisplay();
    }
}

void View::addSubview(View& view) {
    if (&view == this)
        return;
    for (const View* ancestor = _superview; ancestor; ancestor = ancestor->_superview) {
        if (ancestor == &view)
            return;
    }
    view.removeFromSuperview();
    _subviews.push_back(&view);
    view._superview = this;
    view.setNeedsDisplay();
}

void View::removeFromSuperview() {
    if (!_superview)
        return;
    setNeedsDisplay();
    if (ViewOwner* owner = root()._owner)
        owner->forgetView(*this);
    std::erase(_superview->_subviews, this);
    _superview = nullptr;
}

const View& View::root() const {
    const View* view = this;
    while (view->_superview)
        view = view->_superview;
    return *view;
}

Window* View::window() const {
    return root()._window;
}

Rect View::convertToWindow(const Rect& rect) const {
    Rect converted = rect;
    for (const View* view = this; view; view = view->_superview)
        converted = converted.translated(view->_frame.origin());
    return converted;
}

QPointF View::convertFromWindow(QPointF point) const {
    for (const View* view = this; view; view = view->_superview)
        point -= view->_frame.origin();
    return point;
}

void View::setNeedsDisplay() {
    setNeedsDisplayInRect(bounds());
}

void View::setNeedsDisplayInRect(const Rect& rect) {
    ViewOwner* owner = root()._owner;
    if (owner && !rect.isEmpty())
        owner->displayNeeded(convertToWindow(rect));
}

QRectF View::paintedBounds() const {
    return {QPointF(0, 0), _frame.size()};
}

void View::draw(QPainter&, const Rect&) {}

bool View::keyDown(const KeyEvent&) {
    return false;
}

bool View::keyUp(const KeyEvent&) {
    return false;
}

bool View::mouseDown(const MouseEvent&) {
    return false;
}

bool View::mouseDragged(const MouseEvent&) {
    return false;
}

bool View::mouseUp(const MouseEvent&) {
    return false;
}

std::uint32_t View::draggingEntered(const DraggingInfo&) {
    return dragOperation::none;
}

std::uint32_t View::draggingUpdated(const DraggingInfo&) {
    return dragOperation::none;
}

void View::draggingExited() {}

bool View::performDragOperation(const DraggingInfo&) {
    return false;
}

void View::concludeDragOperation(const DraggingInfo&) {}

View* View::hitTest(QPointF point) {
    if (!_frame.contains(point))
        return nullptr;
    const QPointF inside = point - _frame.origin();
    for (auto view = _subviews.rbegin(); view != _subviews.rend(); ++view) {
        if (View* hit = (*view)->hitTest(inside))
            return hit;
    }
    return this;
}

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Window.h"
#include "platform/window/WindowHost.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <functional>
#include <memory>

using namespace platform;

namespace {

class RecordingHost final : public WindowHost {
public:
    QStringList calls;
    std::vector<QRectF> dirty;
    void frameChanged() override { calls << QStringLiteral("frame"); }
    void alphaChanged() override { calls << QStringLiteral("alpha"); }
    void levelChanged() override { calls << QStringLiteral("level"); }
    void orderedChanged() override { calls << QStringLiteral("ordered"); }
    void displayNeeded(const QRectF& rect) override { dirty.push_back(rect); }
    void makeKeyAndOrderFront() override { calls << QStringLiteral("key"); }
    void setPointerHidden(bool) override {}
    double pixelRatio() const override { return 1; }
};

/// A window that notes what reaches it.
class RecordingWindow final : public Window {
public:
    using Window::Window;
    QStringList events;
    std::function<void(int)> onExit;

protected:
    bool keyDown(const KeyEvent&) override { return note(QStringLiteral("keyDown")); }
    bool keyUp(const KeyEvent&) override { return note(QStringLiteral("keyUp")); }
    void mouseUp(const MouseEvent&) override { note(QStringLiteral("mouseUp")); }
    void mouseEntered(int tag) override { note(QStringLiteral("enter %1").arg(tag)); }
    void mouseExited(int tag) override {
        note(QStringLiteral("exit %1").arg(tag));
        if (onExit)
            onExit(tag);
    }

private:
    bool note(const QString& event) {
        events << event;
        return true;
    }
};

class RecordingView final : public View {
public:
    RecordingView(const QRectF& frame, bool takes)
        : _takes(takes) {
        setFrame(frame);
    }
    QStringList events;
    std::function<void()> onMouseDown;
    bool keyDown(const KeyEvent&) override { return note("keyDown"); }
    bool mouseDown(const MouseEvent&) override {
        const bool takes = note("mouseDown");
        if (onMouseDown)
            onMouseDown();
        return takes;
    }
    bool mouseDragged(const MouseEvent&) override { return note("mouseDragged"); }
    bool mouseUp(const MouseEvent&) override { return note("mouseUp"); }

private:
    bool note(const char* event) {
        events << QString::fromLatin1(event);
        return _takes;
    }
    bool _takes;
};

class RecordingDelegate final : public WindowDelegate {
public:
    QStringList events;
    void windowDidBecomeKey(Window&) override { events << QStringLiteral("become"); }
    void windowDidResignKey(Window&) override { events << QStringLiteral("resign"); }
};

MouseEvent at(double x, double y) {
    MouseEvent event;
    event.locationInWindow = QPointF(x, y);
    event.button = MouseButton::left;
    return event;
}

const QRectF screen(0, 0, 400, 300);

} // namespace

TEST(View, A_point_hits_the_deepest_and_uppermost_view_and_the_edges_belong_to_one_view_only) {
    Window window(screen);
    View left, right, inner, above;
    left.setFrame(QRectF(0, 0, 200, 300));
    right.setFrame(QRectF(200, 0, 200, 300));
    inner.setFrame(QRectF(10, 10, 50, 50));
    above.setFrame(QRectF(30, 30, 50, 50));
    window.contentView().addSubview(left);
    window.contentView().addSubview(right);
    right.addSubview(inner);
    right.addSubview(above);

    const struct {
        QPointF point;
        View* hit;
    } cases[] = {
        {{199.5, 0}, &left}, {{200, 0}, &right},   {{210, 10}, &inner},  {{209, 10}, &right},   {{235, 35}, &above},
        {{260, 20}, &right}, {{400, 10}, nullptr}, {{10, 300}, nullptr}, {{-0.5, 10}, nullptr},
    };
    for (const auto& c : cases)
        EXPECT_EQ(window.contentView().hitTest(c.point), c.hit) << c.point.x() << ' ' << c.point.y();
    EXPECT_EQ(inner.convertToWindow(inner.bounds()), QRectF(210, 10, 50, 50));
    EXPECT_EQ(inner.convertFromWindow(QPointF(215, 12)), QPointF(5, 2));
}

TEST(View, Moving_marks_the_old_and_the_new_place_and_staying_marks_nothing) {
    RecordingHost host;
    Window window(screen);
    View view;
    window.contentView().addSubview(view);
    window.setHost(&host);
    view.setFrame(QRectF(0, 0, 10, 10));
    host.dirty.clear();
    view.setFrame(QRectF(380, 0, 40, 10));
    EXPECT_EQ(host.dirty, (std::vector{QRectF(0, 0, 10, 10), QRectF(380, 0, 20, 10)})) << "clipped to the content";
    host.dirty.clear();
    view.setFrame(QRectF(380, 0, 40, 10));
    view.setNeedsDisplayInRect(QRectF(25, 0, 5, 5)); // outside the window
    EXPECT_TRUE(host.dirty.empty());
}

TEST(View, A_view_that_ends_is_forgotten_by_its_superview_its_subviews_and_its_window) {
    RecordingWindow window(screen);
    RecordingView child(QRectF(0, 0, 10, 10), true);
    auto view = std::make_unique<View>();
    view->setFrame(QRectF(0, 0, 100, 100));
    window.contentView().addSubview(*view);
    view->addSubview(child);
    window.makeFirstResponder(&child);
    window.dispatchMouseDown(at(5, 5));
    view.reset();
    EXPECT_TRUE(window.contentView().subviews().empty());
    EXPECT_EQ(child.superview(), nullptr);
    EXPECT_EQ(child.window(), nullptr);
    EXPECT_EQ(window.firstResponder(), nullptr);
    window.dispatchMouseDragged(at(6, 6));
    EXPECT_EQ(child.events, QStringList{QStringLiteral("mouseDown")});
}

TEST(View, A_view_cannot_come_to_lie_in_itself) {
    View outer, inner;
    outer.addSubview(inner);
    inner.addSubview(outer);
    outer.addSubview(outer);
    EXPECT_EQ(outer.superview(), nullptr);
    EXPECT_EQ(inner.superview(), &outer);
}

TEST(Window, Children_move_with_their_parent_and_draw_through_its_host) {
    RecordingHost host;
    Window window(screen);
    Window child(QRectF(100, 50, 20, 10));
    window.setHost(&host);
    window.addChildWindow(child);
    child.displayNeeded(child.contentView().bounds());
    EXPECT_TRUE(host.dirty.empty()) << "not shown yet";
    child.orderFront();
    child.setAlphaValue(0.5F);
    EXPECT_EQ(host.dirty, (std::vector{QRectF(100, 50, 20, 10), QRectF(100, 50, 20, 10)}));
    window.setFrame(screen.translated(1000, 0));
    EXPECT_EQ(child.frame(), QRectF(1100, 50, 20, 10));
    host.dirty.clear();
    child.contentView().setNeedsDisplayInRect(QRectF(0, 0, 1, 1));
    child.orderOut();
    EXPECT_EQ(host.dirty, (std::vector{QRectF(100, 50, 1, 1), QRectF(100, 50, 20, 10)}));
}

TEST(Window, Parents_and_children_may_end_in_any_order) {
    auto parent = std::make_unique<Window>(screen);
    auto child = std::make_unique<Window>(screen);
    Window grandchild(screen);
    parent->addChildWindow(*child);
    child->addChildWindow(grandchild);
    grandchild.addChildWindow(*parent); // would be a circle
    EXPECT_EQ(parent->parentWindow(), nullptr);
    child.reset();
    EXPECT_TRUE(parent->childWindows().empty());
    EXPECT_EQ(grandchild.parentWindow(), nullptr);
    parent->addChildWindow(grandchild);
    parent.reset();
    EXPECT_EQ(grandchild.parentWindow(), nullptr);
}

TEST(Window, Keys_go_from_the_first_responder_over_its_superviews_to_the_window) {
    RecordingWindow window(screen);
    RecordingView outer(screen, true), inner(screen, false);
    window.contentView().addSubview(outer);
    outer.addSubview(inner);
    window.makeFirstResponder(&inner);
    KeyEvent key;
    EXPECT_TRUE(window.dispatchKey(key));
    EXPECT_EQ(inner.events.size(), 1);
    EXPECT_EQ(outer.events.size(), 1);
    EXPECT_TRUE(window.events.isEmpty());
    key.type = KeyEvent::Type::up;
    EXPECT_TRUE(window.dispatchKey(key));
    EXPECT_EQ(window.events, QStringList{QStringLiteral("keyUp")}) << "the views take no releases";
}

TEST(Window, A_drag_stays_with_the_view_under_the_press_even_if_it_did_not_take_the_press) {
    RecordingWindow window(screen);
    RecordingView view(QRectF(0, 0, 100, 100), false), other(QRectF(100, 0, 100, 100), true);
    window.contentView().addSubview(view);
    window.contentView().addSubview(other);
    window.dispatchMouseDown(at(50, 50));
    window.dispatchMouseDragged(at(150, 50));
    window.dispatchMouseUp(at(150, 50));
    window.dispatchMouseDragged(at(150, 50));
    EXPECT_EQ(view.events,
              (QStringList{QStringLiteral("mouseDown"), QStringLiteral("mouseDragged"), QStringLiteral("mouseUp")}));
    EXPECT_TRUE(other.events.isEmpty());
    EXPECT_EQ(window.events, QStringList{QStringLiteral("mouseUp")});
}

TEST(Window, A_view_may_leave_in_its_own_press) {
    Window window(screen);
    RecordingView view(screen, true);
    window.contentView().addSubview(view);
    view.onMouseDown = [&] { view.removeFromSuperview(); };
    window.dispatchMouseDown(at(5, 5));
    window.dispatchMouseDragged(at(6, 6));
    EXPECT_EQ(view.events.size(), 1);
}

TEST(Window, Tracking_areas_report_leaving_before_entering_and_each_change_once) {
    RecordingWindow window(screen);
    const int corner = window.addTrackingRect(QRectF(0, 200, 100, 100));
    const int top = window.addTrackingRect(QRectF(100, 200, 300, 100));
    ASSERT_NE(corner, 0);
    window.dispatchMouseMoved(at(150, 250));
    window.dispatchMouseMoved(at(160, 250));
    window.dispatchMouseMoved(at(99, 250));
    window.dispatchMouseMoved(at(100, 250)); // the edge belongs to one of them
    window.dispatchMouseLeft();
    const auto line = [](const char* what, int tag) {
        return QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(tag);
    };
    EXPECT_EQ(window.events, (QStringList{line("enter", top), line("exit", top), line("enter", corner),
                                          line("exit", corner), line("enter", top), line("exit", top)}));
}

TEST(Window, Tracking_areas_may_be_exchanged_by_what_they_report) {
    RecordingWindow window(screen);
    const int first = window.addTrackingRect(QRectF(0, 0, 100, 100));
    const int second = window.addTrackingRect(QRectF(0, 0, 100, 100));
    window.dispatchMouseMoved(at(50, 50));
    window.events.clear();
    window.onExit = [&](int) {
        window.removeTrackingRect(first);
        window.removeTrackingRect(second);
        window.addTrackingRect(screen);
    };
    window.dispatchMouseMoved(at(200, 200));
    EXPECT_EQ(window.events,
              (QStringList{QStringLiteral("exit %1").arg(first), QStringLiteral("enter %1").arg(second + 1)}));
}

TEST(Window, Becoming_key_is_told_once_and_a_window_ordered_out_is_key_no_longer) {
    RecordingDelegate delegate;
    Window window(screen);
    window.setDelegate(&delegate);
    window.makeKeyAndOrderFront();
    window.setKey(true);
    window.orderOut();
    window.orderOut();
    EXPECT_EQ(delegate.events, (QStringList{QStringLiteral("become"), QStringLiteral("resign")}));
}

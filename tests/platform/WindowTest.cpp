// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Window.h"
#include "platform/base/NotificationCenter.h"
#include "tests/support/RecordingHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

using namespace platform;

namespace {

const Rect screen(0, 0, 400, 300);

/// A window that notes what reaches it.
class RecordingWindow final : public Window {
public:
    using Window::Window;
    QStringList events;
    std::function<void(int)> onExit;

protected:
    bool keyDown(const KeyEvent&) override { return note("keyDown"); }
    bool keyUp(const KeyEvent&) override { return note("keyUp"); }
    void mouseMoved(const MouseEvent&) override { note("moved"); }
    void mouseUp(const MouseEvent&) override { note("mouseUp"); }
    void mouseDown(const MouseEvent&) override { note("mouseDown"); }
    void wheelTurned(int steps) override { note("wheel " + QString::number(steps)); }
    void mouseEntered(int tag) override { note("enter " + QString::number(tag)); }
    void mouseExited(int tag) override {
        note("exit " + QString::number(tag));
        if (onExit)
            onExit(tag);
    }

private:
    bool note(const QString& event) {
        events << event;
        return true;
    }
};

/// A view that notes what reaches it, and takes it or does not.
class RecordingView final : public View {
public:
    RecordingView(const Rect& frame, bool takes)
        : _takes(takes) {
        setFrame(frame);
    }
    QStringList events;
    /// Runs in a press or a drag; the view may end in it.
    std::function<void()> onMouse;
    bool keyDown(const KeyEvent&) override { return note("keyDown"); }
    bool mouseDown(const MouseEvent&) override { return noteAndRun("mouseDown"); }
    bool mouseDragged(const MouseEvent&) override { return noteAndRun("mouseDragged"); }
    bool mouseUp(const MouseEvent&) override { return note("mouseUp"); }

private:
    bool note(const char* event) {
        events << event;
        return _takes;
    }
    bool noteAndRun(const char* event) {
        const bool takes = note(event);
        if (const auto work = onMouse)
            work();
        return takes;
    }
    bool _takes;
};

class RecordingDelegate final : public WindowDelegate {
public:
    QStringList events;
    void windowDidBecomeKey(Window&) override { events << "become"; }
    void windowDidResignKey(Window&) override { events << "resign"; }
    void windowDidResize(Window&) override { events << "resize"; }
};

MouseEvent at(double x, double y) {
    MouseEvent event;
    event.locationInWindow = QPointF(x, y);
    event.button = MouseButton::left;
    return event;
}

} // namespace

TEST(View, A_point_hits_the_deepest_and_uppermost_view_and_the_edges_belong_to_one_view_only) {
    Window window(screen);
    View left, right, inner, above;
    left.setFrame(Rect(0, 0, 200, 300));
    right.setFrame(Rect(200, 0, 200, 300));
    inner.setFrame(Rect(10, 10, 50, 50));
    above.setFrame(Rect(30, 30, 50, 50));
    window.contentView().addSubview(left);
    window.contentView().addSubview(right);
    right.addSubview(inner);
    right.addSubview(above);

    const struct {
        QPointF point;
        View* hit;
    } cases[] = {
        {{199.5, 0}, &left}, {{200, 0}, &right},   {{210, 10}, &inner},  {{209, 10}, &right},   {{235, 35}, &above},
        {{260, 20}, &right}, {{400, 10}, nullptr}, {{10, 300}, nullptr}, {{-0.5, 10}, nullptr}, {{10, -0.5}, nullptr},
    };
    for (const auto& c : cases)
        EXPECT_EQ(window.contentView().hitTest(c.point), c.hit) << c.point.x() << ' ' << c.point.y();
    EXPECT_EQ(inner.convertToWindow(inner.bounds()), Rect(210, 10, 50, 50));
    EXPECT_EQ(inner.convertFromWindow(QPointF(215, 12)), QPointF(5, 2));
    EXPECT_EQ(inner.window(), &window);
}

TEST(View, Moving_marks_the_old_and_the_new_place_and_staying_marks_nothing) {
    RecordingHost host;
    Window window(screen);
    View view;
    window.contentView().addSubview(view);
    window.setHost(&host);
    view.setFrame(Rect(0, 0, 10, 10));
    host.areas.clear();
    view.setFrame(Rect(380, 0, 40, 10));
    EXPECT_EQ(host.areas, (std::vector{Rect(0, 0, 10, 10), Rect(380, 0, 20, 10)})) << "clipped to the content";
    host.areas.clear();
    view.setFrame(Rect(380, 0, 40, 10));
    view.setNeedsDisplayInRect(Rect(25, 0, 5, 5)); // outside the window
    EXPECT_TRUE(host.areas.empty());
    window.contentView().setFrame(Rect(0, 0, 200, 100));
    EXPECT_EQ(host.areas, std::vector{Rect(0, 0, 200, 100)}) << "the content itself";
}

TEST(View, Coming_and_leaving_mark_the_place_for_redisplay) {
    RecordingHost host;
    Window window(screen);
    window.setHost(&host);
    View view, other;
    view.setFrame(Rect(10, 20, 30, 40));
    window.contentView().addSubview(view);
    EXPECT_EQ(host.areas, std::vector{Rect(10, 20, 30, 40)});
    host.areas.clear();
    other.addSubview(view); // to a superview that no window shows
    EXPECT_EQ(host.areas, std::vector{Rect(10, 20, 30, 40)});
    EXPECT_TRUE(window.contentView().subviews().empty());
    EXPECT_EQ(view.superview(), &other);
    EXPECT_EQ(view.window(), nullptr);
}

TEST(View, A_view_that_ends_is_forgotten_by_its_superview_its_subviews_and_its_window) {
    RecordingWindow window(screen);
    RecordingView child(Rect(0, 0, 10, 10), true);
    auto view = std::make_unique<View>();
    view->setFrame(Rect(0, 0, 100, 100));
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
    EXPECT_EQ(child.events, QStringList{"mouseDown"});
}

TEST(View, A_view_cannot_come_to_lie_in_itself) {
    View outer, inner;
    outer.addSubview(inner);
    inner.addSubview(outer);
    outer.addSubview(outer);
    EXPECT_EQ(outer.superview(), nullptr);
    EXPECT_EQ(inner.superview(), &outer);
    EXPECT_TRUE(inner.subviews().empty());
}

TEST(View, What_lies_in_a_window_may_outlast_it) {
    View view;
    {
        Window window(screen);
        window.contentView().addSubview(view);
    }
    EXPECT_EQ(view.superview(), nullptr);
    view.setNeedsDisplay();
}

TEST(Window, Children_move_with_their_parent_and_draw_through_its_host) {
    RecordingHost host;
    Window window(screen);
    Window child(Rect(100, 50, 20, 10));
    window.setHost(&host);
    window.addChildWindow(child);
    child.displayNeeded(child.contentView().bounds());
    EXPECT_TRUE(host.areas.empty()) << "not shown yet";
    child.orderFront();
    child.setAlphaValue(0.5F);
    EXPECT_EQ(host.areas, (std::vector{Rect(100, 50, 20, 10), Rect(100, 50, 20, 10)}));
    window.setFrame(screen.translated(QPointF(1000, 0)));
    EXPECT_EQ(child.frame(), Rect(1100, 50, 20, 10));
    host.areas.clear();
    child.contentView().setNeedsDisplayInRect(Rect(0, 0, 1, 1));
    child.orderOut();
    EXPECT_EQ(host.areas, (std::vector{Rect(100, 50, 1, 1), Rect(100, 50, 20, 10)}));
}

TEST(Window, what_a_child_draws_beyond_its_frame_is_composed_with_it) {
    RecordingHost host;
    Window window(screen);
    window.setHost(&host);
    Window child(Rect(100, 50, 20, 10));
    window.addChildWindow(child);
    child.orderFront();
    child.setOverhang(4);
    const Rect place(96, 46, 28, 18);
    EXPECT_EQ(host.areas.back(), place);
    host.areas.clear();
    child.setFrame(Rect(200, 50, 20, 10));
    child.setAlphaValue(0);
    EXPECT_EQ(host.areas, (std::vector{place, place.translated({100, 0}), place.translated({100, 0})}));
    window.setHost(nullptr);
}

TEST(Window, a_child_ordered_front_comes_to_stand_above_its_siblings) {
    Window window(screen);
    Window first(Rect(0, 0, 20, 10)), second(Rect(0, 0, 20, 10));
    for (Window* child : {&first, &second}) {
        window.addChildWindow(*child);
        child->orderFront();
    }
    RecordingHost host;
    window.setHost(&host);
    first.orderFront();
    EXPECT_EQ(window.childWindows(), (std::vector<Window*>{&second, &first}));
    EXPECT_EQ(host.areas, std::vector<Rect>{Rect(0, 0, 20, 10)}) << "the lower one is covered now";
    first.orderFront();
    EXPECT_EQ(host.areas.size(), 1U);
    window.setHost(nullptr);
}

TEST(Window, A_child_that_comes_moves_vanishes_or_leaves_is_composed_where_it_was_and_is) {
    RecordingHost host;
    Window window(screen.translated({1000, 0}));
    window.setHost(&host);
    Window child(Rect(1100, 50, 20, 10));
    child.orderFront();
    const Rect place(100, 50, 20, 10), other(200, 50, 20, 10);
    const auto areasOf = [&](const auto& change) {
        host.areas.clear();
        change();
        return host.areas;
    };
    using Areas = std::vector<Rect>;
    EXPECT_EQ(areasOf([&] { window.addChildWindow(child); }), Areas{place});
    const std::uint64_t revision = child.contentRevision();
    EXPECT_EQ(areasOf([&] { child.setFrame(Rect(1200, 50, 20, 10)); }), (Areas{place, other}));
    EXPECT_EQ(areasOf([&] { child.setAlphaValue(0); }), Areas{other});
    EXPECT_EQ(areasOf([&] { child.setFrame(Rect(1100, 50, 20, 10)); }), Areas{}) << "nobody sees it";
    EXPECT_EQ(areasOf([&] { child.setAlphaValue(0.5F); }), Areas{place});
    EXPECT_EQ(areasOf([&] { child.setAlphaValue(0.5F); }), Areas{});
    EXPECT_EQ(child.contentRevision(), revision) << "moving and fading change no content";
    EXPECT_EQ(areasOf([&] { child.setBackgroundColor(Qt::red); }), Areas{place});
    EXPECT_GT(child.contentRevision(), revision);
    EXPECT_EQ(areasOf([&] { child.setBackgroundColor(Qt::red); }), Areas{});
    EXPECT_EQ(areasOf([&] { window.removeChildWindow(child); }), Areas{place});
    EXPECT_EQ(areasOf([&] { window.removeChildWindow(child); }), Areas{});
    child.orderOut();
    EXPECT_EQ(areasOf([&] {
                  window.addChildWindow(child);
                  child.setFrame(Rect(1200, 50, 20, 10));
              }),
              Areas{})
        << "not ordered in";
}

TEST(Window, Its_host_is_told_of_each_change_once) {
    RecordingHost host;
    RecordingDelegate delegate;
    Window window(screen);
    EXPECT_EQ(window.alphaValue(), 1.0F);
    window.setHost(&host);
    window.setDelegate(&delegate);
    int resizes = 0;
    const auto observer = NotificationCenter::defaultCenter().observe<WindowDidResizeNotification>(
        [&](const WindowDidResizeNotification& n) {
            EXPECT_EQ(n.window, &window);
            ++resizes;
        });
    // Each twice: what stays as it is is not told.
    for (int time = 0; time < 2; ++time)
        window.setFrame(screen.translated({10, 0}));
    EXPECT_EQ(resizes, 0) << "it was only moved";
    for (int time = 0; time < 2; ++time) {
        window.setFrame(Rect(10, 0, 200, 100));
        window.setLevel(windowLevel::floating);
        window.setAlphaValue(0.5F);
        window.orderFront();
    }
    EXPECT_EQ(host.changes, (QStringList{"frame", "frame", "level", "alpha", "ordered"}));
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(delegate.events, QStringList{"resize"});
    EXPECT_EQ(window.contentView().frame(), Rect(0, 0, 200, 100));
    EXPECT_EQ(window.level(), windowLevel::floating);
    window.orderOut();
    EXPECT_EQ(host.changes.last(), "ordered");
    EXPECT_FALSE(window.isOrderedIn());
}

TEST(Window, An_opacity_beyond_what_there_is_is_brought_back) {
    const struct { float set, is; } cases[] = {{0.25F, 0.25F}, {-1, 0}, {7, 1}, {NAN, 0}};
    for (const auto& c : cases) {
        Window window(screen);
        window.setAlphaValue(c.set);
        EXPECT_EQ(window.alphaValue(), c.is) << c.set;
    }
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
    Window other(screen);
    other.addChildWindow(grandchild);
    EXPECT_TRUE(parent->childWindows().empty()) << "a child has one parent";
    EXPECT_EQ(grandchild.parentWindow(), &other);
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
    EXPECT_EQ(inner.events, QStringList{"keyDown"});
    EXPECT_EQ(outer.events, QStringList{"keyDown"});
    EXPECT_TRUE(window.events.isEmpty());
    key.type = KeyEvent::Type::up;
    EXPECT_TRUE(window.dispatchKey(key));
    EXPECT_EQ(window.events, QStringList{"keyUp"}) << "the views take no releases";
    window.makeFirstResponder(nullptr);
    key.type = KeyEvent::Type::down;
    EXPECT_TRUE(window.dispatchKey(key));
    EXPECT_EQ(window.events, (QStringList{"keyUp", "keyDown"}));
    EXPECT_FALSE(Window(screen).dispatchKey(key)) << "a plain window takes none";
}

TEST(Window, A_drag_stays_with_the_view_under_the_press_even_if_it_did_not_take_the_press) {
    RecordingWindow window(screen);
    RecordingView view(Rect(0, 0, 100, 100), false), other(Rect(100, 0, 100, 100), true);
    window.contentView().addSubview(view);
    window.contentView().addSubview(other);
    window.dispatchMouseDown(at(50, 50));
    window.dispatchMouseDragged(at(150, 50));
    window.dispatchMouseUp(at(150, 50));
    window.dispatchMouseDragged(at(150, 50));
    EXPECT_EQ(view.events, (QStringList{"mouseDown", "mouseDragged", "mouseUp"}));
    EXPECT_TRUE(other.events.isEmpty());
    EXPECT_EQ(window.events, (QStringList{"mouseDown", "mouseUp"})) << "no view took the press";
    window.events.clear();
    window.dispatchMouseDown(at(150, 50));
    EXPECT_TRUE(window.events.isEmpty());
    window.dispatchWheel(-2);
    EXPECT_EQ(window.events, QStringList{"wheel -2"});
}

TEST(Window, A_press_that_a_superview_took_is_its_drag) {
    Window window(screen);
    RecordingView outer(screen, true), inner(Rect(0, 0, 100, 100), false);
    window.contentView().addSubview(outer);
    outer.addSubview(inner);
    window.dispatchMouseDown(at(50, 50));
    window.dispatchMouseDragged(at(60, 50));
    EXPECT_EQ(inner.events, QStringList{"mouseDown"});
    EXPECT_EQ(outer.events, (QStringList{"mouseDown", "mouseDragged"}));
}

TEST(Window, A_view_may_leave_or_end_in_its_own_press_or_drag) {
    for (const bool inDrag : {false, true}) {
        for (const bool ends : {false, true}) {
            for (const bool takes : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << "in its drag " << inDrag << ", ends " << ends << ", takes " << takes);
                Window window(screen);
                RecordingView outer(screen, false);
                window.contentView().addSubview(outer);
                auto view = std::make_unique<RecordingView>(Rect(0, 0, 100, 100), takes);
                outer.addSubview(*view);
                window.makeFirstResponder(view.get());
                const auto leave = [&] {
                    if (ends)
                        view.reset();
                    else
                        view->removeFromSuperview();
                };
                const char* const last = inDrag ? "mouseDragged" : "mouseDown";
                if (inDrag)
                    window.dispatchMouseDown(at(5, 5));
                view->onMouse = leave;
                outer.events.clear();
                if (inDrag)
                    window.dispatchMouseDragged(at(6, 6));
                else
                    window.dispatchMouseDown(at(5, 5));
                // What it did not take goes on to the view that it lay in, and nothing more comes of the press.
                window.dispatchMouseDragged(at(7, 7));
                window.dispatchMouseUp(at(7, 7));
                EXPECT_EQ(outer.events, takes ? QStringList() : QStringList{last});
                EXPECT_TRUE(!view || view->events.last() == last);
                EXPECT_EQ(window.firstResponder(), nullptr);
            }
        }
    }
}

TEST(Window, Tracking_areas_report_leaving_before_entering_and_each_change_once) {
    RecordingWindow window(screen);
    const int corner = window.addTrackingRect(Rect(0, 200, 100, 100));
    const int top = window.addTrackingRect(Rect(100, 200, 300, 100));
    ASSERT_NE(corner, 0);
    const auto eventsOf = [&](const auto& change) {
        window.events.clear();
        change();
        window.events.removeAll("moved");
        return window.events.join(", ");
    };
    const QString enterTop = "enter " + QString::number(top), exitTop = "exit " + QString::number(top);
    const QString enterCorner = "enter " + QString::number(corner), exitCorner = "exit " + QString::number(corner);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(150, 250)); }), enterTop);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(160, 250)); }), "");
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(99, 299.5)); }), exitTop + ", " + enterCorner);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(100, 200)); }), exitCorner + ", " + enterTop);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(100, 199.5)); }), exitTop);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(100, 300)); }), "") << "the far edges lie outside";
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(400, 250)); }), "");
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(0, 200)); }), enterCorner);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseLeft(); }), exitCorner);
    window.removeTrackingRect(corner);
    EXPECT_EQ(eventsOf([&] { window.dispatchMouseMoved(at(0, 200)); }), "");
    window.dispatchMouseMoved(at(1, 1));
    EXPECT_EQ(window.events, (QStringList{"moved"})) << "and each move is told";
}

TEST(Window, A_drag_counts_as_coming_only_where_it_ended) {
    RecordingWindow window(screen);
    const int tag = window.addTrackingRect(screen);
    window.dispatchMouseDown(at(5, 5));
    window.dispatchMouseDragged(at(6, 6));
    EXPECT_EQ(window.events, QStringList{"mouseDown"});
    window.events.clear();
    window.dispatchMouseUp(at(-6, 6)); // outside the window
    EXPECT_EQ(window.events, QStringList{"mouseUp"});
    window.dispatchMouseUp(at(6, 6));
    EXPECT_EQ(window.events, (QStringList{"mouseUp", "mouseUp", "enter " + QString::number(tag)}));
}

TEST(Window, Tracking_areas_may_be_exchanged_by_what_they_report) {
    RecordingWindow window(screen);
    const int first = window.addTrackingRect(Rect(0, 0, 100, 100));
    const int second = window.addTrackingRect(Rect(0, 0, 100, 100));
    window.dispatchMouseMoved(at(50, 50));
    window.events.clear();
    window.onExit = [&](int) {
        window.removeTrackingRect(first);
        window.removeTrackingRect(second);
        window.addTrackingRect(screen);
    };
    window.dispatchMouseMoved(at(200, 200));
    EXPECT_EQ(window.events,
              (QStringList{"exit " + QString::number(first), "enter " + QString::number(second + 1), "moved"}));
}

TEST(Window, Becoming_key_is_told_once_and_a_window_ordered_out_is_key_no_longer) {
    RecordingDelegate delegate;
    Window window(screen);
    window.setDelegate(&delegate);
    window.makeKeyAndOrderFront();
    EXPECT_TRUE(window.isKey());
    EXPECT_TRUE(window.isOrderedIn());
    window.setKey(true);
    window.orderOut();
    window.orderOut();
    EXPECT_FALSE(window.isKey());
    EXPECT_EQ(delegate.events, (QStringList{"become", "resign"}));

    RecordingHost host;
    window.setHost(&host);
    window.makeKeyAndOrderFront();
    EXPECT_FALSE(window.isKey()) << "the window system says when";
    EXPECT_EQ(host.changes, (QStringList{"ordered", "key"}));

    Window child(screen);
    window.addChildWindow(child);
    child.makeKeyAndOrderFront();
    EXPECT_TRUE(child.isOrderedIn());
    EXPECT_FALSE(child.isKey()) << "keys go to the root";
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Window.h"
#include "tests/support/RecordingHost.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

const platform::Rect screen(0, 0, 400, 300);

} // namespace

TEST(View, A_point_hits_the_deepest_and_uppermost_view_and_the_edges_belong_to_one_view_only) {
    Window window(screen);
    View left, right, inner, above;
    left.setFrame(platform::Rect(0, 0, 200, 300));
    right.setFrame(platform::Rect(200, 0, 200, 300));
    inner.setFrame(platform::Rect(10, 10, 50, 50));
    above.setFrame(platform::Rect(30, 30, 50, 50));
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
}

TEST(View, Moving_marks_the_old_and_the_new_place_and_staying_marks_nothing) {
    RecordingHost host;
    Window window(screen);
    View view;
    window.contentView().addSubview(view);
    window.setHost(&host);
    view.setFrame(platform::Rect(0, 0, 10, 10));
    host.areas.clear();
    view.setFrame(platform::Rect(380, 0, 40, 10));
    EXPECT_EQ(host.areas, (std::vector{platform::Rect(0, 0, 10, 10), platform::Rect(380, 0, 20, 10)}))
        << "clipped to the content";
    host.areas.clear();
    view.setFrame(platform::Rect(380, 0, 40, 10));
    view.setNeedsDisplayInRect(platform::Rect(25, 0, 5, 5)); // outside the window
    EXPECT_TRUE(host.areas.empty());
}

TEST(Window, Children_move_with_their_parent_and_draw_through_its_host) {
    RecordingHost host;
    Window window(screen);
    Window child(platform::Rect(100, 50, 20, 10));
    window.setHost(&host);
    window.addChildWindow(child);
    child.displayNeeded(child.contentView().bounds());
    EXPECT_TRUE(host.areas.empty()) << "not shown yet";
    child.orderFront();
    child.setAlphaValue(0.5F);
    EXPECT_EQ(host.areas, (std::vector{platform::Rect(100, 50, 20, 10), platform::Rect(100, 50, 20, 10)}));
    window.setFrame(screen.translated(QPointF(1000, 0)));
    EXPECT_EQ(child.frame(), platform::Rect(1100, 50, 20, 10));
    host.areas.clear();
    child.contentView().setNeedsDisplayInRect(platform::Rect(0, 0, 1, 1));
    child.orderOut();
    EXPECT_EQ(host.areas, (std::vector{platform::Rect(100, 50, 1, 1), platform::Rect(100, 50, 20, 10)}));
}

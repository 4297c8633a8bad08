// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/OverlayPlacement.h"
#include "overlays/QVChildOverlay.h"
#include "tests/overlays/OverlayRig.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

class Box : public QVChildOverlay {
public:
    Box(const Environment& environment, platform::Window& parent)
        : QVChildOverlay(environment, parent) {
        contentSizeChanged();
    }
    QSizeF contentSize() const override { return {100, 20}; }
    using QVChildOverlay::overlayContentView;
};

} // namespace

TEST(OverlayPlacement, the_alignment_code_says_where_a_window_stands) {
    const platform::Rect parent(100, 50, 1024, 768);
    const struct {
        std::uint32_t code;
        QPointF origin;
    } cases[] = {
        {0x100, {512, 409}}, {0x101, {120, 409}}, {0x102, {904, 409}}, {0x110, {512, 748}}, {0x111, {120, 748}},
        {0x112, {904, 748}}, {0x120, {512, 70}},  {0x121, {120, 70}},  {0x122, {904, 70}},  {0x133, {100, 50}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(OverlayPlacement::placedInParent(platform::Rect(-7, -7, 200, 50), c.code, parent, 20),
                  platform::Rect(c.origin, QSizeF(200, 50)))
            << std::hex << c.code;
    }
}

TEST(QVChildOverlay, stands_inside_its_parent_and_follows_its_size) {
    OverlayRig rig;
    Box box(rig.settings.environment, rig.window);
    EXPECT_EQ(box.frame(), platform::Rect(20, 20, 114, 34));
    EXPECT_TRUE(box.isOrderedIn());
    box.setAlignmentStyle(0x112);
    EXPECT_EQ(box.frame(), platform::Rect(1024 - 114 - 20, 768 - 34 - 20, 114, 34));
    rig.window.setFrame(platform::Rect(50, 0, 640, 480));
    EXPECT_EQ(box.frame(), platform::Rect(50 + 640 - 114 - 20, 480 - 34 - 20, 114, 34));
    EXPECT_EQ(box.overlayContentView().frame(), platform::Rect(0, 0, 114, 34));
    box.setAlignmentStyle(0x021);
    EXPECT_EQ(box.frame(), platform::Rect(-7, -7, 114, 34)) << "placed by others";
}

TEST(OverlayPlacement, what_stands_in_both_corners_keeps_to_its_half) {
    using OverlayPlacement::Edge, OverlayPlacement::standInOneEdge, OverlayPlacement::largestContent;
    EXPECT_TRUE(standInOneEdge(0x111, 0x112));
    EXPECT_TRUE(standInOneEdge(0x122, 0x121));
    for (const auto& [one, other] : {std::pair{0x111U, 0x111U}, {0x111U, 0x122U}, {0x111U, 0x110U}, {0x011U, 0x112U}})
        EXPECT_FALSE(standInOneEdge(one, other)) << std::hex << one << ' ' << other;
    const QSizeF parent(1000, 800);
    EXPECT_EQ(largestContent(parent, 24, 8, Edge::whole), QSizeF(936, 736));
    EXPECT_EQ(largestContent(parent, 24, 8, Edge::halved), QSizeF(448, 736)) << "with a padding between them";
    EXPECT_EQ(largestContent(parent, 1e9, 8, Edge::whole), QSizeF(1, 1));
}

TEST(QVChildOverlay, is_as_large_a_share_of_every_screen_from_1080_points_on) {
    OverlayRig rig;
    Box box(rig.settings.environment, rig.window);
    const struct {
        double height, padding, margin;
    } cases[] = {{480, 20, 7}, {1080, 20, 7}, {1620, 30, 10.5}, {2160, 40, 14}};
    for (const auto& c : cases) {
        rig.window.setFrame(platform::Rect(0, 0, 4000, c.height));
        EXPECT_EQ(box.frame(), platform::Rect(c.padding, c.padding, 100 + 2 * c.margin, 20 + 2 * c.margin)) << c.height;
    }
    EXPECT_EQ(box.padding(), 20) << "as it was set";
    EXPECT_EQ(Box(rig.settings.environment, rig.window).frame(), box.frame());
}

TEST(QVChildOverlay, what_changes_the_margin_lays_it_out_again) {
    OverlayRig rig;
    Box box(rig.settings.environment, rig.window);
    box.setFrameOn(false);
    EXPECT_EQ(box.frame().size(), QSizeF(110, 30));
    box.setRadius(20);
    EXPECT_EQ(box.frame().size(), QSizeF(120, 40));
    box.setBackgroundRounded(false);
    EXPECT_EQ(box.frame().size(), QSizeF(100, 20));
    box.setPadding(5);
    EXPECT_EQ(box.frame().origin(), QPointF(5, 5));
    rig.settings.defaults().setFloat(30, kQVOverlayDefaultPadding);
    rig.settings.notifications.post(QVPreferencesChangedNotification{kQVOverlayDefaultPadding});
    EXPECT_EQ(box.frame().origin(), QPointF(30, 30)) << "every overlay follows the setting";
    EXPECT_FALSE(box.preferencesChanged({kQVOverlayDefaultPadding, {}})) << "others follow it, too";
    box.setPadding(5);
    rig.change(kAlignment, 0x101);
    EXPECT_EQ(box.frame(), platform::Rect(5, (768 - 20) / 2.0, 100, 20));
}

TEST(QVOverlayContentView, draws_the_panel_and_the_line_around_it) {
    QVOverlayContentView view;
    view.setFrame(platform::Rect(0, 0, 40, 20));
    view.setBackgroundColor(Qt::blue);
    view.setFrameWidth(4);
    view.setFrameOn(true);
    const auto drawn = [&view] {
        QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        QPainter painter(&image);
        view.draw(painter, view.bounds());
        return image;
    };
    EXPECT_EQ(drawn().pixelColor(20, 10).alpha(), 0) << "no background, no line, and what was there is gone";
    view.setBackgroundOn(true);
    EXPECT_EQ(drawn().pixelColor(1, 10), QColor(Qt::blue)) << "without a colour of its own the line has the panel's";
    view.setFrameColor(Qt::green);
    EXPECT_EQ(drawn().pixelColor(20, 10), QColor(Qt::blue));
    for (const QPoint edge : {QPoint(1, 10), QPoint(38, 10), QPoint(20, 1), QPoint(20, 18), QPoint(0, 0)})
        EXPECT_EQ(drawn().pixelColor(edge), QColor(Qt::green));
    view.setBackgroundRounded(true);
    view.setRadius(8);
    EXPECT_EQ(drawn().pixelColor(0, 0).alpha(), 0);
}

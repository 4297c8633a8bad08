// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/SceneComposer.h"
#include "platform/window/VideoLayer.h"
#include "platform/window/View.h"
#include "platform/window/Window.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace platform;

namespace {

const QColor red(255, 0, 0), green(0, 255, 0), blue(0, 0, 255), black(0, 0, 0);

/// A view of one colour that counts how often it was drawn.
class ColorView final : public View {
public:
    ColorView(const Rect& frame, const QColor& fill)
        : color(fill) {
        setFrame(frame);
    }
    QColor color;
    int drawings = 0;

    void draw(QPainter& painter, const Rect&) override {
        ++drawings;
        painter.fillRect(QRectF({0, 0}, bounds().size()), color);
    }
};

/// A child window of one colour.
struct ColorChild {
    ColorChild(Window& parent, const Rect& frame, const QColor& color)
        : window(frame)
        , view(Rect(QPointF(0, 0), frame.size()), color) {
        window.contentView().addSubview(view);
        parent.addChildWindow(window);
        window.orderFront();
    }
    Window window;
    ColorView view;
};

class FakePicture final : public VideoLayer {
public:
    bool has = true;
    std::vector<QRect> rendered;

    bool renderPixels(const QRect&, const QRect& visible, unsigned char* pixels, std::size_t stride) override {
        rendered.push_back(visible);
        if (!has)
            return false;
        for (int y = visible.top(); y <= visible.bottom(); ++y)
            for (int x = visible.left(); x <= visible.right(); ++x)
                reinterpret_cast<QRgb*>(pixels + static_cast<std::size_t>(y) * stride)[x] = blue.rgb();
        return true;
    }
    bool beginGL(GLContext&) override { return false; }
    void endGL() override {}
    bool renderGL(const QRect&, const QSize&, unsigned) override { return false; }
    void skip() override {}
};

class PictureView final : public View {
public:
    FakePicture picture;
    VideoLayer* videoLayer() override { return &picture; }
    Rect pictureRect() const override { return bounds(); }
    Rect drawnRect() const override { return Rect(); }
};

/// A root of 40 by 30 points somewhere on the screen, composed into an image.
class SceneComposerTest : public testing::Test {
protected:
    SceneComposerTest() {
        root.setBackgroundColor(green);
        resize(1);
    }
    void resize(double pixelRatio) {
        ratio = pixelRatio;
        target = QImage((QSizeF(40, 30) * ratio).toSize(), QImage::Format_RGB32);
        target.fill(Qt::magenta); // what was never painted
    }
    QRegion compose() { return compose(target.rect()); }
    QRegion compose(const QRegion& marked) { return composer.compose(target, marked, ratio); }
    /// Whether a pixel (origin top left) has a colour, within what blending rounds.
    bool has(int x, int y, const QColor& color) const {
        const QColor pixel = target.pixelColor(x, y);
        return std::abs(pixel.red() - color.red()) <= 2 && std::abs(pixel.green() - color.green()) <= 2 &&
               std::abs(pixel.blue() - color.blue()) <= 2;
    }

    Window root{Rect(100, 200, 40, 30)};
    SceneComposer composer{root};
    double ratio = 1;
    QImage target;
};

} // namespace

TEST_F(SceneComposerTest, views_stand_where_their_frames_say_at_every_pixel_ratio) {
    ColorView outer(Rect(10, 5, 20, 10), red), inner(Rect(0, 0, 10, 5), black);
    root.contentView().addSubview(outer);
    outer.addSubview(inner);
    for (const int scale : {1, 2}) {
        resize(scale);
        EXPECT_EQ(compose(), QRegion(target.rect()));
        const auto check = [&](int x, int y, const QColor& color) {
            EXPECT_TRUE(has(x * scale, y * scale, color)) << x << ' ' << y << " at " << scale;
        };
        // Bottom left corner at 10, 5: the top left one at 10, 15 from above.
        check(10, 15, red);
        check(9, 15, green);
        check(10, 14, green);
        check(29, 24, red);
        check(30, 24, green);
        check(29, 25, green);
        check(10, 24, black);
        check(19, 20, black);
        check(20, 24, red);
        check(10, 19, red);
        check(39, 29, green);
    }
}

TEST_F(SceneComposerTest, a_child_draws_beyond_its_frame_as_far_as_it_says) {
    ColorChild child(root, Rect(110, 210, 10, 10), red);
    ColorView wide(Rect(-20, -20, 50, 50), blue);
    child.window.contentView().addSubview(wide);
    compose();
    EXPECT_TRUE(has(10, 10, blue));
    EXPECT_TRUE(has(9, 10, green)) << "not at first";
    child.window.setOverhang(3);
    for (const int scale : {1, 2}) {
        resize(scale);
        compose();
        for (const int edge : {7, 22})
            EXPECT_TRUE(has(edge * scale, 15 * scale, blue)) << edge;
        for (const int edge : {6, 23})
            EXPECT_TRUE(has(edge * scale, 15 * scale, green)) << edge;
        EXPECT_TRUE(has(15 * scale, 7 * scale, blue));
        EXPECT_TRUE(has(15 * scale, 22 * scale, blue));
        EXPECT_TRUE(has(15 * scale, 23 * scale, green));
    }
    child.window.setFrame(Rect(98, 210, 10, 10)); // its frame reaches out of the root by two, and it by five
    compose();
    EXPECT_TRUE(has(2 * 10, 2 * 15, blue));
    EXPECT_TRUE(has(2 * 11, 2 * 15, green));
}

TEST_F(SceneComposerTest, nothing_earlier_shines_through_a_translucent_background) {
    root.setBackgroundColor(QColor(200, 100, 0, 128));
    ColorChild child(root, Rect(110, 205, 10, 10), red);
    compose();
    child.window.setAlphaValue(0);
    compose();
    for (const QPoint& at : {QPoint(15, 20), QPoint(0, 0)})
        EXPECT_TRUE(has(at.x(), at.y(), QColor(100, 50, 0))) << at.x() << ": over black";
}

TEST_F(SceneComposerTest, only_what_is_marked_is_painted_and_only_its_views_are_asked) {
    ColorView left(Rect(0, 0, 10, 30), red), right(Rect(20, 0, 10, 30), blue);
    root.contentView().addSubview(left);
    root.contentView().addSubview(right);
    const QRect part(5, 10, 10, 10);
    EXPECT_EQ(compose(part), QRegion(part));
    EXPECT_TRUE(has(5, 10, red));
    EXPECT_TRUE(has(14, 19, green));
    EXPECT_TRUE(has(4, 10, QColor(Qt::magenta))) << "beside what was marked";
    EXPECT_TRUE(has(25, 10, QColor(Qt::magenta)));
    EXPECT_EQ(left.drawings, 1);
    EXPECT_EQ(right.drawings, 0);
    EXPECT_EQ(compose(QRect(-5, -5, 6, 6)), QRegion(QRect(0, 0, 1, 1))) << "what lies outside the target is left out";
}

TEST_F(SceneComposerTest, a_root_without_a_colour_is_black) {
    root.setBackgroundColor(QColor());
    compose();
    EXPECT_TRUE(has(0, 0, black));
}

TEST_F(SceneComposerTest, a_picture_is_rendered_whole_below_the_views_and_only_when_it_is_touched) {
    PictureView movie;
    ColorView over(Rect(0, 0, 5, 5), red);
    movie.setFrame(Rect(10, 0, 20, 40)); // beyond the upper edge
    root.contentView().addSubview(movie);
    movie.addSubview(over);
    EXPECT_EQ(compose(QRect(0, 0, 5, 5)), QRegion(QRect(0, 0, 5, 5)));
    EXPECT_TRUE(movie.picture.rendered.empty());
    EXPECT_EQ(compose(QRect(9, 29, 2, 1)), QRegion(9, 29, 1, 1) + QRegion(10, 0, 20, 30));
    EXPECT_EQ(movie.picture.rendered, std::vector{QRect(10, 0, 20, 30)});
    EXPECT_TRUE(has(10, 0, blue));
    EXPECT_TRUE(has(29, 29, blue));
    EXPECT_TRUE(has(10, 29, red)) << "drawn over it";
    movie.picture.has = false;
    compose();
    EXPECT_TRUE(has(29, 29, green)) << "no picture: the background";

    resize(2);
    std::vector<QRect> pictures;
    composer.forEachVideoLayer(2, [&](VideoLayer& layer, const QRect& picture) {
        EXPECT_EQ(&layer, &movie.picture);
        pictures.push_back(picture);
    });
    EXPECT_EQ(pictures, std::vector{QRect(20, -20, 40, 80)});
}

TEST_F(SceneComposerTest, children_lie_over_the_root_in_their_order_at_their_alpha) {
    ColorChild lower(root, Rect(110, 205, 20, 10), red), upper(root, Rect(120, 205, 20, 10), blue);
    compose();
    EXPECT_TRUE(has(10, 15, red));
    EXPECT_TRUE(has(19, 24, red));
    EXPECT_TRUE(has(20, 24, blue));
    EXPECT_TRUE(has(9, 15, green));
    EXPECT_TRUE(has(10, 14, green));
    upper.window.setAlphaValue(0.5F);
    compose();
    EXPECT_TRUE(has(20, 24, QColor(127, 0, 127)));
    EXPECT_TRUE(has(35, 24, QColor(0, 127, 127)));
    // Taken out and put in again, a child comes to lie above.
    root.removeChildWindow(lower.window);
    compose();
    EXPECT_TRUE(has(10, 15, green));
    root.addChildWindow(lower.window);
    compose();
    EXPECT_TRUE(has(20, 24, red));
    EXPECT_TRUE(has(35, 24, QColor(0, 127, 127)));
}

TEST_F(SceneComposerTest, a_child_is_drawn_anew_when_its_content_changed_and_not_when_it_moved_or_faded) {
    ColorChild clock(root, Rect(110, 205, 10, 10), red), other(root, Rect(125, 205, 10, 10), blue);
    compose();
    clock.window.setFrame(Rect(112, 207, 10, 10));
    clock.window.setAlphaValue(0.5F);
    compose();
    EXPECT_EQ(clock.view.drawings, 1);
    EXPECT_TRUE(has(12, 13, QColor(127, 127, 0)));
    EXPECT_TRUE(has(11, 20, green));

    clock.view.color = black;
    clock.view.setNeedsDisplay();
    clock.window.setAlphaValue(1);
    compose();
    EXPECT_EQ(clock.view.drawings, 2);
    EXPECT_TRUE(has(12, 13, black)) << "the clock goes on";
    compose();
    EXPECT_EQ(clock.view.drawings, 2);

    clock.window.setFrame(Rect(112, 207, 12, 10));
    clock.view.setFrame(Rect(0, 0, 12, 10));
    compose();
    EXPECT_EQ(clock.view.drawings, 3) << "another size";
    EXPECT_TRUE(has(23, 13, black));
    resize(2);
    compose();
    EXPECT_EQ(clock.view.drawings, 4) << "another pixel ratio";
    EXPECT_TRUE(has(47, 26, black));
    EXPECT_EQ(other.view.drawings, 2);
}

TEST_F(SceneComposerTest, a_hidden_child_is_not_composed_and_comes_back_as_it_is_by_then) {
    ColorChild child(root, Rect(110, 205, 10, 10), red);
    child.window.orderOut();
    compose();
    EXPECT_TRUE(has(10, 20, green));
    EXPECT_EQ(child.view.drawings, 0);
    child.window.orderFront();
    compose();
    child.window.setAlphaValue(0);
    child.view.color = blue;
    child.view.setNeedsDisplay();
    compose();
    EXPECT_TRUE(has(10, 20, green));
    EXPECT_EQ(child.view.drawings, 1);
    child.window.setAlphaValue(1);
    compose();
    EXPECT_TRUE(has(10, 20, blue));
}

TEST_F(SceneComposerTest, of_a_child_only_what_lies_within_the_root_is_drawn) {
    ColorChild child(root, Rect(90, 220, 20, 1000), red);
    ColorView corner(Rect(15, 0, 5, 5), blue);
    child.window.contentView().addSubview(corner);
    compose();
    EXPECT_TRUE(has(0, 0, red));
    EXPECT_TRUE(has(9, 0, blue) || has(9, 9, blue));
    EXPECT_TRUE(has(4, 9, red));
    EXPECT_TRUE(has(5, 9, blue));
    EXPECT_TRUE(has(9, 5, blue));
    EXPECT_TRUE(has(9, 4, red));
    EXPECT_TRUE(has(10, 9, green));
    EXPECT_TRUE(has(9, 10, green));
    // Another part of it is seen, of the same size.
    child.window.setFrame(Rect(130, 220, 20, 1000));
    compose();
    EXPECT_TRUE(has(30, 9, red));
    EXPECT_TRUE(has(39, 9, red)) << "the corner lies outside now";
    EXPECT_TRUE(has(9, 9, green));
    child.window.setFrame(Rect(1000, 220, 20, 10));
    const int before = child.view.drawings;
    child.view.setNeedsDisplay();
    compose();
    EXPECT_EQ(child.view.drawings, before) << "outside altogether";
}

TEST_F(SceneComposerTest, a_roots_alpha_darkens_it_where_the_window_system_does_not_fade) {
    root.setAlphaValue(0.5F);
    compose();
    EXPECT_TRUE(has(0, 0, green)) << "the window system's matter";
    ColorChild child(root, Rect(110, 200, 5, 5), black);
    child.window.setAlphaValue(0.1F); // which is the child's alone
    composer.setPaintsAlpha(true);
    compose(QRect(0, 0, 20, 30));
    EXPECT_TRUE(has(19, 29, QColor(0, 127, 0)));
    EXPECT_TRUE(has(20, 29, green)) << "beside what was marked";
    root.setAlphaValue(1);
    compose();
    EXPECT_TRUE(has(0, 0, green));
}

TEST_F(SceneComposerTest, over_a_picture_of_the_host_it_draws_views_and_children_and_no_background) {
    ColorView view(Rect(0, 0, 5, 5), red);
    root.contentView().addSubview(view);
    ColorChild child(root, Rect(110, 200, 5, 5), black);
    child.window.setAlphaValue(0.5F);
    target.fill(blue);
    const auto drawOver = [&] {
        QPainter painter(&target);
        composer.drawOver(painter, target.rect(), 1);
        EXPECT_EQ(painter.opacity(), 1);
    };
    drawOver();
    EXPECT_TRUE(has(0, 0, blue));
    EXPECT_TRUE(has(0, 29, red));
    EXPECT_TRUE(has(10, 29, QColor(0, 0, 127)));
    root.setAlphaValue(0.25F);
    drawOver();
    EXPECT_TRUE(has(0, 0, blue)) << "the window system's matter";
    composer.setPaintsAlpha(true);
    drawOver();
    EXPECT_TRUE(has(0, 0, QColor(0, 0, 64)));
    EXPECT_TRUE(has(0, 29, QColor(64, 0, 0)));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageOverlay.h"
#include "overlays/QVTextOverlay.h"
#include "platform/window/Fonts.h"
#include "platform/window/ImageView.h"
#include "platform/window/SceneComposer.h"
#include "platform/window/SceneGeometry.h"
#include "tests/overlays/OverlayRig.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace {

class TextOverlay : public QVTextOverlay {
public:
    using QVTextOverlay::QVTextOverlay;
    using QVTextOverlay::textView;
};

} // namespace

TEST(QVTextOverlay, is_as_large_as_its_text_and_stands_in_its_place) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    EXPECT_EQ(overlay.frame().origin(), QPointF(20, 20)) << "an empty text is an empty panel";
    overlay.setTextFontSize(20);
    overlay.setText("Some words");
    const QSizeF content = overlay.contentSize();
    platform::TextView plain;
    plain.setFont(overlay.textFont());
    plain.setText(overlay.text());
    plain.sizeToFit();
    EXPECT_EQ(content, plain.bounds().size() + QSizeF(0, 2.5)) << "an eighth of the size more below";
    EXPECT_EQ(overlay.frame(), platform::Rect(QPointF(20, 20), content + QSizeF(14, 14)));
    EXPECT_EQ(overlay.textView().frame().origin(), QPointF(7, 7));

    overlay.setText(QString(300, u'x'));
    EXPECT_LE(overlay.frame().maxX(), 1024 - 20);
    EXPECT_GT(overlay.contentSize().height(), 2 * content.height());
    rig.window.setFrame(platform::Rect(0, 0, 640, 480));
    EXPECT_LE(overlay.frame().maxX(), 640 - 20) << "on a narrower screen";
    EXPECT_GT(overlay.frame().maxX(), 640 - 60) << "which it fills";
    overlay.setPadding(100);
    EXPECT_LE(overlay.frame().maxX(), 540);
    overlay.setText(QString("line\n").repeated(500));
    EXPECT_LE(overlay.frame().maxY(), 480 - 100);
}

TEST(QVTextOverlay, letters_and_shadow_grow_with_a_screen_from_1080_points_on) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    overlay.setTextFontSize(20);
    overlay.setShadowOn(true);
    overlay.setShadowOffset({3, -2});
    overlay.setShadowBlurRadius(4);
    overlay.setText("Some words");
    const QSizeF usual = overlay.contentSize();
    for (const auto& [height, scale] : {std::pair{2160, 2}, {720, 1}, {3240, 3}}) {
        rig.window.setFrame(platform::Rect(0, 0, 4000, height));
        EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 20 * scale) << height;
        EXPECT_EQ(overlay.textView().shadow()->offset, QSizeF(3, -2) * scale) << height;
        EXPECT_EQ(overlay.textView().shadow()->blurRadius, 4 * scale) << height;
        EXPECT_NEAR(overlay.contentSize().width(), usual.width() * scale, 2 * scale) << height;
        EXPECT_NEAR(overlay.contentSize().height(), usual.height() * scale, 2 * scale) << height;
    }
    EXPECT_EQ(overlay.textFontSize(), 20) << "as it was set";
    EXPECT_EQ(overlay.shadow()->offset, QSizeF(3, -2));
    overlay.setTextFontSize(24);
    EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 72);
}

TEST(QVTextOverlay, size_and_smallest_size_push_each_other) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    overlay.setTextFontSize(24);
    EXPECT_EQ(overlay.textFontSizeMin(), 12);
    overlay.setTextFontSize(10);
    EXPECT_EQ(overlay.textFontSizeMin(), 10);
    overlay.setTextFontSizeMin(30);
    EXPECT_EQ(overlay.textFontSize(), 30);
    EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 30);
}

TEST(QVTextOverlay, the_shadow_keeps_its_values_until_it_is_switched_off) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    rig.change(kShadowOffset, "3 -4");
    rig.change(kShadowRadius, 5.0);
    rig.change(kShadowColor, "1 0 0 1");
    rig.change(kShadowOn, true);
    const QVShadow red{QSizeF(3, -4), 5, Qt::red}, green{QSizeF(3, -4), 5, Qt::green};
    EXPECT_EQ(overlay.shadow(), red);
    overlay.setShadowColor(Qt::green);
    overlay.setShadowOn(true);
    EXPECT_EQ(overlay.shadow(), green);
    rig.change(kShadowOn, false);
    EXPECT_FALSE(overlay.shadow());
    overlay.setShadowOn(true);
    EXPECT_EQ(overlay.shadow(), red);
}

TEST(QVTextOverlay, a_wide_shadow_fades_out_beyond_the_text_and_the_panel) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    overlay.setFadingInInterval(0);
    overlay.setBackgroundOn(false);
    overlay.setAlignmentStyle(0x100);
    overlay.setText("MMM");
    overlay.show();
    overlay.setShadowOn(true);
    rig.window.setBackgroundColor(Qt::white);
    platform::SceneComposer composer(rig.window);
    QImage screen(1024, 768, QImage::Format_RGB32);
    const auto darkest = [&](const QRect& part) {
        int found = 255;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                found = std::min(found, qRed(screen.pixel(x, y)));
        return found;
    };
    const struct {
        float radius;
        QSizeF offset;
    } cases[] = {{0, {0, 0}}, {5, {1, -1}}, {40, {0, 0}}, {20, {30, 30}}};
    for (const auto& c : cases) {
        overlay.setShadowColor(Qt::black);
        overlay.setShadowBlurRadius(c.radius);
        overlay.setShadowOffset(c.offset);
        composer.compose(screen, screen.rect(), 1);
        const QRect drawn =
            platform::sceneGeometry::toPixels(overlay.frame().grown(overlay.overhang()), rig.window.frame().size(), 1);
        // Just inside what the overlay draws there is next to no shadow left that would end in an edge.
        for (const QRect& edge : {QRect(drawn.left(), drawn.top(), drawn.width(), 2),
                                  QRect(drawn.left(), drawn.bottom() - 1, drawn.width(), 2),
                                  QRect(drawn.left(), drawn.top(), 2, drawn.height()),
                                  QRect(drawn.right() - 1, drawn.top(), 2, drawn.height())})
            EXPECT_GT(darkest(edge), 245) << c.radius;
        const QRect frame = platform::sceneGeometry::toPixels(overlay.frame(), rig.window.frame().size(), 1);
        EXPECT_EQ(darkest(QRect(frame.left(), frame.top() - 6, frame.width(), 4)) < 245, c.radius > 10) << c.radius;
    }
    overlay.setBackgroundOn(true);
    overlay.setFrameWidth(1000);
    EXPECT_EQ(overlay.overhang(), 0) << "within the panel's margin";
    overlay.setFrameWidth(0);
    overlay.setShadowOn(false);
    EXPECT_EQ(overlay.overhang(), 0);
}

TEST(QVTextOverlay, changes_of_the_style_are_handled_down_the_chain) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    overlay.setText("text");
    rig.change(kTextColor, "0 0 1 1");
    rig.change(kTextFontSize, 50);
    rig.change(kFrameWidth, 6.0);
    rig.change(kMaxAlpha, 0.5);
    EXPECT_EQ(overlay.textColor(), QColor(Qt::blue));
    EXPECT_EQ(overlay.frameColor(), QColor(Qt::blue));
    EXPECT_EQ(overlay.textFontSize(), 50);
    EXPECT_EQ(overlay.frame().width() - overlay.contentSize().width(), 22);
    EXPECT_EQ(overlay.maxAlpha(), 0.5F);
    rig.change(kTextFontName, "No Such Family");
    EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 50);
    EXPECT_TRUE(overlay.preferencesChanged({kQVDefaultOverlayStyle, {kTextColor, kFrameWidth, kMaxAlpha}}));
    EXPECT_FALSE(overlay.preferencesChanged({kQVDefaultOverlayStyle, {"Unknown", kTextColor}}));
    EXPECT_FALSE(overlay.preferencesChanged({kQVOSDOverlayStyle, {kTextColor}})) << "another style";
    rig.settings.defaults().setInteger(60, kQVOverlayTextFontSizeMin);
    EXPECT_FALSE(overlay.preferencesChanged({kQVOverlayTextFontSizeMin, {}})) << "others follow it, too";
    EXPECT_EQ(overlay.textFontSize(), 60);
}

TEST(QVTextOverlay, absurd_styles_are_laid_out_within_reason) {
    const QVariant values[] = {1e9, -1e9, std::numeric_limits<double>::quiet_NaN(), "nonsense", QVariantList{1, 2}};
    for (const QVariant& value : values) {
        SCOPED_TRACE(value.toString().toStdString());
        OverlayRig rig;
        QVTextOverlay changed(rig.settings.environment, rig.window);
        changed.setText("text");
        for (const OverlayStyle::Entry& entry : OverlayStyle::entries()) {
            if (entry.key != kAlignment)
                rig.change(entry.key, value);
        }
        QVTextOverlay made(rig.settings.environment, rig.window);
        made.setText("text");
        for (QVTextOverlay* overlay : {&changed, &made}) {
            overlay->setPadding(value.toFloat());
            overlay->autopop();
            rig.settings.runLoop.advance(10);
            EXPECT_LE(overlay->contentSize().height(), 768 + 128);
            EXPECT_LT(std::abs(overlay->frame().x()), 1e8);
            EXPECT_GT(overlay->frame().width(), 0);
            EXPECT_EQ(overlay->fadingState(), QVStyledOverlay::FadingState::idle);
        }
    }
}

TEST(ImageView, fills_itself_with_its_image_and_loses_no_pixel_when_it_shrinks) {
    QImage stripes(64, 64, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            stripes.setPixelColor(x, y, x % 8 == 3 ? Qt::white : Qt::black);
    platform::ImageView view;
    view.setImage(stripes);
    view.setFrame(platform::Rect(0, 0, 8, 128));
    QImage image(8, 128, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.draw(painter, view.bounds());
    painter.end();
    for (int x = 0; x < 8; ++x)
        EXPECT_NEAR(image.pixelColor(x, 64).red(), 32, 12) << x;
    EXPECT_EQ(image.pixelColor(7, 127).alpha(), 255);
}

TEST(QVTextOverlay, an_unchanged_text_lays_nothing_out) {
    OverlayRig rig;
    TextOverlay overlay(rig.settings.environment, rig.window);
    overlay.setText("text");
    const std::uint64_t revision = overlay.contentRevision();
    overlay.setText("text");
    EXPECT_EQ(overlay.contentRevision(), revision);
    overlay.setText("other");
    EXPECT_GT(overlay.contentRevision(), revision);
}

TEST(QVImageOverlay, scales_its_image_by_each_axis) {
    OverlayRig rig;
    QVImageOverlay overlay(rig.settings.environment, rig.window);
    overlay.setScale(1, 1);
    const platform::Rect before = overlay.frame();
    overlay.setScale(0.5F, 2);
    EXPECT_EQ(overlay.frame(), before) << "without an image there is nothing to lay out";
    QImage image(720, 96, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    overlay.setImage(image);
    EXPECT_EQ(overlay.contentSize(), QSizeF(360, 192));
    EXPECT_EQ(overlay.frame(), platform::Rect(20, 20, 374, 206));
    overlay.setImage(QImage());
    EXPECT_EQ(overlay.contentSize(), QSizeF(360, 192));
    overlay.setImage(image);
    for (const float absurd : {std::numeric_limits<float>::quiet_NaN(), -2.0F, 1e30F}) {
        overlay.setScale(absurd, absurd);
        EXPECT_LT(overlay.frame().width(), 1e6) << absurd;
        EXPECT_GT(overlay.frame().width(), 0) << absurd;
    }
}

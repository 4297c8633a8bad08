// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageOverlay.h"
#include "overlays/QVTextOverlay.h"
#include "platform/window/Fonts.h"
#include "tests/overlays/OverlayRig.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <limits>

namespace {

class TextOverlay : public QVTextOverlay {
public:
    using QVTextOverlay::QVTextOverlay;
    using QVTextOverlay::textView;
};

QVShadow shadow(double width, double height, float blur, Qt::GlobalColor color) {
    return {QSizeF(width, height), blur, color};
}

} // namespace

TEST(QVTextOverlay, is_as_large_as_its_text_and_stands_in_its_place) {
    OverlayRig rig;
    TextOverlay overlay(&rig.window);
    EXPECT_EQ(overlay.frame().topLeft(), QPointF(20, 20)) << "an empty text is an empty panel";
    overlay.setTextFontSize(20);
    overlay.setText("Some words");
    const QSizeF content = overlay.contentSize();
    platform::TextView plain;
    plain.setFont(overlay.textFont());
    plain.setText(overlay.text());
    plain.sizeToFit();
    EXPECT_EQ(content, plain.bounds().size() + QSizeF(0, 2.5)) << "an eighth of the size more below";
    EXPECT_EQ(overlay.frame(), QRectF(QPointF(20, 20), content + QSizeF(14, 14)));
    EXPECT_EQ(overlay.textView().frame().topLeft(), QPointF(7, 7));

    overlay.setText(QString(300, u'x'));
    EXPECT_LE(overlay.contentSize().width(), 1024);
    EXPECT_GT(overlay.contentSize().height(), 2 * content.height());
    overlay.setText(QString("line\n").repeated(500));
    EXPECT_LE(overlay.contentSize().height(), 768);
}

TEST(QVTextOverlay, size_and_smallest_size_push_each_other) {
    OverlayRig rig;
    rig.settings.defaults().setInteger(100, kQVOverlayTextFontSizeMin);
    TextOverlay overlay(&rig.window);
    EXPECT_EQ(overlay.textFontSizeMin(), overlay.textFontSize()) << "never above the style's size";
    rig.settings.defaults().setInteger(12, kQVOverlayTextFontSizeMin);
    EXPECT_FALSE(overlay.preferencesChanged({kQVOverlayTextFontSizeMin}));
    overlay.setTextFontSize(24);
    EXPECT_EQ(overlay.textFontSizeMin(), 12);
    overlay.setTextFontSize(10);
    EXPECT_EQ(overlay.textFontSizeMin(), 10);
    EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 10);
    overlay.setTextFontSizeMin(30);
    EXPECT_EQ(overlay.textFontSize(), 30);
    EXPECT_EQ(platform::pointSizeOf(overlay.textFont()), 30);
}

TEST(QVTextOverlay, the_shadow_keeps_its_values_until_it_is_switched_off) {
    OverlayRig rig;
    TextOverlay overlay(&rig.window);
    overlay.setShadowColor(Qt::green);
    EXPECT_FALSE(overlay.shadow()) << "there is none to change";
    rig.change(kShadowOffset, "3 -4");
    rig.change(kShadowRadius, 5.0);
    rig.change(kShadowColor, "1 0 0 1");
    rig.change(kShadowOn, true);
    EXPECT_EQ(overlay.shadow(), shadow(3, -4, 5, Qt::red));
    overlay.setShadowColor(Qt::green);
    overlay.setShadowOn(true);
    EXPECT_EQ(overlay.shadow(), shadow(3, -4, 5, Qt::green));
    rig.change(kShadowOn, false);
    EXPECT_FALSE(overlay.shadow());
    overlay.setShadowOn(true);
    EXPECT_EQ(overlay.shadow(), shadow(3, -4, 5, Qt::red));
}

TEST(QVTextOverlay, changes_of_the_style_are_handled_down_the_chain) {
    OverlayRig rig;
    TextOverlay overlay(&rig.window);
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
}

TEST(QVTextOverlay, absurd_styles_are_laid_out_within_reason) {
    OverlayRig rig;
    const QVariant values[] = {1e9, -1e9, std::numeric_limits<double>::quiet_NaN(), "nonsense", QVariantList{1, 2}};
    for (const QVariant& value : values) {
        for (const QString& key :
             {kTextColor, kTextFontName, kTextFontSize, kShadowOn, kShadowColor, kShadowRadius, kShadowOffset,
              kBackgroundOn, kBackgroundColor, kBackgroundRounded, kBackgroundRadius, kFrameOn, kFrameWidth,
              kFadingInInterval, kFadingOutInterval, kFadingDelayInterval, kMinAlpha, kMaxAlpha}) {
            rig.change(key, value);
        }
        TextOverlay overlay(&rig.window);
        overlay.setPadding(value.toFloat());
        overlay.setText("text");
        overlay.autopop();
        rig.settings.runLoop.advance(10);
        EXPECT_LE(overlay.contentSize().height(), 768 + 128) << value.toString().toStdString();
        EXPECT_LT(std::abs(overlay.frame().x()), 1e8) << value.toString().toStdString();
        EXPECT_GT(overlay.frame().width(), 0) << value.toString().toStdString();
    }
}

TEST(QVImageOverlay, scales_its_image_by_each_axis) {
    OverlayRig rig;
    QVImageOverlay overlay(&rig.window);
    overlay.setScale(0.5F, 2);
    QImage image(720, 96, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    overlay.setImage(image);
    EXPECT_EQ(overlay.contentSize(), QSizeF(360, 192));
    EXPECT_EQ(overlay.frame(), QRectF(20, 20, 374, 206));
}

TEST(ImageView, fills_itself_with_its_image_and_loses_no_pixel_when_it_shrinks) {
    QImage stripes(64, 64, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            stripes.setPixelColor(x, y, x % 8 == 3 ? Qt::white : Qt::black);
    platform::ImageView view;
    view.setImage(stripes);
    view.setFrame(QRectF(0, 0, 8, 128));
    QImage image(8, 128, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.draw(painter, view.bounds());
    painter.end();
    for (int x = 0; x < 8; ++x)
        EXPECT_NEAR(image.pixelColor(x, 64).red(), 32, 12) << x;
    EXPECT_EQ(image.pixelColor(7, 127).alpha(), 255);
}

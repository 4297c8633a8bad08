// SPDX-License-Identifier: GPL-3.0-or-later
// What the window paints itself, looked at in a few places.
#include "prefs/ColorWell.h"
#include "prefs/SampleStill.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

namespace {

bool isLike(const QColor& seen, unsigned wanted) {
    const QColor color = QColor::fromRgb(wanted);
    constexpr int rounding = 3;
    return std::abs(seen.red() - color.red()) <= rounding && std::abs(seen.green() - color.green()) <= rounding &&
           std::abs(seen.blue() - color.blue()) <= rounding;
}

} // namespace

TEST(ColorWells, show_a_colour_and_how_opaque_it_is) {
    const QColor half = QColor::fromRgb(0xFF, 0x40, 0x00, 0x80);
    const struct {
        const char* what;
        QColor color;
        QPoint at;
        unsigned seen;
    } cases[] = {
        {"the colour itself", half, {9, 9}, 0xFF4000},      {"the whole left half", half, {58, 19}, 0xFF4000},
        {"over a grey tile", half, {64, 9}, 0xCF7052},      {"over a white one", half, {69, 9}, 0xFF9F7F},
        {"the tiles take turns", half, {69, 13}, 0xCF7052}, {"no colour", QColor(), {9, 9}, 0xA0A0A4},
        {"its next tile", QColor(), {13, 9}, 0xFFFFFF},     {"below that", QColor(), {13, 13}, 0xA0A0A4},
    };
    for (const auto& [what, color, at, seen] : cases) {
        ColorWell well;
        well.resize(120, 28);
        well.setColor(color);
        EXPECT_EQ(well.accessibleDescription(), color.isValid() ? "#ff4000, 50 %" : "");
        const QColor shown = well.grab().toImage().pixelColor(at);
        EXPECT_TRUE(isLike(shown, seen)) << what << " is " << shown.name().toStdString();
        well.setEnabled(false);
        EXPECT_NE(well.grab().toImage().pixelColor(at), shown) << what << ", disabled";
    }
}

TEST(SampleStills, a_landscape_and_a_desktop_are_drawn_where_they_belong) {
    const QRect place(0, 0, 400, 250);
    using Paint = void (*)(QPainter&, const QRectF&, SampleStill);
    const struct {
        const char* what;
        Paint paint;
        QPoint at;
        unsigned day, night;
    } cases[] = {
        {"the sky", paintStill, {5, 0}, 0x9CC9EE, 0x0B1026},
        {"the sun", paintStill, {288, 70}, 0xFFFBEF, 0xE8E4CF},
        {"its upper edge", paintStill, {288, 52}, 0xFFFBEF, 0xE8E4CF},
        {"its left edge", paintStill, {270, 70}, 0xFFFBEF, 0xE8E4CF},
        {"the nearest hill", paintStill, {200, 248}, 0xF2EFE3, 0x090D18},
        {"the desktop", paintDesktop, {20, 30}, 0xB9C6D2, 0x2B3440},
        {"above the window", paintDesktop, {100, 22}, 0xB9C6D2, 0x2B3440},
        {"its title", paintDesktop, {45, 28}, 0x8FA3B5, 0x46525F},
        {"as wide as the window", paintDesktop, {322, 40}, 0x8FA3B5, 0x46525F},
        {"right of the window", paintDesktop, {330, 40}, 0xB9C6D2, 0x2B3440},
        {"below its title", paintDesktop, {45, 50}, 0xFAFAFA, 0x1C2128},
        {"a line of text", paintDesktop, {55, 65}, 0xD5D9DD, 0x39424D},
        {"its end", paintDesktop, {308, 65}, 0xD5D9DD, 0x39424D},
        {"behind it", paintDesktop, {317, 65}, 0xFAFAFA, 0x1C2128},
        {"between lines", paintDesktop, {100, 75}, 0xFAFAFA, 0x1C2128},
        {"the next line", paintDesktop, {100, 84}, 0xD5D9DD, 0x39424D},
        {"the window's lower edge", paintDesktop, {45, 209}, 0xFAFAFA, 0x1C2128},
        {"below the window", paintDesktop, {45, 216}, 0xB9C6D2, 0x2B3440},
    };
    for (const auto& [what, paint, at, day, night] : cases)
        for (const auto& [still, color] : {std::pair{SampleStill::light, day}, {SampleStill::dark, night}}) {
            QImage image(place.size(), QImage::Format_RGB32);
            QPainter painter(&image);
            paint(painter, place, still);
            painter.end();
            const QColor seen = image.pixelColor(at);
            EXPECT_TRUE(isLike(seen, color)) << what << " is " << seen.name().toStdString();
        }
}

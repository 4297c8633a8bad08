// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Fonts.h"
#include "platform/window/Shadow.h"
#include "platform/window/TextLayout.h"
#include "platform/window/TextView.h"

#include <QFontInfo>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>

using namespace platform;

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

QFont font(float size = 20) {
    return fontWithFamilyName("Sans Serif", size);
}

QSizeF sizeOf(const QString& text, double width = 1e7, double height = 1e7) {
    return TextLayout({text, {}}, font(), QSizeF(width, height)).size();
}

QImage drawn(TextView& view, double ratio = 1) {
    QImage image((view.bounds().size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    view.draw(painter, view.bounds());
    return image;
}

/// Whether two areas agree but for the soft pixels at their edges.
bool nearlyEqual(const QRect& one, const QRect& other) {
    return one.adjusted(-1, -1, 1, 1).contains(other) && other.adjusted(-1, -1, 1, 1).contains(one);
}

/// The smallest rectangle around the pixels that a test finds.
template <class Test>
QRect extent(const QImage& image, Test test) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (test(image.pixelColor(x, y)))
                found |= QRect(x, y, 1, 1);
    return found;
}

QRect inkOf(const QImage& image) {
    return extent(image, [](const QColor& color) { return color.alpha() > 100; });
}

} // namespace

TEST(TextLayout, lines_end_where_the_text_says_and_where_the_container_ends) {
    const double line = sizeOf("x").height();
    EXPECT_GE(line, 20);
    const QString words = "one two three four";
    const double whole = sizeOf(words).width();
    const struct {
        QString text;
        double width;
        int lines;
    } cases[] = {
        {QString(), 1e7, 1},   {"a\nb\r\nc\rd\u2028e\u2029f", 1e7, 6},
        {"a\n\nb\n", 1e7, 4},  {words, whole, 1},
        {words, whole - 1, 2}, {QString(40, u'x'), sizeOf(QString(20, u'x')).width() + 2, 2},
        {"xyz", 1, 3},         {"xyz", -50, 3},
    };
    for (const auto& c : cases) {
        const QSizeF size = sizeOf(c.text, c.width);
        EXPECT_NEAR(size.height(), c.lines * line, c.lines) << c.text.toStdString() << " in " << c.width;
        EXPECT_LE(size.width(), std::max(c.width, 1.0)) << c.text.toStdString();
    }
}

TEST(TextLayout, what_cannot_be_shown_is_left_out_or_stands_in) {
    const QString half(QChar(0xD83D)), otherHalf(QChar(0xDE00));
    const struct {
        QString text, shown;
    } cases[] = {
        {QStringLiteral("a\u0007b\u0000c\u009Fd\te"), "abcd e"},
        {half + u'x', "\uFFFDx"},
        {otherHalf + half, "\uFFFD\uFFFD"},
        {half + otherHalf, half + otherHalf},
        {"\uFFFC\u0085\u000B", "\uFFFD\n\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(displayableText(c.text), c.shown);
    EXPECT_LT(displayableText(QString(10'000, u'x')).size(), 10'000);
}

TEST(TextView, lines_stand_in_the_middle_at_every_pixel_ratio) {
    TextView view;
    view.setFont(font());
    view.setTextColor(Qt::white);
    view.setText("HHHHHHHHHHHH\nHH");
    view.sizeToFit();
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage image = drawn(view, ratio);
        const QRect all = inkOf(image);
        const QRect lower = inkOf(image.copy(0, image.height() / 2, image.width(), image.height() / 2));
        EXPECT_NEAR(all.center().x(), image.width() / 2.0, 3 * ratio) << ratio;
        EXPECT_NEAR(lower.center().x(), image.width() / 2.0, 3 * ratio) << ratio;
        EXPECT_GT(all.width(), 4 * lower.width()) << ratio;
        EXPECT_NEAR(all.height(), 35 * ratio, 8 * ratio) << ratio;
    }
}

// Letters are filled as outlines from some size on: each test is made in a size below and above it.
TEST(TextView, runs_are_drawn_in_their_faces_and_colours) {
    using enum TextFace;
    const auto red = [](const QColor& color) { return color.alpha() > 150 && color.red() > 150 && color.green() < 90; };
    const auto white = [](const QColor& color) { return color.alpha() > 150 && color.green() > 150; };
    for (const double ratio : {1.0, 3.0}) {
        SCOPED_TRACE(ratio);
        TextView view;
        view.setFont(font(28));
        view.setTextColor(Qt::white);
        const auto fitted = [&](const QString& text, std::vector<TextRun> runs) {
            view.setText(StyledText{text, std::move(runs)});
            view.sizeToFit();
            return drawn(view, ratio);
        };
        const QImage plain = fitted("HH HH\nHH HH", {});
        const QImage colored = fitted("HH HH\nHH HH", {{3, 5, {}, Qt::red}});
        EXPECT_EQ(colored.size(), plain.size());
        const QRect words = inkOf(plain);
        EXPECT_TRUE(nearlyEqual(extent(colored, red), words)) << "right above, left below";
        EXPECT_TRUE(nearlyEqual(extent(colored, white), words)) << "left above, right below";
        const QImage above = colored.copy(0, 0, colored.width(), colored.height() / 2);
        EXPECT_LT(extent(above, white).right(), words.center().x());
        EXPECT_GT(extent(above, red).left(), words.center().x() - 5 * ratio);

        const QRect letters = inkOf(fitted("HH HH", {}));
        const QRect line = extent(fitted("HH HH", {{0, 2, underlined, Qt::red}, {3, 2, underlined, {}}}), red);
        EXPECT_GT(line.bottom(), letters.bottom() + ratio);
        EXPECT_LT(line.right(), letters.center().x());
        const auto inkBetween = [&](TextFaces faces) { // of two letters, in their middle
            const QImage image = fitted("l      l", {{0, 8, faces, {}}});
            return inkOf(image.copy(image.width() / 2 - 2, 0, 4, image.height())).height() / ratio;
        };
        EXPECT_EQ(inkBetween({}), 0);
        EXPECT_NEAR(inkBetween(underlined), 2, 1.5);
        EXPECT_NEAR(inkBetween(struckOut), 2, 1.5);
        EXPECT_GT(inkBetween(underlined | struckOut), 8);
        EXPECT_GT(inkOf(fitted("HHHH", {{0, 4, bold, {}}})).width(), inkOf(fitted("HHHH", {})).width());
        const auto slant = [&](TextFaces faces) { // of a stem from its foot to its head
            const QImage image = fitted("l", {{0, 1, faces, {}}});
            const QRect stem = inkOf(image);
            return inkOf(image.copy(0, 0, image.width(), stem.center().y())).right() -
                   inkOf(image.copy(0, stem.center().y(), image.width(), stem.height())).right();
        };
        EXPECT_LE(slant({}), 0);
        EXPECT_GT(slant(italic), 0);
    }
}

TEST(TextView, lines_stand_at_the_side_that_is_asked_for) {
    for (const double ratio : {1.0, 4.0}) {
        TextView view;
        view.setFont(font());
        view.setTextColor(Qt::white);
        view.setText("HHHHHHHH\nHH");
        view.setContainerSize({1000, 1000});
        const auto lowerLine = [&](LineSide side) {
            view.setLineSide(side);
            view.sizeToFit();
            const QImage image = drawn(view, ratio);
            const QRect all = inkOf(image);
            EXPECT_NEAR(all.center().x(), image.width() / 2.0, 3 * ratio);
            return inkOf(image.copy(all.left(), image.height() / 2, all.width(), image.height() / 2));
        };
        const double width = 8 * lowerLine(LineSide::left).width() / 2.0;
        EXPECT_LE(lowerLine(LineSide::left).left(), 2 * ratio);
        EXPECT_NEAR(lowerLine(LineSide::middle).center().x(), width / 2, 8 * ratio);
        EXPECT_NEAR(lowerLine(LineSide::right).right(), width, 12 * ratio);
    }
}

TEST(TextView, the_shadow_falls_where_its_offset_points_in_its_colour) {
    TextView view;
    view.setFont(font(40));
    view.setTextColor(Qt::white);
    view.setText("I");
    view.sizeToFit();
    view.setFrame(platform::Rect(0, 0, 100, 100));
    const QRect ink = inkOf(drawn(view));
    const auto shadowRed = [](const QColor& color) { return color.red() > 200 && color.blue() < 50; };
    view.setShadow(Shadow{QSizeF(20, -10), 0, Qt::red});
    EXPECT_TRUE(nearlyEqual(extent(drawn(view), shadowRed), ink.translated(20, 10)));
    view.setShadow(Shadow{QSizeF(-20, 5), 0, Qt::red});
    EXPECT_TRUE(nearlyEqual(extent(drawn(view), shadowRed), ink.translated(-20, -5)));
    EXPECT_NEAR(extent(drawn(view, 2), shadowRed).width() / 2, ink.width(), 1);

    view.setShadow(Shadow{QSizeF(20, 0), 8, Qt::red});
    const QImage soft = drawn(view);
    const QRect spread = extent(soft, [](const QColor& c) { return c.alpha() > 2 && c.blue() < 50; });
    EXPECT_GT(spread.right(), ink.right() + 20 + 3);
    EXPECT_LT(spread.right(), ink.right() + 20 + 16);
    view.setShadow(std::nullopt);
    EXPECT_EQ(inkOf(drawn(view)), ink);
}

TEST(Shadow, a_blur_keeps_its_weight_and_its_middle) {
    for (const int side : {101, 1201}) { // the larger one is blurred at half the resolution
        const int middle = side / 2;
        QImage solid(side, side, QImage::Format_ARGB32_Premultiplied);
        solid.fill(Qt::transparent);
        for (int y = middle - 5; y <= middle + 5; ++y)
            for (int x = middle - 5; x <= middle + 5; ++x)
                solid.setPixel(x, y, 0xFF000000);
        castShadow(solid, Shadow{QSizeF(0, 0), 8, Qt::black}, 1);
        // A bell curve of deviation 4 over a box of 11: half a pixel outside the edge it has lost half,
        // which the shadow's strength makes up for.
        EXPECT_NEAR(qAlpha(solid.pixel(middle + 6, middle)), 190, 40) << side;
        EXPECT_NEAR(qAlpha(solid.pixel(middle - 6, middle)), 190, 40) << side;
        EXPECT_LT(qAlpha(solid.pixel(middle + 18, middle)), 12) << side;
    }
}

TEST(TextLayout, a_long_line_may_lose_its_middle_instead_of_breaking) {
    const auto shortened = [](const QString& text, double width) {
        return TextLayout({text, {}}, font(), QSizeF(width, 1e7), LongLines::shortened).size();
    };
    const QSizeF line = sizeOf("two words");
    EXPECT_EQ(shortened("two words", line.width()), line);
    for (const QString& text : {QString(3000, u'x'), QString("two words ").repeated(50)}) {
        EXPECT_EQ(shortened(text, 300).height(), line.height());
        EXPECT_LE(shortened(text, 300).width(), 300);
        EXPECT_GT(shortened(text, 300).width(), 250);
    }
    EXPECT_EQ(shortened("one\n" + QString(300, u'x'), 300).height(), 2 * line.height()) << "each line by itself";
    // Both ends are kept: what is drawn begins and ends as the text does.
    TextView view;
    view.setFont(font());
    view.setTextColor(Qt::white);
    view.setLongLines(LongLines::shortened);
    view.setContainerSize(QSizeF(300, 1e7));
    const auto ends = [&](const QString& text) {
        view.setText(text);
        view.sizeToFit();
        const QImage image = drawn(view);
        const QRect ink = inkOf(image);
        return std::pair(image.copy(QRect(ink.topLeft(), QSize(8, ink.height()))),
                         image.copy(QRect(ink.right() - 7, ink.top(), 8, ink.height())));
    };
    EXPECT_EQ(ends("l" + QString(300, u'x') + "l"), ends("l" + QString(20, u'x') + "l"));
}

TEST(TextLayout, more_lines_than_fit_are_left_out) {
    QString lines;
    for (int i = 0; i < 500; ++i)
        lines += "line\n";
    const double line = sizeOf("line").height();
    EXPECT_LE(sizeOf(lines, 1920, 10.5 * line).height(), 10.5 * line);
    EXPECT_GT(sizeOf(lines, 1920, 10.5 * line).height(), 9 * line);
    EXPECT_GT(sizeOf("x", 100, 1).height(), 0);
}

TEST(TextLayout, marks_join_their_letter_and_scripts_run_their_way) {
    EXPECT_NEAR(sizeOf("e\u0301").width(), sizeOf("e").width(), 1);
    // Lam and alef are drawn as one, shorter shape.
    EXPECT_LT(sizeOf("\u0644\u0627").width(), sizeOf("\u0644 \u0627").width());
    for (const char* text : {"\u05E9\u05DC\u05D5\u05DD", "\u0928\u092E\u0938\u094D\u0924\u0947", "\U0001F600"}) {
        TextView view;
        view.setFont(font());
        view.setText(QString::fromUtf8(text));
        view.sizeToFit();
        EXPECT_FALSE(inkOf(drawn(view)).isEmpty()) << text;
    }
}

TEST(TextLayout, italics_of_letters_that_only_the_upright_font_has_stay_letters) {
    // Empty boxes are of one width.
    const auto italicWidth = [](const QString& text) {
        return TextLayout({text, {{0, text.size(), TextFace::italic, {}}}}, font(), QSizeF(1e7, 1e7)).size().width();
    };
    EXPECT_LT(italicWidth(QStringLiteral("اااا")), italicWidth(QStringLiteral("شششش")));
}

TEST(Fonts, an_unknown_family_and_an_absurd_size_still_make_a_font) {
    const QString fallback = QFontInfo(fontWithFamilyName(QString(), 20)).family();
    EXPECT_EQ(QFontInfo(fontWithFamilyName("No Such Family", 20)).family(), fallback);
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    const std::pair<float, float> sizes[] = {{1e9F, 1024}, {-5, 1}, {0, 1}, {notANumber, 1}, {1.6F, 2}, {20.4F, 20}};
    for (const auto& [asked, given] : sizes)
        EXPECT_EQ(pointSizeOf(font(asked)), given) << asked;
}

TEST(TextView, absurd_shadows_texts_and_sizes_are_drawn_without_harm) {
    TextView view;
    view.setFont(font());
    view.setText("x");
    view.sizeToFit();
    for (const double absurd : {kNotANumber, 1e9, -1e9, 1e308}) {
        view.setShadow(Shadow{QSizeF(absurd, absurd), static_cast<float>(std::min(absurd, 1e30)), Qt::red});
        EXPECT_FALSE(inkOf(drawn(view)).isEmpty()) << absurd;
        view.setShadow(Shadow{QSizeF(0, 0), static_cast<float>(std::min(absurd, 1e30)), Qt::red});
        EXPECT_FALSE(inkOf(drawn(view)).isEmpty()) << absurd;
        view.setContainerSize(QSizeF(absurd, absurd));
        view.sizeToFit();
        EXPECT_LE(view.bounds().width(), 8300) << absurd;
        view.setContainerSize(QSizeF(800, 600));
        view.sizeToFit();
    }
    view.setFrame(Rect(0, 0, 1e9, 10));
    QImage image(20, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    view.draw(painter, view.bounds());
    EXPECT_TRUE(painter.end());
    QString noise;
    for (char16_t unit = 0; noise.size() < 10'000; unit = static_cast<char16_t>(unit + 7919))
        noise += QChar(unit);
    view.setContainerSize(QSizeF(800, 600));
    view.setText(noise);
    view.sizeToFit();
    EXPECT_LE(view.bounds().height(), 600);
    EXPECT_FALSE(drawn(view).isNull());
    view.setFont(font(1e9F));
    view.sizeToFit();
    EXPECT_LE(view.bounds().height(), 600);
    EXPECT_FALSE(drawn(view).isNull());
}

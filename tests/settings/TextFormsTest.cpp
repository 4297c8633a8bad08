// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"
#include "platform/base/PathNames.h"
#include "platform/base/PercentEscapes.h"
#include "platform/base/StringComparison.h"
#include "settings/ColorText.h"

#include <gtest/gtest.h>

TEST(ColorText, components_that_the_text_does_not_reach_keep_their_start_values) {
    const struct {
        const char* text;
        QColor color;
    } cases[] = {{"1 0 0", QColor::fromRgbF(1, 0, 0, 1)},
                 {"0.5", QColor::fromRgbF(0.5F, 0, 0, 1)},
                 {"red", QColor::fromRgbF(0, 0, 0, 1)},
                 {"0.5 x 1 0", QColor::fromRgbF(0.5F, 0, 0, 1)},
                 {" \t1\n1  1 0.25 9", QColor::fromRgbF(1, 1, 1, 0.25F)},
                 {"2 -1 1e9 0.5", QColor::fromRgbF(1, 0, 1, 0.5F)},
                 {"0,5 1 1 1", QColor::fromRgbF(0, 0, 0, 1)},
                 {"+-1 1 1 1", QColor::fromRgbF(0, 0, 0, 1)},
                 {"1 +", QColor::fromRgbF(1, 0, 0, 1)},
                 {"+.5 5e-1 1 1", QColor::fromRgbF(0.5F, 0.5F, 1, 1)}};
    for (const auto& [text, color] : cases)
        EXPECT_EQ(JHColorFromString(text), color) << text;
    EXPECT_FALSE(JHColorFromString(""));
    EXPECT_EQ(JHSizeFromString("3"), QSizeF(3, 0));
    EXPECT_EQ(JHSizeFromString("x 3"), QSizeF(0, 0));
    EXPECT_EQ(JHStringFromSize({1234567.0, 0.0001}), "1.23457e+06 0.0001");
}

TEST(ColorText, a_colour_is_written_short_and_read_back_as_the_same_one) {
    EXPECT_EQ(JHStringFromColor(QColor(255, 0, 0)), "1 0 0 1");
    EXPECT_EQ(JHStringFromColor(QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.5F)), "0.5 0.5 0.5 0.5");
    for (int level = 0; level < 65536; level += 7) {
        const auto value = static_cast<quint16>(level);
        const QColor color = QColor::fromRgba64(value, value, value, value);
        ASSERT_EQ(JHColorFromString(JHStringFromColor(color)), color) << level;
    }
}

TEST(StringComparison, names_are_ordered_without_case_and_numbers_by_value_when_asked) {
    const struct {
        const char* left;
        const char* right;
        int plain;
        int numerical;
    } cases[] = {{"", "a", -1, -1},        {"a.avi", "A.AVI", 0, 0},
                 {"ÄRGER", "ärger", 0, 0}, {"Ep9.avi", "Ep10.avi", 1, -1},
                 {"ep 2", "ep 02", 1, 0},  {"ep 002b", "ep 2a", -1, 1},
                 {"x00", "x0y", -1, -1},   {"v100000000000000000000000000", "v99999999999999999999999999", -1, 1}};
    for (const auto& [left, right, plain, numerical] : cases) {
        const QString l = left;
        const QString r = right;
        EXPECT_EQ(platform::compareCaseInsensitively(l, r, false), plain) << left << " " << right;
        EXPECT_EQ(platform::compareCaseInsensitively(r, l, false), -plain) << left << " " << right;
        EXPECT_EQ(platform::compareCaseInsensitively(l, r, true), numerical) << left << " " << right;
        EXPECT_EQ(platform::compareCaseInsensitively(r, l, true), -numerical) << left << " " << right;
    }
}

TEST(Formatted, placeholders_are_filled_once_and_in_order) {
    const struct {
        const char* format;
        QStringList arguments;
        const char* result;
    } cases[] = {{"%@ (%d/%d)", {"Film.avi", "2", "5"}, "Film.avi (2/5)"},
                 {"%@ %@", {"100%@", "b"}, "100%@ b"},
                 {"%d%%", {"50"}, "50%"},
                 {"%@ %@", {"a"}, "a %@"},
                 {"100% sure %", {"a"}, "100% sure %"},
                 {"%2$@ before %1$@", {"a", "b"}, "b before a"},
                 {"%9$@ %0$@", {"a"}, "%9$@ a"}};
    for (const auto& [format, arguments, result] : cases)
        EXPECT_EQ(platform::formatted(format, arguments), result) << format;
}

TEST(PercentEscapes, what_a_url_cannot_hold_is_escaped_and_its_separators_stay) {
    EXPECT_EQ(platform::stringByAddingPercentEscapes("http://a.org/b c?d=\u00E9&e=1;f#\"<[100%]>|\\"),
              "http://a.org/b%20c?d=%C3%A9&e=1;f%23%22%3C%5B100%25%5D%3E%7C%5C");
    EXPECT_EQ(platform::stringByAddingPercentEscapes("(it's-_.!~*)$+,@"), "(it's-_.!~*)$+,@");
}

TEST(PathNames, a_path_is_a_text_of_which_its_bytes_are_made_again) {
    for (const QByteArray& bytes :
         {QByteArray("/a b.mp4"), QByteArray("/caf\xC3\xA9 \xF0\x9F\x8E\xAC"), QByteArray("/caf\xE9/\xC3\xA9\xC3"),
          QByteArray("/\xF0\x9F\x8E/\x80\xFF"), QByteArray("/\xED\xB3\xA9"), QByteArray()}) {
        const QString path = platform::pathOfBytes(bytes);
        EXPECT_EQ(platform::bytesOfPath(path), bytes) << bytes.toPercentEncoding().toStdString();
        EXPECT_EQ(path.count(u'/'), bytes.count('/'));
        const QString stored = platform::storedPath(path);
        EXPECT_EQ(QString::fromUtf8(stored.toUtf8()), stored) << "it can be written";
        EXPECT_EQ(platform::pathFromStored(stored), path);
    }
    EXPECT_EQ(platform::storedPath("/caf\u00E9 \U0001F3AC"), "/caf\u00E9 \U0001F3AC");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyList.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace platform;

namespace {

QVariantMap sample() {
    return {{"flag", true},
            {"least", std::numeric_limits<qlonglong>::min()},
            {"negative", -5},
            {"double", 0.1 + 0.2},
            {"huge", 1e300},
            {"date", QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC)},
            {"data", QByteArray("\0\1\xff", 3)},
            {"no data", QByteArray("")},
            {"empty", QString("")},
            {"blanks", QString("  a  ")},
            {"markup", QString("<&>\"' &amp; ]]>")},
            {"control", QString("a\x01\x1b\r\n\tb")},
            {"emoji", QString::fromUtf8("ä😀")},
            {"<key&>", QVariantList{1, "x", QVariantMap{{"inner", QVariantList{}}}}}};
}

/// The binary form of one array for each level, each naming the next one `copies` times.
QByteArray nestedBinary(int levels, int copies) {
    QByteArray bytes("bplist00");
    QByteArray table;
    const auto number = [](int value, int width) {
        QByteArray text;
        for (int byte = width - 1; byte >= 0; --byte)
            text += static_cast<char>(static_cast<unsigned>(value) >> (8U * static_cast<unsigned>(byte)) & 0xFFU);
        return text;
    };
    for (int level = 0; level < levels; ++level) {
        table += number(static_cast<int>(bytes.size()), 4);
        const bool isLast = level + 1 == levels;
        bytes += static_cast<char>(0xA0 + (isLast ? 0 : copies));
        for (int copy = 0; !isLast && copy < copies; ++copy)
            bytes += number(level + 1, 4);
    }
    const auto tableOffset = static_cast<int>(bytes.size());
    return bytes + table + QByteArray(6, '\0') + "\4\4" + QByteArray(4, '\0') + number(levels, 4) +
           QByteArray(8, '\0') + QByteArray(4, '\0') + number(tableOffset, 4);
}

QByteArray document(const QByteArray& content) {
    return "<plist version=\"1.0\">" + content + "</plist>";
}

} // namespace

TEST(PropertyList, what_was_written_is_read_back) {
    const auto read = propertyList::parse(propertyList::toXml(sample()));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toMap(), sample());
}

TEST(PropertyList, a_float_is_written_as_short_as_it_can_be_and_read_back_exactly) {
    for (const float value : {0.3F, 0.1F + 0.2F, 1.0F, 1e-30F, std::numeric_limits<float>::max()}) {
        const QByteArray xml = propertyList::toXml({{"value", value}});
        EXPECT_EQ(static_cast<float>(propertyList::parse(xml)->toMap()["value"].toDouble()), value)
            << xml.toStdString();
    }
    EXPECT_TRUE(propertyList::toXml({{"value", 0.3F}}).contains("<real>0.3</real>"));
    EXPECT_TRUE(propertyList::toXml({{"value", std::numeric_limits<double>::quiet_NaN()}}).contains("<real>0</real>"));
}

TEST(PropertyList, a_list_that_was_cut_off_is_none) {
    const QByteArray xml = propertyList::toXml(sample());
    for (qsizetype size = 0; size < xml.lastIndexOf("</dict>"); ++size)
        ASSERT_FALSE(propertyList::parse(xml.left(size))) << size;
}

TEST(PropertyList, the_binary_form_is_read) {
    const auto read = propertyList::parse(nestedBinary(3, 2));
    ASSERT_TRUE(read);
    const QVariantList inner{QVariantList{}, QVariantList{}};
    EXPECT_EQ(read->toList(), (QVariantList{inner, inner}));
}

TEST(PropertyList, lists_that_would_exhaust_the_reader_are_refused) {
    const QByteArray hidden = QByteArray("<array><!-- </array> --><string><![CDATA[</array>]]></string>");
    const QByteArray cycle = [] {
        QByteArray bytes = nestedBinary(2, 1);
        bytes[8 + 4] = 0; // the first array names itself
        return bytes;
    }();
    const struct {
        const char* what;
        QByteArray bytes;
    } cases[] = {
        {"nested XML", document(QByteArray("<array>").repeated(200'000))},
        {"nested XML with closing tags that are text", document(hidden.repeated(100'000))},
        {"nested XML with closing tags in quotes", document(QByteArray("<array a=\"></array>\">").repeated(99'999))},
        {"nested binary", nestedBinary(200'000, 1)},
        {"shared binary, two to the power of forty values", nestedBinary(40, 2)},
        {"binary that contains itself", cycle},
        {"binary header alone", "bplist00"},
        {"too large", QByteArray("<plist>") + QByteArray(17 * 1024 * 1024, ' ')}};
    for (const auto& hostile : cases)
        EXPECT_FALSE(propertyList::parse(hostile.bytes)) << hostile.what;
    EXPECT_TRUE(
        propertyList::parse(document(QByteArray("<array>").repeated(50) + QByteArray("</array>").repeated(50))));
}

TEST(PropertyList, damaged_bytes_never_bring_the_reader_down) {
    std::mt19937 random(1); // NOLINT: the same damage each time
    for (const QByteArray& good : {propertyList::toXml(sample()), nestedBinary(12, 2)}) {
        for (int round = 0; round < 3000; ++round) {
            QByteArray bytes = good;
            for (int damage = 0; damage < 3; ++damage)
                bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                    static_cast<char>(random());
            propertyList::parse(bytes);
        }
    }
}

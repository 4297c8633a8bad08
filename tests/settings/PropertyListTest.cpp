// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyList.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <limits>

using namespace platform;

namespace {

QVariantMap sample() {
    return {{"flag", true},
            {"least", std::numeric_limits<qlonglong>::min()},
            {"double", 0.1 + 0.2},
            {"huge", 1e300},
            {"date", QDateTime::fromSecsSinceEpoch(1'700'000'000).toUTC()},
            {"data", QByteArray("\0\1\xff", 3)},
            {"empty", QString("")},
            {"blanks", QString("  a  ")},
            {"control", QString("<&>\"' &amp; ]]>\x01\x1b\r\n\tb")},
            {"emoji", QString::fromUtf8("ä😀")},
            {"<key&>", QVariantList{1, "x", QVariantMap{{"inner", QVariantList{}}}}}};
}

QByteArray document(const QByteArray& content) {
    return "<plist version=\"1.0\">" + content + "</plist>";
}

/// The binary form of an array of one array; `inner` is the number of what the outer one holds.
QByteArray binary(const char* inner) {
    return QByteArray::fromHex(QByteArray("62706c6973743030 a1") + inner +
                               "a0 080a 000000000000 0101 0000000000000002 0000000000000000 000000000000000b");
}

} // namespace

TEST(PropertyList, what_was_written_is_read_back_and_what_was_cut_off_is_not) {
    const QByteArray xml = propertyList::toXml(sample());
    const auto read = propertyList::parse(xml);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toMap(), sample());
    for (qsizetype size = 0; size < xml.lastIndexOf("</dict>"); ++size)
        ASSERT_FALSE(propertyList::parse(xml.left(size))) << size;
}

TEST(PropertyList, the_binary_form_is_read_and_what_would_exhaust_the_reader_is_refused) {
    EXPECT_EQ(propertyList::parse(binary("01")), QVariant(QVariantList{QVariant(QVariantList{})}));
    const auto nested = [](int depth) { return QByteArray("<array>").repeated(depth); };
    EXPECT_TRUE(propertyList::parse(document(nested(50) + QByteArray("</array>").repeated(50))));
    const QByteArray hidden("<array><!-- </array> --><string><![CDATA[</array>]]></string>");
    const struct {
        const char* what;
        QByteArray bytes;
    } cases[] = {
        {"nested XML", document(nested(200'000))},
        {"nested XML with closing tags that are text", document(hidden.repeated(100'000))},
        {"nested XML with closing tags in quotes", document(QByteArray("<array a=\"></array>\">").repeated(99'999))},
        {"binary that contains itself", binary("00")},
        {"too large", QByteArray("<plist>") + QByteArray(17 * 1024 * 1024, ' ')}};
    for (const auto& hostile : cases)
        EXPECT_FALSE(propertyList::parse(hostile.bytes)) << hostile.what;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyList.h"
#include "tests/support/Files.h"

#include <QDateTime>

#include <limits>
#include <sys/stat.h>

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

QByteArray nested(int depth) {
    return QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth);
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

TEST(PropertyList, what_is_written_can_be_read_by_people) {
    const QByteArray xml = propertyList::toXml({{"a", QVariantMap{{"b", QVariantList{true, 2}}}}});
    EXPECT_EQ(xml.mid(xml.indexOf("<plist")),
              "<plist version=\"1.0\">\n<dict>\n\t<key>a</key>\n\t<dict>\n\t\t<key>b</key>\n"
              "\t\t<array>\n\t\t\t<true/>\n\t\t\t<integer>2</integer>\n\t\t</array>\n"
              "\t</dict>\n</dict>\n</plist>\n");
}

TEST(PropertyList, what_others_wrote_is_read_as_they_meant_it) {
    const struct {
        const char* content;
        QVariant value;
    } cases[] = {{"<integer> -7\r\n</integer>", -7LL},
                 {"<integer>0xff</integer>", 255LL},
                 {"<integer>010</integer>", 10LL},
                 {"<integer>18446744073709551615</integer>", -1LL},
                 {"<integer>many</integer>", 0LL},
                 {"<real>1.5 </real>", 1.5},
                 {"<real>1,5</real>", 1.0},
                 {"<string/>", QString("")},
                 {"<string>a<!-- b -->&lt;<![CDATA[<&]]>&#x41;</string>", QString("a<<&A")},
                 {"<data>\n\tAAEC\n\t</data>", QByteArray("\0\1\2", 3)},
                 {"<data></data>", QByteArray("")},
                 {"<false></false>", false},
                 {"<array><date>yesterday</date><integer>1</integer></array>", QVariantList{1LL}}};
    for (const auto& [content, value] : cases) {
        const QByteArray head("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n"
                              "<!DOCTYPE plist PUBLIC \"a\" \"b>c\">\r\n<!-- d -->\r\n");
        const auto read = propertyList::parse(head + document(content) + "\n<!-- end -->\n");
        ASSERT_TRUE(read) << content;
        EXPECT_EQ(read->typeId(), value.typeId()) << content;
        EXPECT_EQ(*read, value) << content;
    }
}

TEST(PropertyList, what_is_none_or_would_exhaust_its_reader_is_refused) {
    EXPECT_TRUE(propertyList::parse(document(nested(64))));
    const auto numbers = [](int count) {
        return document("<array>" + QByteArray("<true/>").repeated(count) + "</array>");
    };
    EXPECT_TRUE(propertyList::parse(numbers(999'999)));
    const QByteArray entities("<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;\">]>");
    const struct {
        const char* what;
        QByteArray bytes;
    } cases[] = {{"no bytes", ""},
                 {"no root", document("")},
                 {"two roots", document("<true/><true/>")},
                 {"something behind it", document("<true/>") + "<plist/>"},
                 {"another document", "<html><true/></html>"},
                 {"an unknown value", document("<array><set/></array>")},
                 {"a text between values", document("<array>a<true/></array>")},
                 {"an element in a text", document("<string><true/></string>")},
                 {"a value without a key", document("<dict><true/></dict>")},
                 {"a key without a value", document("<dict><key>a</key></dict>")},
                 {"an unknown entity", document("<string>&a;</string>")},
                 {"entities", entities + document("<string>&b;</string>")},
                 {"the binary form", QByteArray::fromHex("62706c6973743030a1010008"
                                                         "0a0000000000000101000000000000000200")},
                 {"too deep", document(nested(66))},
                 {"far too deep", document(QByteArray("<array>").repeated(200'000))},
                 {"too many values", numbers(1'000'000)},
                 {"too large", "<plist>" + QByteArray(16 * 1024 * 1024, ' ') + "<true/></plist>"}};
    for (const auto& hostile : cases)
        EXPECT_FALSE(propertyList::parse(hostile.bytes)) << hostile.what;
}

TEST(PropertyList, a_file_that_is_none_is_not_waited_for) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(propertyList::readDictionary(pipe));
    EXPECT_FALSE(propertyList::readDictionary(folder.path()));
    const QString path = writeFile(folder.filePath("list"), propertyList::toXml(sample()));
    EXPECT_EQ(propertyList::readDictionary(path), sample());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/ListFile.h"

#include "platform/base/PathNames.h"
#include "playlist/files/ListAddress.h"
#include "playlist/files/M3uWriter.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

const QUrl list = QUrl::fromLocalFile("/lists/l.m3u");

/// The entries as text|title|seconds.
std::string entriesOf(const QByteArray& bytes, const QUrl& from = list) {
    QStringList entries;
    const listFile::Contents contents = listFile::read(bytes, from);
    for (const listFile::Entry& entry : contents.entries)
        entries << entry.text + u'|' + entry.title + u'|' + QString::number(entry.seconds);
    return entries.join(u'\n').toStdString();
}

} // namespace

TEST(ListFile, each_form_gives_its_entries_in_order) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"a.avi\nb.avi", "a.avi||-1\nb.avi||-1"},
        {"\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:61,Eins, zwei\r\n  a b.avi\t\r\n", "a b.avi|Eins, zwei|61"},
        {"#EXTM3U\r#EXTINF:-1 tvg-id=\"x,y\" group-title=\"z\",News\rhttp://h/1\r", "http://h/1|News|-1"},
        {"#EXTINF:12.7,A\n#EXTINF:5\n#EXTVLCOPT:x\na\n\nb", "a||5\nb||-1"},
        {"#extinf:99999999999,x\na", "a|x|-1"},
        {QByteArray("\xFF\xFE"
                    "a\0.\0\xE4\0\n\0",
                    10),
         "a.ä||-1"},
        {"[Playlist]\nfile10=c\nFile2=b\nTITLE2 = Zwei \nLength2=7\nFile1=a\nFilename3=x\nFile=y\nVersion=2\n",
         "a||-1\nb|Zwei|7\nc||-1"},
        {"<?xml version=\"1.0\"?><playlist xmlns=\"http://xspf.org/ns/0/\"><title>All</title><trackList>"
         "<track><title> A &amp;\n B </title><location>dir/a%20b.avi</location><location>other</location>"
         "<duration>61999</duration></track>"
         "<track><creator>x</creator></track>"
         "<track xml:base=\"http://h/x/\"><location>../c.avi</location></track>"
         "<track><location>C:\\d.avi</location></track>"
         "<track><extension><location>no</location></extension><location>file:///e%FF.avi</location></track>"
         "</trackList></playlist>",
         "file:///lists/dir/a%20b.avi|A & B|61\nhttp://h/c.avi||-1\nC:\\d.avi||-1\nfile:///e%FF.avi||-1"},
        {"<playlist><trackList><track><location>a</location></track><track><loc", "file:///lists/a||-1"},
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><playlist><trackList><track><location>a</location>"
         "<title>\xE4</title></track></trackList></playlist>",
         "file:///lists/a|ä|-1"},
    };
    for (const auto& [bytes, entries] : cases)
        EXPECT_EQ(entriesOf(bytes), entries) << bytes.toStdString();
    const QByteArray russian = "#EXTINF:1,\xCF\xF0\xE8\xEA\xEB\xFE\xF7\xE5\xED\xE8\xFF \xE2 \xEC\xEE\xF1\xEA\xE2\xE5\n"
                               "\xF1\xEE\xE1\xE0\xEA\xE0 \xE8 \xEA\xEE\xF8\xEA\xE0.avi\n";
    EXPECT_EQ(entriesOf(russian), "собака и кошка.avi|Приключения в москве|1");
}

TEST(ListFile, what_grows_without_end_ends) {
    QByteArray entities = "<!DOCTYPE p [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaa\">";
    for (char c = 'b'; c < 'k'; ++c) {
        entities += "<!ENTITY " + QByteArray(1, c) + " \"";
        for (int i = 0; i < 10; ++i)
            entities += '&' + QByteArray(1, static_cast<char>(c - 1)) + ';';
        entities += "\">";
    }
    entities += "]><playlist><trackList><track><location>&j;</location></track></trackList></playlist>";
    EXPECT_EQ(listFile::read(entities, list).kind, listFile::Kind::unknown);
    EXPECT_EQ(listFile::read("<playlist>" + QByteArray("<a>").repeated(1000000), list).entries.size(), 0U);
    const listFile::Contents pls = listFile::read(
        "[playlist]\n" +
            [] {
                QByteArray lines;
                for (int i = 0; i < 100010; ++i)
                    lines += "File" + QByteArray::number(i) + "=x\n";
                return lines;
            }(),
        list);
    EXPECT_EQ(pls.entries.size(), listFile::maximumEntries);
    EXPECT_TRUE(pls.isCut);
    EXPECT_TRUE(listFile::read(QByteArray("a\n").repeated(200000), list).isCut);
    const listFile::Contents line = listFile::read(QByteArray(20000000, 'a'), list);
    ASSERT_EQ(line.entries.size(), 1U);
    EXPECT_EQ(listFile::addressOf(line.entries[0], list, nullptr).kind, listFile::Address::Kind::unusable);
}

TEST(ListFile, addresses_are_those_that_are_there) {
    QSet<QByteArray> files;
    const auto exists = [&files](const QByteArray& path) { return files.contains(path); };
    const QUrl network("http://h/dir/l.m3u");
    using Kind = listFile::Address::Kind;
    const struct {
        QByteArray address;
        const char* text;
        QUrl list;
        QByteArray there;
        Kind kind;
        const char* url;
    } cases[] = {
        {"a.avi", "a.avi", list, "", Kind::file, "file:///lists/a.avi"},
        {"../x/./a.avi", "../x/./a.avi", list, "", Kind::file, "file:///x/a.avi"},
        {"a%20b", "a%20b", list, "", Kind::file, "file:///lists/a%2520b"},
        {"a%20b", "a%20b", list, "/lists/a b", Kind::file, "file:///lists/a%20b"},
        {"d\\a", "d\\a", list, "/lists/d/a", Kind::file, "file:///lists/d/a"},
        {"d\\a", "d\\a", list, "/lists/d\\a", Kind::file, "file:///lists/d%5Ca"},
        {"\xE4", "ä", list, "", Kind::file, "file:///lists/%C3%A4"},
        {"\xE4", "ä", list, "/lists/\xE4", Kind::file, "file:///lists/%E4"},
        {"#x", "#x", list, "", Kind::file, "file:///lists/%23x"},
        {"file:///a%0Ab%FF", "file:///a%0Ab%FF", list, "", Kind::file, "file:///a%0Ab%FF"},
        {"file://localhost/a", "file://localhost/a", list, "", Kind::file, "file:///a"},
        {"file://host/a", "file://host/a", list, "", Kind::unusable, ""},
        {"file:///C:/a", "file:///C:/a", list, "", Kind::windowsPath, ""},
        {"c:/a", "c:/a", list, "", Kind::windowsPath, ""},
        {"http://h/a b", "http://h/a b", list, "", Kind::network, "http://h/a%20b"},
        {"http://[x", "http://[x", list, "", Kind::unusable, ""},
        {"a b.avi", "a b.avi", network, "", Kind::network, "http://h/dir/a%20b.avi"},
        {"//o/a", "//o/a", network, "", Kind::network, "http://o/a"},
        {"file:/etc/passwd", "file:/etc/passwd", network, "", Kind::localOfNetwork, ""},
        {"d:\\a", "d:\\a", network, "", Kind::windowsPath, ""},
    };
    for (const auto& c : cases) {
        files = {c.there};
        const auto address = listFile::addressOf({c.address, QString::fromUtf8(c.text), {}, -1}, c.list, exists);
        EXPECT_EQ(address.kind, c.kind) << c.text;
        EXPECT_EQ(address.url.toEncoded().toStdString(), c.url) << c.text;
    }
}

TEST(ListFile, what_is_written_is_read_back) {
    const QByteArray names[] = {"a.avi",        "d/b c.avi",    "#c",       "line\nfeed",       " blank ",
                                "100%41",       "C:\\x",        "caf\xE9",  "\xC3\xA4",         "a\\b",
                                "http:/x",      "/elsewhere/e", "\\\\x\\y", "\xEF\xBB\xBFmark", "#EXT-X-END",
                                "tab\tcr\rend", "[playlist]",   "<x>"};
    std::vector<listFile::WrittenEntry> written;
    QSet<QByteArray> files;
    for (const QByteArray& name : names) {
        const QByteArray path = name.startsWith('/') ? name : "/lists/" + name;
        files.insert(path);
        written.push_back({platform::urlOfNativePath(path), "Title\n\"of, " + QString::fromUtf8(name), 61});
    }
    written.push_back({QUrl("http://h/a%20b?c=d%2Fe#f"), {}, -1});
    const QByteArray bytes = listFile::m3uOf(written, list);
    EXPECT_TRUE(bytes.startsWith("#EXTM3U\n#EXTINF:61,Title \"of, a.avi\na.avi\n")) << "relative to the list";
    const listFile::Contents read = listFile::read(bytes, list);
    ASSERT_EQ(read.entries.size(), written.size());
    for (std::size_t i = 0; i < written.size(); ++i) {
        const auto address =
            listFile::addressOf(read.entries[i], list, [&](const QByteArray& path) { return files.contains(path); });
        EXPECT_EQ(address.url, written[i].url) << read.entries[i].text.toStdString();
        EXPECT_EQ(read.entries[i].title, written[i].title.simplified());
        EXPECT_EQ(read.entries[i].seconds, written[i].seconds);
    }
}

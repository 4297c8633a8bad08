// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MovieFinder.h"

#include "platform/base/PathNames.h"
#include "playlist/OpeningReport.h"
#include "playlist/files/ListFile.h"
#include "tests/support/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Finding : public testing::Test {
protected:
    QString make(const QString& name, const QByteArray& bytes = "x") { return writeFile(folder.filePath(name), bytes); }
    /// The movies found among these paths, or URLs: relative to the folder where they lie in it, with their titles.
    std::string found(const QStringList& names,
                      const QStringList& types = {"avi", "mp4", "m3u", "m3u8", "pls", "xspf"}) {
        QStringList paths;
        for (const QString& name : names)
            paths.append(name.contains("://") ? name : folder.filePath(name));
        const MovieFinder::Means means{types, [this](const QUrl& url, qsizetype limit, const std::atomic<bool>&) {
                                           fetches << url.toString();
                                           return platform::FetchedFile{
                                               served.value(url.path()).left(limit),
                                               url.path() == "/moved.m3u" ? QUrl("http://there/dir/x.m3u") : url,
                                               served.contains(url.path()) ? platform::movieError::none
                                                                           : platform::movieError::serverHasNoSuchFile};
                                       }};
        QStringList result;
        cancelled = false;
        MovieFinder finder(means, cancelled, [&](const MovieSource& movie) {
            const QString path = QDir(folder.path()).relativeFilePath(movie.url.toLocalFile());
            const QString title = movie.title.isEmpty() ? QString() : u'=' + movie.title;
            result.append((movie.url.isLocalFile() ? path : movie.url.toString()) + title);
            cancelled = result.size() == cancelledAfter;
            if (result.size() > 1000)
                result.resize(1000);
        });
        failures = finder.find(paths);
        return result.join(u' ').toStdString();
    }
    std::string failed() const {
        QStringList texts;
        for (const OpeningFailure& failure : failures) {
            const QString count = failure.count > 0 ? u'*' + QString::number(failure.count) : QString();
            texts << failure.url.fileName() + u':' + QString::number(failure.error) + count;
        }
        return texts.join(u' ').toStdString();
    }

    QTemporaryDir folder;
    QHash<QString, QByteArray> served; // by the path of the address
    QStringList fetches;
    std::atomic<bool> cancelled = false;
    qsizetype cancelledAfter = -1;
    QList<OpeningFailure> failures;
};

} // namespace

TEST_F(Finding, folders_are_walked_to_the_bottom_in_reading_order_without_going_round) {
    for (const char* name : {"show/2.mp4", "show/10.AVI", "show/1.txt", "show/extra/deep/a.mp4", "show/B.avi",
                             "show/b.avi", "show/.hidden.mp4", "show/.cache/c.mp4", "show/extra/deep/._b.mp4"})
        make(name);
    // Where a file's further parts are kept on a drive that has no place for them.
    QFile companion(folder.filePath("show/._2.mp4"));
    ASSERT_TRUE(companion.open(QIODevice::WriteOnly));
    companion.write("\x00\x05\x16\x07\x00\x02\x00\x00", 8);
    companion.close();
    QDir().mkpath(folder.filePath("show/z empty"));
    ASSERT_TRUE(QFile::link(folder.filePath("show"), folder.filePath("show/extra/up")));
    ASSERT_TRUE(QFile::link(folder.filePath("gone.mp4"), folder.filePath("show/c.mp4")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("show/pipe.mp4")).constData(), 0600), 0);
    EXPECT_EQ(found({"show"}), "show/2.mp4 show/10.AVI show/B.avi show/b.avi show/extra/deep/a.mp4 "
                               "show/extra/deep/._b.mp4 show/.cache/c.mp4 show/.hidden.mp4");
    EXPECT_EQ(found({"show/extra", "show/b.avi"}, {}),
              "show/extra/deep/a.mp4 show/extra/deep/._b.mp4 show/extra/up/1.txt show/extra/up/2.mp4 "
              "show/extra/up/10.AVI show/extra/up/B.avi show/extra/up/b.avi show/extra/up/.cache/c.mp4 "
              "show/extra/up/.hidden.mp4 show/b.avi")
        << "no types at all accept every file; a link is followed";
    cancelledAfter = 2;
    EXPECT_EQ(found({"show", "show"}), "show/2.mp4 show/10.AVI") << "what was found stays";
}

TEST_F(Finding, single_files_are_taken_by_their_lowercased_extension) {
    for (const char* name : {"a.MP4", "b.avi.part", "c", "ü #1 100%.mp4", "avi", "line\nfeed.mp4"})
        make(name);
    EXPECT_EQ(
        found({"a.MP4", "b.avi.part", "c", "missing.mp4", QString::fromUtf8("ü #1 100%.mp4"), "avi", "line\nfeed.mp4"}),
        "a.MP4 ü #1 100%.mp4 line\nfeed.mp4");
    EXPECT_EQ(failed(), "") << "beside movies the others are not worth a word";
    EXPECT_EQ(found({"c", QString(5000, u'x')}), "");
    EXPECT_EQ(failures.size(), 2);
    EXPECT_EQ(found({"a.MP4"}, {"MP4"}), "") << "an entry in capitals matches nothing";
}

TEST_F(Finding, nothing_inside_a_file_package_is_a_movie) {
    make("all/Player.app/Contents/Info.plist");
    make("all/Player.app/Contents/intro.mp4");
    make("all/sub/Trip.photoslibrary/clip.mp4");
    make("all/sub/Dr. No/film.mp4");
    make("all/sub/app/film.mp4");
    EXPECT_EQ(found({"all"}), "all/sub/app/film.mp4 all/sub/Dr. No/film.mp4");
}

TEST_F(Finding, folders_that_may_not_be_read_are_named_once) {
    make("all/a.mp4");
    const auto setModes = [this](mode_t mode) {
        for (const char* name : {"all/1", "all/2", "all/3", "all/4"}) {
            QDir().mkpath(folder.filePath(name));
            ASSERT_EQ(::chmod(QFile::encodeName(folder.filePath(name)).constData(), mode), 0);
        }
    };
    setModes(0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    // Nothing is hidden from root.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot && ::seteuid(65534) != 0)
        GTEST_SKIP();
    const std::string all = found({"all"});
    const QList<OpeningFailure> said = failures;
    found({"all/1"});
    if (isRoot) {
        ASSERT_EQ(::seteuid(0), 0);
    }
    setModes(0700);
    EXPECT_EQ(all, "all/a.mp4");
    ASSERT_EQ(said.size(), 1);
    EXPECT_EQ(said[0].error, OpeningReport::unreadableFolders);
    EXPECT_EQ(said[0].count, 4);
    EXPECT_EQ(failures.size(), 1) << "not that it holds no movie, too";
}

TEST_F(Finding, names_that_are_no_utf8_are_found_and_named_in_bytes) {
    const QByteArray path = QFile::encodeName(folder.path()) + "/films/caf\xE9 100%.mp4";
    QDir().mkpath(folder.filePath("films"));
    const int file = ::creat(path.constData(), 0600);
    if (file < 0)
        GTEST_SKIP() << "this file system takes UTF-8 alone";
    ::close(file);
    MovieSource last;
    const MovieFinder::Means means{{"mp4"}, nullptr};
    const QStringList handedOver[] = {{folder.filePath("films")}, {platform::textOfNativePath(path)}};
    for (const QStringList& paths : handedOver) {
        MovieFinder(means, cancelled, [&last](const MovieSource& movie) { last = movie; }).find(paths);
        EXPECT_EQ(platform::nativePath(last.url), path);
        EXPECT_EQ(platform::nativePath(QUrl(last.url.toString(QUrl::FullyEncoded))), path) << "as it is saved";
    }
    make("l.m3u", path + "\n#EXTINF:5,\xE9t\xE9\nfilms/caf\xE9 100%.mp4\n");
    QList<QUrl> listed;
    MovieFinder({means.types + QStringList{"m3u"}, nullptr}, cancelled, [&](const MovieSource& movie) {
        listed << movie.url;
    }).find({folder.filePath("l.m3u")});
    EXPECT_EQ(listed, (QList{last.url, last.url}));
}

TEST_F(Finding, lists_open_as_what_they_name) {
    for (const char* name : {"a.mp4", "sub/b c.mkv", "sub/100%20.avi", "d.avi"})
        make(name);
    make("l.m3u",
         "#EXTM3U\r\n#EXTINF:12,The First\r\na.mp4\r\n\r\nsub\\b c.mkv\r\n" +
             QFile::encodeName(folder.filePath("d.avi")) +
             "\r\nC:\\films\\x.avi\r\n\\\\server\\y.avi\r\nsub/100%20.avi\r\nsub/b%20c.mkv\r\nhttp://h/1?a=b\r\n");
    EXPECT_EQ(found({"l.m3u"}), "a.mp4=The First sub/b c.mkv d.avi sub/100%20.avi sub/b c.mkv http://h/1?a=b");
    EXPECT_EQ(failed(), "l.m3u:-6116*2");
    make("one.pls", "[playlist]\nFile2=sub/b c.mkv\nTitle1=Eins\nFile1=a.mp4\nNumberOfEntries=2\n");
    make("two.m3u", "one.pls\ntwo.m3u\nl.m3u\none.pls\nd.avi\n");
    EXPECT_EQ(found({"two.m3u"}), "a.mp4=Eins sub/b c.mkv a.mp4=The First sub/b c.mkv d.avi sub/100%20.avi sub/b c.mkv "
                                  "http://h/1?a=b d.avi")
        << "each list once, and not itself";
    make("live.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:9,\n1.ts\n");
    EXPECT_EQ(found({"live.m3u8"}), "live.m3u8");
    // In folders.
    EXPECT_EQ(found({"."}, {"avi", "m3u"}), "d.avi sub/100%20.avi") << "they mostly name what lies beside them";
    make("lists/1.m3u", "../a.mp4\n");
    make("lists/2.m3u", "../d.avi\n../sub\n.\n");
    EXPECT_EQ(found({"lists"}), "a.mp4 d.avi sub/100%20.avi") << "where there is nothing else";
}

TEST_F(Finding, what_is_no_list_says_so) {
    const std::pair<const char*, QByteArray> files[] = {
        {"empty.m3u", ""},      {"comments.m3u", "#EXTM3U\n# nothing\n"},     {"bytes.m3u", QByteArray("a\0b\n", 4)},
        {"page.m3u", "<html>"}, {"cut.xspf", "<playlist><trackList><track>"}, {"none.pls", "[playlist]\nTitle1=x\n"},
    };
    QStringList names;
    for (const auto& [name, bytes] : files) {
        make(name, bytes);
        names << name;
    }
    QFile(make("large.m3u")).resize(100LL * 1024 * 1024);
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("pipe.m3u")).constData(), 0600), 0);
    EXPECT_EQ(found(names + QStringList{"large.m3u", "pipe.m3u"}), "");
    EXPECT_EQ(failed(),
              "empty.m3u:-6112 comments.m3u:-6112 bytes.m3u:-6111 page.m3u:-6111 cut.xspf:-6111 none.pls:-6112 "
              "large.m3u:-6113 pipe.m3u:-1307");
    // Ten lists, each naming the next.
    for (int i = 0; i < 10; ++i)
        make(QString::number(i) + ".m3u", QByteArray::number(i) + ".avi\n" + QByteArray::number(i + 1) + ".m3u\n");
    EXPECT_EQ(found({"0.m3u"}), "0.avi 1.avi 2.avi 3.avi 4.avi 5.avi 6.avi 7.avi");
    EXPECT_EQ(failed(), "8.m3u:-6115");
    QByteArray long_;
    for (int i = 0; i < 100005; ++i)
        long_ += "http://h/" + QByteArray::number(i) + '\n';
    make("long.m3u", long_);
    found({"long.m3u"});
    EXPECT_EQ(failed(), "long.m3u:-6114");
    // What is missing beyond those that are opened at once is told here.
    QByteArray many;
    for (int i = 0; i < 110; ++i)
        many += "gone" + QByteArray::number(i) + ".avi\n";
    make("many.m3u", many);
    found({"many.m3u"});
    EXPECT_EQ(failures.size(), 10);
    EXPECT_TRUE(OpeningReport::failed(failures).message.contains("gone100.avi"));
}

TEST_F(Finding, a_list_of_a_network_names_nothing_of_this_machine) {
    make("a.mp4");
    const QByteArray local = QUrl::fromLocalFile(folder.filePath("a.mp4")).toEncoded();
    served["/dir/l.m3u"] =
        "b.mp4\n" + local + "\n/c%20d.mp4\nhttps://o/e.mp4\nFILE:///etc/passwd\nmore.pls\nlive.m3u8\nC:\\x.avi\n";
    served["/dir/more.pls"] = "[playlist]\nFile1=" + local + "\nFile2=f.mp4\n";
    served["/moved.m3u"] = "g.mp4\n";
    served["/x.xspf"] =
        "<playlist "
        "xml:base=\"file:///etc/\"><trackList><track><location>passwd</location></track></trackList></playlist>";
    EXPECT_EQ(found({"http://h/dir/l.m3u"}),
              "http://h/dir/b.mp4 http://h/c d.mp4 https://o/e.mp4 http://h/dir/f.mp4 http://h/dir/live.m3u8");
    EXPECT_EQ(failed(), "more.pls:-6117*1 l.m3u:-6116*1 l.m3u:-6117*2");
    EXPECT_EQ(fetches.join(' '), "http://h/dir/l.m3u http://h/dir/more.pls") << "streams are not lists";
    EXPECT_EQ(found({"http://h/moved.m3u"}), "http://there/dir/g.mp4");
    EXPECT_EQ(found({"http://h/x.xspf"}), "");
    EXPECT_EQ(failed(), "x.xspf:-6117*1");
    EXPECT_EQ(found({"http://h/none.m3u"}), "");
    EXPECT_EQ(failed(), "none.m3u:-6404");
    EXPECT_EQ(found({"rtsp://h/l.m3u"}), "rtsp://h/l.m3u");
    QByteArray lists;
    for (int i = 0; i < 100; ++i) {
        lists += "http://h/" + QByteArray::number(i) + ".m3u\n";
        served[QStringLiteral("/%1.m3u").arg(i)] = "http://h/film\n";
    }
    make("many.m3u", lists);
    fetches.clear();
    found({"many.m3u"});
    EXPECT_EQ(fetches.size(), 32);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpeningFiles.h"
#include "tests/support/Files.h"

namespace {

class OpeningFiles : public testing::Test {
protected:
    QString make(const QString& name) { return writeFile(folder.filePath(name)); }
    /// The files found, relative to the folder.
    std::string found(const QStringList& names, const QStringList& types = {"avi", "mp4"}) const {
        QStringList paths;
        for (const QString& name : names)
            paths.append(folder.filePath(name));
        QStringList result;
        for (const QUrl& url : urlsWithPathStrings(paths, types))
            result.append(QDir(folder.path()).relativeFilePath(url.toLocalFile()));
        return result.join(u' ').toStdString();
    }
    QTemporaryDir folder;
};

} // namespace

TEST_F(OpeningFiles, folders_are_walked_to_the_bottom_in_reading_order_without_going_round) {
    for (const char* name :
         {"show/2.mp4", "show/10.AVI", "show/1.txt", "show/extra/deep/a.mp4", "show/B.avi", "show/b.avi"})
        make(name);
    QDir().mkpath(folder.filePath("show/z empty"));
    ASSERT_TRUE(QFile::link(folder.filePath("show"), folder.filePath("show/extra/up")));
    ASSERT_TRUE(QFile::link(folder.filePath("gone.mp4"), folder.filePath("show/c.mp4")));
    EXPECT_EQ(found({"show"}), "show/2.mp4 show/10.AVI show/B.avi show/b.avi show/extra/deep/a.mp4");
    EXPECT_EQ(found({"show/extra", "show/b.avi"}, {}),
              "show/extra/deep/a.mp4 show/extra/up/1.txt show/extra/up/2.mp4 show/extra/up/10.AVI show/extra/up/B.avi "
              "show/extra/up/b.avi show/b.avi")
        << "no types at all accept every file; a link is followed";
}

TEST_F(OpeningFiles, single_files_are_taken_by_their_lowercased_extension) {
    for (const char* name : {"a.MP4", "b.avi.part", "c", "ü #1 100%.mp4", "avi"})
        make(name);
    EXPECT_EQ(found({"a.MP4", "b.avi.part", "c", "missing.mp4", QString::fromUtf8("ü #1 100%.mp4"), "avi"}),
              "a.MP4 ü #1 100%.mp4");
    EXPECT_EQ(found({"a.MP4"}, {"MP4"}), "") << "an entry in capitals matches nothing";
}

TEST_F(OpeningFiles, texts_become_urls_where_they_are_some) {
    const QStringList lines = {"http://a.example/1.mp4", QString(), "  ", " rtsp://b.example/live ",
                               "http://[broken/2.mp4"};
    const QList<QUrl> urls = urlsWithURLStrings(lines);
    ASSERT_EQ(urls.size(), 2);
    EXPECT_EQ(urls[0].toString().toStdString(), "http://a.example/1.mp4");
    EXPECT_EQ(urls[1].scheme().toStdString(), "rtsp");

    EXPECT_EQ(urlsWithURLStrings({"file://localhost/a%20b.mp4"}), QList{QUrl::fromLocalFile("/a b.mp4")});

    for (const char* url : {"http://x", "svn+ssh://x/y", "FILE:///a", "x1://"})
        EXPECT_TRUE(isURLString(url)) << url;
    for (const char* path : {"/a/http://x", "c:/x.avi", "http:/x", "://x", "1a://x", "a b://c", ""})
        EXPECT_FALSE(isURLString(path)) << path;
}

TEST_F(OpeningFiles, nothing_inside_a_file_package_is_a_movie) {
    make("all/Player.app/Contents/Info.plist");
    make("all/Player.app/Contents/intro.mp4");
    make("all/sub/Trip.photoslibrary/clip.mp4");
    make("all/sub/Dr. No/film.mp4");
    make("all/sub/app/film.mp4");
    EXPECT_EQ(found({"all"}), "all/sub/app/film.mp4 all/sub/Dr. No/film.mp4");
}

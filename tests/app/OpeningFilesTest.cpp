// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpeningFiles.h"

#include <gtest/gtest.h>

TEST(OpeningFiles, texts_become_urls_where_they_are_some) {
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

    for (const char* path : {"/a/b.mp4", "b.MP4", "/a.d/.b.mp4"})
        EXPECT_TRUE(isFileOfType(path, {"mp4"})) << path;
    for (const char* path : {"/a/.mp4", "b.mp4.part", "/a.mp4/b", "mp4"})
        EXPECT_FALSE(isFileOfType(path, {"mp4"})) << path;
    EXPECT_FALSE(isFileOfType("b.mp4", {"MP4"}));
}

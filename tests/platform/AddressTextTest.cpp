// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/AddressText.h"
#include "tests/support/Files.h"

#include <QDir>

#include <gtest/gtest.h>

TEST(AddressText, addresses_are_found_in_what_is_written_around_them) {
    const struct {
        const char *text, *found;
    } cases[] = {
        {"", ""},
        {"http://a.example/b.mp4", "http://a.example/b.mp4"},
        {"See http://a.example/b.mp4, (or https://c.example/d_(e).mkv).",
         "http://a.example/b.mp4 https://c.example/d_(e).mkv"},
        {"<rtsp://a.example:554/live>\n\"sftp://me@b.example/c\"\r\nend",
         "rtsp://a.example:554/live sftp://me@b.example/c"},
        {"file:///films/a%20b.mp4 and /films/c.mp4", "file:///films/a%20b.mp4"},
        {"http:// https:///x mailto:a@b.example www.example.org/a.mp4", ""},
        {"http://[broken/a.mp4 http://a.example/[1].mp4", "http://a.example/[1].mp4"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(platform::addressesIn(QString::fromUtf8(c.text)).join(u' ').toStdString(), c.found) << c.text;
    EXPECT_TRUE(platform::addressesIn(QString(3 << 20, u'a') + "://x").isEmpty()) << "a book is not searched";
}

TEST(AddressText, what_is_typed_becomes_the_address_that_is_meant) {
    const QTemporaryDir folder;
    const QString path = folder.path();
    const struct {
        QString typed, meant;
    } cases[] = {
        {" http://a.example/b.mp4\n", "http://a.example/b.mp4"},
        {"http://a.example/b c 100%.mp4", "http://a.example/b%20c%20100%25.mp4"},
        {"http://a.example/b%20c.mp4", "http://a.example/b%20c.mp4"},
        {"http://a.exam\nple/b.mp4", "http://a.example/b.mp4"},
        {"\"http://a.example/b.mp4\"", "http://a.example/b.mp4"},
        {"<rtsp://a.example/live>", "rtsp://a.example/live"},
        {"a.example/b.mp4", "http://a.example/b.mp4"},
        {"localhost:8080", "http://localhost:8080"},
        {"192.168.0.2:8000/b c.mp4", "http://192.168.0.2:8000/b%20c.mp4"},
        {path, path},
        {"file://" + path, path},
        {path + "/gone #1.mp4", "file://" + path + "/gone%20%231.mp4"},
        {"file://localhost/a%20b.mp4", "file:///a%20b.mp4"},
        {"~/no such film.mp4", "file://" + QDir::homePath() + "/no%20such%20film.mp4"},
        {"film.mkv", ""},
        {"a word", ""},
        {"", ""},
        {"http://", ""},
        {"http://[broken/b.mp4", ""},
        {"a.example:99999999/b", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(platform::addressOfTyped(c.typed).toStdString(), c.meant.toStdString()) << c.typed.toStdString();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RecentlyUsedFile.h"

#include "platform/base/Background.h"
#include "tests/support/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

TEST(RecentlyUsedFile, holds_what_was_opened_until_it_is_cleared_and_leaves_the_rest_alone) {
    // Qt takes the thread of the first object for the main one, whose memory it gives back at the end.
    const QObject ofMainThread;
    const QTemporaryDir folder;
    const QString path = folder.filePath("new/recently-used.xbel");
    platform::RecentlyUsedFile list(path);
    const auto isWritten = [] { return platform::background::waitUntilIdle(30); };
    list.add(QUrl::fromLocalFile("/movies/a #1 100%.mp4"));
    list.add(QUrl::fromLocalFile("/movies/b\n.mkv"));
    ASSERT_TRUE(isWritten());
    const QString text = textOf(path);
    EXPECT_TRUE(text.contains("file:///movies/a%20%231%20100%25.mp4")) << text.toStdString();
    EXPECT_TRUE(text.contains("file:///movies/b%0A.mkv"));
    EXPECT_TRUE(text.contains("video/mp4"));
    EXPECT_TRUE(text.contains("exec=\"&apos;lumaro %u&apos;\""));
    EXPECT_EQ(text.count("name=\"Lumaro\""), 2);
    EXPECT_EQ(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    // Another program has opened one of them, too.
    QString shared = text;
    const qsizetype first = shared.indexOf("<bookmark:application ");
    shared.insert(first, "<bookmark:application name=\"Other\" exec=\"&apos;other %u&apos;\" "
                         "modified=\"2024-01-01T00:00:00Z\" count=\"1\"/>");
    writeFile(path, shared.toUtf8());
    list.removeAll();
    ASSERT_TRUE(isWritten());
    EXPECT_EQ(textOf(path).count("<bookmark href"), 1) << textOf(path).toStdString();
    EXPECT_TRUE(textOf(path).contains("name=\"Other\""));
    EXPECT_FALSE(textOf(path).contains("name=\"Lumaro\""));
    writeFile(path, "damaged");
    list.add(QUrl::fromLocalFile("/movies/a.mp4"));
    ASSERT_TRUE(isWritten());
    EXPECT_EQ(textOf(path), "damaged");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/StillSaving.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(StillSaving, its_name_is_one_that_a_folder_takes) {
    const struct {
        QString movie;
        const char* name;
    } cases[] = {
        {"A film.2003.mkv", "A film.2003 1.02.03.400"},
        {"Dr. No", "Dr. No 1.02.03.400"},
        {"a/b: c", "a b: c 1.02.03.400"},
        {"..hidden", "hidden 1.02.03.400"},
        {"", "Lumaro 1.02.03.400"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(stillName(c.movie, 3723.4).toStdString(), c.name);
    const QString name = stillName(QString(200, QChar(0x6f22)), 0);
    EXPECT_LT(name.toUtf8().size(), 220);
    EXPECT_TRUE(name.endsWith("0.00.00.000"));
}

TEST(StillSaving, a_picture_is_written_whole_or_not_at_all_and_over_nothing) {
    const QTemporaryDir folder;
    const QString inside = folder.filePath("Pictures/of mine"); // made
    QImage picture(64, 36, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    EXPECT_EQ(writeStill(picture, inside, "a"), inside + "/a.png");
    const QFile::Permissions forOthers = QFile::permissions(inside + "/a.png") & QFile::ReadOther;
    EXPECT_TRUE(forOthers) << "as any file of the user's";
    QFile taken(inside + "/a (2).png");
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    taken.close();
    EXPECT_EQ(writeStill(picture, inside, "a"), inside + "/a (3).png");
    EXPECT_EQ(QFile(inside + "/a (2).png").size(), 0);
    EXPECT_EQ(writeStill(QImage(), inside, "none"), "");
    EXPECT_EQ(writeStill(picture, inside + "/a.png", "in a file"), "");
    EXPECT_EQ(QDir(inside).entryList(QDir::Files | QDir::Hidden).size(), 3) << "nothing else is left";
}

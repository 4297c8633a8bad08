// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CueImages.h"
#include "tests/support/FakeSubtitles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(CueImages, each_cue_has_a_file_of_its_own_with_colours_as_they_are) {
    const QTemporaryDir folder;
    const QString out = folder.filePath("a/b");
    CueImages images(out);
    const QVSubtitle cue(std::make_shared<TwoPixels>(), 0, 1);
    const QString first = images.write(FakeTrack(QString(), "/x/film.idx", 0), 1, cue);
    images.write(FakeTrack(QString(), "/x/film.idx", 1), 1, cue);
    images.write(FakeTrack(QString(), "/x/film.idx", 1), 2, cue);
    images.write(FakeTrack(QString(), "/y/film.idx", 0), 1, cue);
    images.write(FakeTrack(QString(), "/y/film-2.idx", 0), 1, cue);
    EXPECT_EQ(images.write(FakeTrack(QString(), "/x/film.srt", 0), 1, QVSubtitle(QString("text"), 0, 1)), QString());
    EXPECT_EQ(images.error(), QString());
    images.write(FakeTrack(QString(), '/' + QString(200, 'n') + ".idx", 0), 12345, cue);
    EXPECT_EQ(QDir(out).entryList(QDir::Files, QDir::Name),
              (QStringList{"film-0-00001.png", "film-1-00001.png", "film-1-00002.png", "film-2-0-00001.png",
                           "film-2-2-0-00001.png", QString(60, 'n') + "-0-12345.png"}));
    const QImage read(QDir(out).filePath(first));
    EXPECT_EQ(read.pixel(0, 0), qRgba(0xFF, 0, 0, 0x80));
    EXPECT_EQ(qAlpha(read.pixel(1, 0)), 0);

    const QString taken = folder.filePath("taken/film-0-00001.png");
    ASSERT_TRUE(QDir().mkpath(taken));
    CueImages refused(folder.filePath("taken"));
    EXPECT_EQ(refused.write(FakeTrack(QString(), "/x/film.idx", 0), 1, cue), QString());
    EXPECT_TRUE(refused.error().startsWith(taken + ": cannot be written (")) << refused.error().toStdString();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CueImages.h"
#include "subtitles/QVSubtitles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Track final : public QVSubtitles {
public:
    Track(QString path, std::uint32_t stream)
        : _path(std::move(path))
        , _stream(stream) {}
    QString path() const override { return _path; }
    std::uint32_t streamIndex() const override { return _stream; }

private:
    QString _path;
    std::uint32_t _stream;
};

class HalfRed final : public SubtitleImage {
    QImage expanded() const override {
        QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixel(0, 0, qRgba(0x80, 0, 0, 0x80));
        image.setPixel(1, 0, 0);
        return image;
    }
};

} // namespace

TEST(CueImages, each_cue_has_a_file_of_its_own_with_colours_as_they_are) {
    const QTemporaryDir folder;
    const QString out = folder.filePath("a/b");
    CueImages images(out);
    const QVSubtitle cue(std::make_shared<HalfRed>(), 0, 1);
    const QString first = images.write(Track("/x/film.idx", 0), 1, cue);
    images.write(Track("/x/film.idx", 1), 1, cue);
    images.write(Track("/x/film.idx", 1), 2, cue);
    images.write(Track("/y/film.idx", 0), 1, cue);
    images.write(Track("/y/film-2.idx", 0), 1, cue);
    EXPECT_EQ(images.write(Track("/x/film.srt", 0), 1, QVSubtitle(QString("text"), 0, 1)), QString());
    EXPECT_EQ(images.error(), QString());
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 5);
    const QImage read(QDir(out).filePath(first));
    EXPECT_EQ(read.pixel(0, 0), qRgba(0xFF, 0, 0, 0x80));
    EXPECT_EQ(qAlpha(read.pixel(1, 0)), 0);
}

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
    const QString out = folder.filePath(QStringLiteral("a/b"));
    CueImages images(out);
    const QVSubtitle cue(std::make_shared<HalfRed>(), 0, 1);
    const QString first = images.write(Track(QStringLiteral("/x/film.idx"), 0), 1, cue);
    images.write(Track(QStringLiteral("/x/film.idx"), 1), 1, cue);
    images.write(Track(QStringLiteral("/x/film.idx"), 1), 2, cue);
    images.write(Track(QStringLiteral("/y/film.idx"), 0), 1, cue);
    images.write(Track(QStringLiteral("/y/film-2.idx"), 0), 1, cue);
    EXPECT_EQ(images.write(Track(QStringLiteral("/x/film.srt"), 0), 1, QVSubtitle(QStringLiteral("text"), 0, 1)),
              QString());
    EXPECT_EQ(images.error(), QString());
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 5);
    const QImage read(QDir(out).filePath(first));
    EXPECT_EQ(read.pixel(0, 0), qRgba(0xFF, 0, 0, 0x80));
    EXPECT_EQ(qAlpha(read.pixel(1, 0)), 0);
}

TEST(CueImages, a_folder_that_cannot_be_written_is_named_once) {
    const QVSubtitle cue(std::make_shared<HalfRed>(), 0, 1);
    const Track track(QStringLiteral("/x/film.idx"), 0);
    EXPECT_TRUE(CueImages(QStringLiteral("/proc/none")).error().contains(QStringLiteral("/proc/none")));
    CueImages full(QStringLiteral("/proc"));
    EXPECT_EQ(full.write(track, 1, cue), QString());
    EXPECT_TRUE(full.error().contains(QStringLiteral("/proc/film-0-00001.png")));
    CueImages none{QString()};
    EXPECT_EQ(none.write(track, 1, cue), QString());
    EXPECT_EQ(none.error(), QString());
}

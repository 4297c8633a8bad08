// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/SubtitleRegistry.h"
#include "tests/support/TestSettings.h"

#include <QFileInfo>
#include <QImage>

#include <utility>

/// A movie of 600 units and 25 pictures a second.
class PlainOwner final : public SubtitleOwner {
public:
    float rate = 25;
    std::int32_t scale = 600;
    std::int32_t timeScale() const override { return scale; }
    float frameRate() override { return rate; }
    std::int32_t time() const override { return 0; }
    /// The file that the player draws, and its delay.
    QString drawn;
    void drawFile(const QString& path, const CueShift& shift) override {
        drawn = path + u' ' + QString::number(shift.delay);
    }
    void endDrawing(const QString& path) override {
        if (drawn.startsWith(path))
            drawn.clear();
    }
};

/// What a track needs around it.
struct FakeTrackParts {
    platform::UserDefaults settings{std::make_unique<MemorySettings>()};
    PlainOwner owner;
};

/// A track without cues, of a title and, where they matter, a place.
class FakeTrack final : private FakeTrackParts, public QVSubtitles {
public:
    explicit FakeTrack(QString title, const QString& path = {}, std::uint32_t stream = 0)
        : QVSubtitles(FakeTrackParts::settings, path, FakeTrackParts::owner, typeNone, 1.0F, Loading::atOnce)
        , _title(std::move(title))
        , _stream(stream) {}
    bool loading = false;

    bool isLoading() const override { return loading; }
    std::uint32_t streamIndex() const override { return _stream; }
    QString title() const override { return _title; }
    void setEncoding(std::uint32_t) override {}
    bool isTextBased() const override { return true; }
    bool isImageBased() const override { return false; }

protected:
    void _preload() override { finishLoading(); }
    const char* className() const override { return "FakeTrack"; }

private:
    QString _title;
    std::uint32_t _stream;
};

/// A pixel of half opaque red and an empty one.
class TwoPixels final : public SubtitleImage {
    QImage expanded() const override {
        QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
        image.setPixel(0, 0, qRgba(0x80, 0, 0, 0x80));
        image.setPixel(1, 0, 0);
        return image;
    }
};

/// Gives each file a track for each word of its name, and text files none.
class FakeRegistry final : public SubtitleRegistry {
public:
    FakeRegistry()
        : SubtitleRegistry({}) {}
    /// The names of the files it was asked for.
    QStringList offered;

    QStringList subtitleUnfilteredFileTypes() const override {
        return {QStringLiteral("srt"), QStringLiteral("sub"), QStringLiteral("txt"), QStringLiteral("idx")};
    }
    std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const QString& path, SubtitleOwner&) override {
        offered.append(QFileInfo(path).fileName());
        std::vector<std::shared_ptr<QVSubtitles>> tracks;
        for (const QString& word : path.endsWith(QStringLiteral(".txt")) ? QStringList() : path.split(u' '))
            tracks.push_back(std::make_shared<FakeTrack>(word));
        return tracks;
    }
};

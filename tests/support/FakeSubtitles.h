// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/SubtitleRegistry.h"

#include <QFileInfo>

#include <utility>

class FakeTrack final : public QVSubtitles {
public:
    explicit FakeTrack(QString title)
        : _title(std::move(title)) {}
    QString path() const override { return QString(); }
    std::uint32_t streamIndex() const override { return 0; }
    QString title() const override { return _title; }

private:
    QString _title;
};

/// Gives each file a track for each word of its name, and text files none. It is the shared one while it lives.
class FakeRegistry final : public SubtitleRegistry {
public:
    FakeRegistry() { setShared(this); }
    ~FakeRegistry() override { setShared(nullptr); }
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

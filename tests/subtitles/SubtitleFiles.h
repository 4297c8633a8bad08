// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/SubtitleDemuxer.h"
#include "settings/SettingsKeys.h"
#include "subtitles/formats/SubtitleFormats.h"
#include "tests/support/FakeSubtitles.h"
#include "tests/support/Files.h"
#include "tests/support/TestEnvironment.h"

#include <string>
#include <string_view>
#include <vector>

/// A cue as tests write it.
struct ExpectedCue {
    std::int32_t start;
    std::int32_t end;
    std::string text;
    bool operator==(const ExpectedCue&) const = default;
};

inline void PrintTo(const ExpectedCue& cue, std::ostream* out) {
    *out << cue.start << "-" << cue.end << " \"" << cue.text << '"';
}

inline std::vector<ExpectedCue> cuesOf(const QVSubtitles& track) {
    std::vector<ExpectedCue> cues;
    for (const auto& cue : track.cues())
        cues.push_back({cue->start(), cue->end(), cue->text().toStdString()});
    return cues;
}

/// Subtitle files in a folder of their own, and the registry's tracks of them.
class SubtitleFiles : public testing::Test {
protected:
    QString write(const QString& name, std::string_view bytes) {
        return writeFile(folder.filePath(name), {bytes.data(), static_cast<qsizetype>(bytes.size())});
    }
    /// The only track of a file; none when no reader takes it.
    std::shared_ptr<QVSubtitles> open(const QString& path) {
        auto tracks = registry.subtitlesWithFilePath(path, owner);
        EXPECT_LE(tracks.size(), 1U);
        return tracks.empty() ? nullptr : tracks.front();
    }
    /// Writes a file and loads it.
    std::shared_ptr<QVSubtitles> load(const QString& name, std::string_view bytes) {
        auto track = open(write(name, bytes));
        if (track)
            track->preload();
        return track;
    }
    /// The cues that a file's bytes make; none when no reader takes it.
    std::vector<ExpectedCue> cues(const QString& name, std::string_view bytes) {
        const auto track = load(name, bytes);
        return track ? cuesOf(*track) : std::vector<ExpectedCue>();
    }
    void chooseEncoding(qint64 number) { settings.defaults().setObject(number, kQVSubtitlesDefaultEncoding); }

    TestEnvironment settings;
    QTemporaryDir folder;
    PlainOwner owner;
    SubtitleRegistry registry{subtitleReaders(settings.environment, &platform::readSubtitlePackets)};
};

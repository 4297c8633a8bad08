// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/SubtitleOwner.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

/// One subtitle track of a movie.
class QVSubtitles {
public:
    virtual ~QVSubtitles() = default;

    /// The file that the track comes from.
    virtual QString path() const = 0;
    /// The track's place among those of its file.
    virtual std::uint32_t streamIndex() const = 0;
    virtual QString title() const = 0;
};

/// Knows the subtitle readers: which files may hold subtitles, and the tracks of one file. Main thread.
class SubtitleRegistry {
public:
    virtual ~SubtitleRegistry() = default;

    /// The process's registry; without readers it knows no file types.
    static SubtitleRegistry& shared();
    /// Takes another registry's place (tests); null goes back.
    static void setShared(SubtitleRegistry* registry);

    /// Lower-case extensions without dots.
    virtual QStringList subtitleUnfilteredFileTypes() const;
    /// The tracks of a file, none when no reader takes it. The owner outlives the tracks.
    virtual std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const QString& path, SubtitleOwner& owner);
};

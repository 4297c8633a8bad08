// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/QVSubtitles.h"

#include <QStringList>

#include <memory>
#include <vector>

/// Knows the subtitle readers: which files may hold subtitles, and the tracks of one file. Main thread.
class SubtitleRegistry {
public:
    virtual ~SubtitleRegistry() = default;

    /// The process's registry.
    static SubtitleRegistry& shared();
    /// Takes another registry's place (tests); null goes back.
    static void setShared(SubtitleRegistry* registry);

    /// Lower-case extensions without dots, in no order.
    virtual QStringList subtitleUnfilteredFileTypes() const;
    /// The tracks of a file, none when no reader takes it: the reader of its extension (in lower case only) is asked
    /// first, then all in the order of their types. The owner outlives the tracks.
    virtual std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const QString& path, SubtitleOwner& owner);

    /// The type that an extension belongs to, as it stands, or -1.
    static std::int32_t typeForExtension(const QString& extension);
    /// The reader's name, or null for a type that no reader has.
    static const char* classForType(std::int32_t type);
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/QVSubtitles.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

/// A kind of subtitle file.
struct SubtitleReader {
    using Tracks = std::vector<std::shared_ptr<QVSubtitles>>;

    /// In lower case, without dots.
    QStringList extensions;
    /// Whether a file that begins with this text is of the kind.
    std::function<bool(const QString& path, std::string_view beginning)> isFormatValid;
    /// The tracks of such a file; none when it cannot be read after all.
    std::function<Tracks(const QString& path, SubtitleOwner& owner)> tracks;
};

/// Which files may hold subtitles, and the tracks of one file. Main thread.
class SubtitleRegistry {
public:
    /// The readers in the order in which they are offered a file of an unknown kind. An extension that several claim
    /// belongs to the last of them.
    explicit SubtitleRegistry(std::vector<SubtitleReader> readers);
    SubtitleRegistry(const SubtitleRegistry&) = delete;
    SubtitleRegistry& operator=(const SubtitleRegistry&) = delete;
    virtual ~SubtitleRegistry();

    /// Lower-case extensions without dots, in no order.
    virtual QStringList subtitleUnfilteredFileTypes() const;
    /// The tracks of a file, none when no reader takes it: the reader of its extension (in lower case only) is asked
    /// first, then all in their order. The owner outlives the tracks.
    virtual std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const QString& path, SubtitleOwner& owner);

private:
    std::vector<SubtitleReader> _clusterList;
    /// Positions in the list.
    QHash<QString, std::size_t> _extensionsMap;
};

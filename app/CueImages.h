// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <cstddef>

class QVSubtitle;
class QVSubtitles;

/// Writes the pictures of cues into a folder, as PNG files with a name of their own each: that of the subtitle file,
/// the number of the track in it and that of the cue. Files of those names are overwritten.
class CueImages {
public:
    /// The folder is made when there is none. Without one (an empty text) nothing is written.
    explicit CueImages(const QString& folder);

    /// The name of the file written for a cue; empty when none was.
    QString write(const QVSubtitles& track, std::size_t number, const QVSubtitle& cue);
    /// What went wrong first, after which nothing more is written; empty when all is well.
    const QString& error() const { return _error; }

private:
    QString prefixFor(const QString& path);

    QString _folder;
    QString _error;
    QHash<QString, QString> _prefixes; // by the subtitle file's path
    QSet<QString> _taken;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <cstdint>

namespace platform {
class MovieToolkit;
} // namespace platform

struct Environment;

/// What stands in for a movie where subtitle files are looked at alone.
struct InspectedSubtitles {
    std::int32_t timeScale = 600;
    /// Where the pictures of bitmap cues are written to; empty for nowhere.
    QString imagesFolder = {};
};

/// What --inspect answers.
struct InspectionResult {
    /// A JSON array, an object for each file in the order given.
    QByteArray json;
    /// A line for each file that could not be read; those have no object. One more when pictures could not be written.
    QStringList errors;
};

/// Finds out what is in the files: movies, and subtitle files with their cues. Needs no display. Times are in the
/// movie's units, sizes in square pixels.
InspectionResult inspectFiles(const Environment& environment, platform::MovieToolkit& toolkit,
                              const QStringList& pathsOrUrls, const InspectedSubtitles& subtitles = {});

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>

namespace platform {
class MovieToolkit;
struct OpenedMovie;
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

/// Reads the facts of a movie; blocks.
using MovieReader = std::function<platform::OpenedMovie(const QUrl& url)>;

/// Finds out what is in the files: movies, and subtitle files with their cues. Needs no display. Times are in the
/// movie's units, sizes in square pixels.
InspectionResult inspectFiles(const Environment& environment, platform::MovieToolkit& toolkit,
                              const MovieReader& readMovie, const QStringList& pathsOrUrls,
                              const InspectedSubtitles& subtitles = {});

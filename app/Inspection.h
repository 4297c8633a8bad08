// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>

namespace platform {
class JsonWriter;
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

/// Reads the facts of a movie; blocks.
using MovieReader = std::function<platform::OpenedMovie(const QUrl& url)>;

/// Finds out what is in the files: movies, and subtitle files with their cues. Needs no display. Times are in the
/// movie's units, sizes in square pixels. Writes an array with an object for each file, in the order given; answers a
/// line for each file that could not be read, which has no object, and one more when pictures could not be written.
QStringList inspectFiles(const Environment& environment, platform::MovieToolkit& toolkit, const MovieReader& readMovie,
                         const QStringList& pathsOrUrls, platform::JsonWriter& json,
                         const InspectedSubtitles& subtitles = {});

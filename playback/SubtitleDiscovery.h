// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Finds the files that may hold a movie's subtitles. Main thread.
namespace SubtitleDiscovery {

/// The files beside the movie whose names begin with that of `base` and end in one of the extensions (lower case,
/// without dots), both without regard to case, ordered by name. Without extensions nothing is looked up. A folder's
/// listing is kept for a second, so that a thousand movies of one folder are opened with a listing or two.
QStringList filesBeginningWith(const QString& base, const QStringList& extensions);

} // namespace SubtitleDiscovery

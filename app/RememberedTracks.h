// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVariantMap>

class QVMovie;

/// What is remembered of a movie's tracks beside the choice: the files of subtitles that were added to it, and by how
/// much sound and subtitles come later. Main thread.
namespace RememberedTracks {

/// Into the movie's record. Of the files that are `awaited` what the record says stays: they were not restored yet.
void keep(const QVMovie& movie, const QStringList& awaited, QVariantMap& record);
/// The files of subtitles that were added, as paths of pathOfBytes(); they may be gone.
QStringList addedFiles(const QVariantMap& record);
/// All but the files that were added.
void restore(QVMovie& movie, const QVariantMap& record);
/// Those of the files that can be read, with what belongs to their tracks.
void restoreFiles(QVMovie& movie, const QStringList& readable, const QVariantMap& record);

} // namespace RememberedTracks

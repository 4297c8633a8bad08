// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

class QVMovie;

/// What is remembered of a movie's tracks beside the choice: the files of subtitles that were added to it, and by how
/// much sound and subtitles come later. Main thread.
namespace RememberedTracks {

/// Into the movie's record.
void keep(const QVMovie& movie, QVariantMap& record);
/// Files that are gone are left out.
void restore(QVMovie& movie, const QVariantMap& record);

} // namespace RememberedTracks

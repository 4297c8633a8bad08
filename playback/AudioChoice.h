// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

#include <QStringList>

/// Which of a movie's tracks of sound is played. Any thread.
namespace AudioChoice {

/// Those that can be chosen, in the file's order: not those of kinds that nothing here knows, unless there are no
/// others.
platform::MovieTracks tracks(const platform::MovieTracks& ofMovie);

/// The number of the track to begin with: the first one of the language that is wanted most, else the one that the file
/// recommends, else the first; 0 without any.
int first(const platform::MovieTracks& ofMovie, const QStringList& languages);

} // namespace AudioChoice

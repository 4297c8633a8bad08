// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

/// What a movie's tracks are called. Main thread.
namespace TrackNames {

/// The tag of a track's language ("de", "pt-BR"); empty where it is not known.
QString languageOf(const platform::MovieTrack& track);

/// For the user, in the user's language: "German, Commentary, 5.1, AC-3", "English, forced"; "Track 3" where the file
/// says nothing. Long titles are shortened.
QString nameOf(const platform::MovieTrack& track);

} // namespace TrackNames

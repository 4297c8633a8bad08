// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieTrack.h"

#include <QString>

#include <cstdint>

/// The pictures of a stream that is offered in several qualities. Any thread.
namespace StreamQuality {

/// Those that can be chosen, the best one first; none where there is no choice.
platform::MovieTracks choices(const platform::MovieTracks& ofMovie);

/// The one of a number among them; null for none.
const platform::MovieTrack* find(const platform::MovieTracks& choices, int id);

/// The number of the one to begin with: the best that needs no more than so many thousand bits a second (0: the best of
/// all), else the one that needs least; 0 without a choice.
int first(const platform::MovieTracks& ofMovie, std::int32_t kilobits);

/// So many thousand bits a second it needs, as they are remembered.
std::int32_t kilobitsOf(const platform::MovieTrack& track);

/// "1920 × 1080, 4.5 Mbit/s".
QString nameOf(const platform::MovieTrack& track);

/// The movie's tracks without those of sound that go with other pictures than the one of that number.
platform::MovieTracks withSoundOf(const platform::MovieTracks& ofMovie, int video);

} // namespace StreamQuality

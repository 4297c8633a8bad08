// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/AudioChoice.h"

#include "playback/TrackNames.h"
#include "settings/PreferredLanguages.h"

#include <algorithm>
#include <limits>
#include <tuple>

using platform::MovieTrack;
using platform::MovieTracks;

namespace AudioChoice {

MovieTracks tracks(const MovieTracks& ofMovie) {
    MovieTracks found = ofMovie;
    std::erase_if(found, [](const MovieTrack& track) { return track.kind != MovieTrack::Kind::audio; });
    const auto isUnknown = [](const MovieTrack& track) { return track.codec.isEmpty(); };
    if (!std::ranges::all_of(found, isUnknown))
        std::erase_if(found, isUnknown);
    return found;
}

int first(const MovieTracks& ofMovie, const QStringList& languages) {
    const MovieTracks choices = tracks(ofMovie);
    const auto rank = [&](const MovieTrack& track) {
        const auto language = PreferredLanguages::rank(TrackNames::languageOf(track), languages);
        return std::tuple(language.value_or(std::numeric_limits<int>::max()), !track.isDefault);
    };
    const auto best = std::ranges::min_element(choices, {}, rank);
    return best == choices.end() ? 0 : best->id;
}

} // namespace AudioChoice

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/StreamQuality.h"

#include "playback/BitRateText.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

using platform::MovieTrack;
using platform::MovieTracks;

namespace StreamQuality {

MovieTracks choices(const MovieTracks& ofMovie) {
    MovieTracks found;
    std::ranges::copy_if(ofMovie, std::back_inserter(found), [](const MovieTrack& track) {
        return track.kind == MovieTrack::Kind::video && !track.isCover && track.variantBitRate > 0;
    });
    if (found.size() < 2)
        return {};
    const auto rank = [](const MovieTrack& track) { return std::pair(track.size.height(), track.variantBitRate); };
    std::ranges::stable_sort(found, std::greater(), rank);
    return found;
}

const MovieTrack* find(const MovieTracks& choices, int id) {
    const auto found = std::ranges::find(choices, id, &MovieTrack::id);
    return found == choices.end() ? nullptr : &*found;
}

int first(const MovieTracks& ofMovie, std::int32_t kilobits) {
    const MovieTracks offered = choices(ofMovie);
    if (offered.empty())
        return 0;
    const auto fits = [&](const MovieTrack& track) { return kilobits <= 0 || kilobitsOf(track) <= kilobits; };
    const auto best = std::ranges::find_if(offered, fits);
    return best != offered.end() ? best->id : std::ranges::min_element(offered, {}, &MovieTrack::variantBitRate)->id;
}

std::int32_t kilobitsOf(const MovieTrack& track) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(track.variantBitRate / 1000 + 1, 2'000'000'000));
}

QString nameOf(const MovieTrack& track) {
    const QString rate = bitRateText(static_cast<double>(track.variantBitRate));
    return track.size.isEmpty()
               ? rate
               : QStringLiteral("%1 × %2, %3").arg(track.size.width()).arg(track.size.height()).arg(rate);
}

MovieTracks withSoundOf(const MovieTracks& ofMovie, int video) {
    const auto picture = std::ranges::find_if(
        ofMovie, [&](const MovieTrack& track) { return track.kind == MovieTrack::Kind::video && track.id == video; });
    MovieTracks kept = ofMovie;
    if (picture == ofMovie.end() || picture->variants.empty())
        return kept;
    std::erase_if(kept, [&](const MovieTrack& track) {
        const auto isOfPicture = [&](int variant) { return std::ranges::count(picture->variants, variant) > 0; };
        return track.kind == MovieTrack::Kind::audio && !track.variants.empty() &&
               std::ranges::none_of(track.variants, isOfPicture);
    });
    return kept;
}

} // namespace StreamQuality

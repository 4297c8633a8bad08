// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/Arrangement.h"

#include <cstdlib>
#include <random>

namespace Arrangement {

long drawFromSystem() {
    [[maybe_unused]] static const bool seeded = [] {
        ::srandom(std::random_device()());
        return true;
    }();
    return ::random();
}

// Positions wrap below 0: the one before the first is above every count.

bool isAtEnd(const Place& place) {
    return place.index + 1 >= place.count;
}

bool willPlayNext(const Place& place) {
    return place.index + 1 < place.count || place.looping == looping::all;
}

bool willPlayPrevious(const Place& place) {
    return place.index - 1 < place.count || place.looping == looping::all;
}

std::uint32_t previousIndex(const Place& place) {
    if (place.index - 1 < place.count)
        return place.index - 1;
    return place.looping == looping::all ? place.count - 1 : place.index;
}

EndOfMovie atEndOfMovie(const Place& place, bool autoNext) {
    if (place.looping == looping::one)
        return EndOfMovie::playAgain;
    if (autoNext)
        return EndOfMovie::playNext;
    return isAtEnd(place) ? EndOfMovie::endList : EndOfMovie::stay;
}

EndOfList atEndOfList(std::int32_t mode, bool autoQuit) {
    if (mode == looping::all)
        return EndOfList::startAgain;
    return mode == looping::off && autoQuit ? EndOfList::quit : EndOfList::stay;
}

std::int32_t steppedLooping(std::int32_t mode, std::int32_t step) {
    const std::int32_t stepped = mode + step;
    if (stepped > looping::all)
        return looping::off;
    return stepped < looping::off ? looping::all : stepped;
}

} // namespace Arrangement

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

/// The values of the looping mode.
namespace looping {
inline constexpr std::int32_t off = 0;
inline constexpr std::int32_t one = 1;
inline constexpr std::int32_t all = 2;
} // namespace looping

/// How the list is ordered, and what comes next in it. Pure functions.
namespace Arrangement {

/// The values of QVPlaylistDefaultArrangement; any other keeps the order.
inline constexpr std::int32_t asAdded = 0;
inline constexpr std::int32_t shuffled = 1;
inline constexpr std::int32_t sorted = 2;

/// Draws the next number of a generator, 0 or above.
using Draw = std::function<long()>;
/// The C library's generator, seeded by chance at the first draw of the process: each launch has an order of its own.
long drawFromSystem();

/// Exchanges each element in turn with one drawn from the whole list: one draw an element.
template <class List>
void shuffle(List& elements, const Draw& draw) {
    using Index = typename List::size_type;
    for (Index i = 0; i < elements.size(); ++i)
        std::swap(elements[i], elements[static_cast<Index>(draw()) % elements.size()]);
}

/// Where the list stands. An index not below the count means no position.
struct Place {
    std::uint32_t index;
    std::uint32_t count;
    std::int32_t looping;
};

bool isAtEnd(const Place& place);
bool willPlayNext(const Place& place);
bool willPlayPrevious(const Place& place);
/// The position that "previous" plays: before the first entry comes the last one when all are looped, else the first
/// again.
std::uint32_t previousIndex(const Place& place);

enum class EndOfMovie { playAgain, playNext, endList, stay };
EndOfMovie atEndOfMovie(const Place& place, bool autoNext);

enum class EndOfList { startAgain, quit, stay };
EndOfList atEndOfList(std::int32_t looping, bool autoQuit);

/// The mode a step (+1 or -1) further round.
std::int32_t steppedLooping(std::int32_t looping, std::int32_t step);

} // namespace Arrangement

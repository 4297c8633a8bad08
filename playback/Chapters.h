// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/Movie.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

/// Where a time lies among the chapters of a movie. Pure functions; times are in the movie's units, positions count
/// from 0, and -1 is before the first chapter.
namespace Chapters {

std::int32_t positionAt(std::span<const platform::Chapter> chapters, std::int32_t time);

/// The position of the chapter that a step leads to: the next one (+1), or back (-1) to the beginning of this one,
/// where more than some seconds of it have passed, else to the one before. None where there is none.
std::optional<std::int32_t> stepped(std::span<const platform::Chapter> chapters, std::int32_t time,
                                    std::int32_t timeScale, std::int32_t direction);

/// "Chapter 2 of 5: Name"; empty for no position.
QString text(std::span<const platform::Chapter> chapters, std::int32_t position);

/// What the file calls it, else "Chapter 2 of 5"; empty for no position.
QString name(std::span<const platform::Chapter> chapters, std::int32_t position);

} // namespace Chapters

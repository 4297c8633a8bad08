// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/DynamicRange.h"

#include <cstdint>

struct AVDictionary;
struct AVFormatContext;
struct AVStream;

namespace platform {

/// The stream that is played as the movie's picture: the first of video that is not a cover, and the best one where it
/// is offered in several qualities. Null when there is none. The libraries are loaded.
const AVStream* mainVideoStream(const AVFormatContext* input);

/// Bits a second of the variant that a stream, or a program, belongs to, by its tags; 0 where there are no variants.
std::int64_t variantBitRate(const AVDictionary* tags);

/// The stream of the picture that is attached to a movie, its cover. Null when there is none.
const AVStream* coverStream(const AVFormatContext* input);

/// How it codes light, as the container says. The libraries are loaded.
DynamicRange dynamicRangeOf(const AVStream* video);

/// The matrix of nine numbers by which its pictures are to be turned; null where they stand as they are. The libraries
/// are loaded.
const std::int32_t* displayMatrixOf(const AVStream* video);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace platform {

struct MovieInfo;

/// The options of the core's own that a movie is loaded with, as its loadfile command takes them: empty, or names and
/// values with commas in between. It starts at `start` seconds.
QByteArray loadOptions(const MovieInfo& movie, double start);

/// Whether one thread decodes the movie well within the time there is, where no hardware does: with the least overhead
/// and memory, and slower only when many pictures are decoded for one, as after a jump.
bool isDecodedByOneThread(const MovieInfo& movie);

} // namespace platform

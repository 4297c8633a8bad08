// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace platform {

struct MovieInfo;
struct TrackSelection;

/// The options of the core's own that a movie is loaded with, as its loadfile command takes them: names and values with
/// commas in between. It starts at `start` seconds, with the tracks selected; a file of subtitles is added later.
QByteArray loadOptions(const MovieInfo& movie, double start, const TrackSelection& tracks, const QByteArray& filters);

/// What the core's options "vid", "aid", "sid" and "secondary-sid" take for a track; a file of subtitles has no number
/// beforehand.
QByteArray videoOption(const TrackSelection& tracks);
QByteArray audioOption(const TrackSelection& tracks);
QByteArray subtitleOption(const TrackSelection& tracks);
QByteArray secondSubtitleOption(const TrackSelection& tracks);

/// Whether one thread decodes the movie well within the time there is, where no hardware does: with the least overhead
/// and memory, and slower only when many pictures are decoded for one, as after a jump.
bool isDecodedByOneThread(const MovieInfo& movie);

} // namespace platform

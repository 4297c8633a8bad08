// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/MediaFixture.h"
#include "tools/screen/XProbe.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace bench {

inline constexpr int screenWidth = 1920;
inline constexpr int screenHeight = 1080;
inline constexpr int framesPerSecond = 30;

// What the players play, without sound: a minute of moving test picture as large as the screen, H.264 at some 5 Mbit/s
// with keyframes 250 apart. It carries each frame's number across its middle and a red stripe at its bottom, by which
// it is seen from outside. Throws std::runtime_error when ffmpeg fails.
std::filesystem::path makeMovie(const harness::MediaFixture& media);
// Half a minute of moving test picture of 60 frames a second, as large, with the frame's number along its top.
inline constexpr int fastFramesPerSecond = 60;
std::filesystem::path makeFastMovie(const harness::MediaFixture& media);
std::optional<int> fastFrameOnScreen(harness::XProbe& probe);
// A minute of nothing but the stripe's colour, as large: what stands over it is seen.
std::filesystem::path makePlainMovie(const harness::MediaFixture& media);

// Four hours of the same, in Matroska, with thirty tracks of subtitles.
std::filesystem::path makeLongMovie(const harness::MediaFixture& media, const std::filesystem::path& plainMovie,
                                    const std::filesystem::path& folder);
// Ten seconds of HEVC in ten bits, 3840 by 2160 at 24 pictures a second, numbered and striped like the first.
std::filesystem::path makeLargeMovie(const harness::MediaFixture& media);

// The plain movie with two tracks of subtitles inside: one line throughout, and three lines throughout.
std::filesystem::path makeTwoTracks(const harness::MediaFixture& media, const std::filesystem::path& plainMovie,
                                    const std::filesystem::path& folder);
// The plain movie with two tracks of sound inside: silence, and a tone.
std::filesystem::path makeTwoSounds(const harness::MediaFixture& media, const std::filesystem::path& plainMovie);
// A minute of moving test picture, 1080i at 50 fields a second, striped like the first.
std::filesystem::path makeInterlacedMovie(const harness::MediaFixture& media);

// A SubRip file of texts of two lines; milliseconds.
struct Cues {
    int count = 30;
    int first = 0;
    int every = 2000;
    int shown = 1900;
};
// The movie in the folder, with such a file beside it.
std::filesystem::path withSubtitles(const std::filesystem::path& movie, const std::filesystem::path& folder,
                                    const Cues& cues);

// Whether the movie is on the screen; the number of the frame that is.
bool showsMovie(harness::XProbe& probe);
std::optional<int> frameOnScreen(harness::XProbe& probe);

// So many short movies with sound in the folder, which must not exist yet. No two have the same bytes.
std::vector<std::string> makeManyMovies(const harness::MediaFixture& media, const std::filesystem::path& folder,
                                        int count);

} // namespace bench

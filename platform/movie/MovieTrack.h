// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace platform {

/// One track of a movie, as its file describes it.
struct MovieTrack {
    enum class Kind { video, audio, subtitles };
    Kind kind = Kind::audio;
    /// Its number among those of its kind, from 1: by it the player is told of it.
    int id = 0;
    /// As the file says it ("ger"); empty where it does not.
    QString language = {};
    /// One line; empty where the file gives none.
    QString title = {};
    /// As FFmpeg's libraries name it ("ac3"); empty where they do not know it.
    QString codec = {};
    /// Of sound; 0 where they are not known.
    int channels = 0;
    /// As the file recommends them: played where nothing else is chosen; shown even where no subtitles are wanted.
    bool isDefault = false;
    bool isForced = false;
    /// A picture that is attached to the movie, its cover.
    bool isCover = false;
    /// From a file of its own, which the player was given beside the movie's.
    bool isExternal = false;
    /// Of a picture, as it is stored; empty where it is not known.
    QSize size = {};
    /// Of a track of a stream that is offered in several qualities: bits a second of the variant that it belongs to,
    /// sound included where they come together. 0 else.
    std::int64_t variantBitRate = 0;
    /// The variants of such a stream that the track is played in, by their numbers; none where each picture goes with
    /// each sound.
    std::vector<int> variants = {};
    /// What subtitles are made of. Styled texts have places and fonts of their own; unknown ones cannot be shown.
    enum class Content { none, unknown, text, styledText, bitmaps };
    Content content = Content::none;

    friend bool operator==(const MovieTrack&, const MovieTrack&) = default;
};

using MovieTracks = std::vector<MovieTrack>;

/// What is played of a movie's tracks, and when.
struct TrackSelection {
    /// The number of a picture. Without a choice the player takes the first one, or the best that a stream offers.
    std::optional<int> video = {};
    /// A track's number. Without a choice the player takes the one that the file recommends.
    std::optional<int> audio = {};
    /// The number of a track of subtitles, 0 for none; `subtitleFile`, where there is one, comes before it.
    int subtitles = 0;
    /// A file of subtitles beside the movie, which the player reads itself; no path for none.
    QString subtitleFile = {};
    /// The number of another track of subtitles, whose text alone is told (Movie::secondSubtitleText); 0 for none.
    int secondSubtitles = 0;
    /// Who draws the subtitles: whoever asks the movie for the text that is due (Movie::subtitleText), or the player,
    /// into the picture. Bitmaps have no text.
    enum class Drawn { asText, inPicture } drawn = Drawn::asText;
    /// Seconds by which sound, and subtitles, come later than the file says; negative ones come earlier.
    double audioDelay = 0;
    double subtitleDelay = 0;
    /// By which the times of the subtitles are multiplied, before the delay.
    double subtitleSpeed = 1;

    friend bool operator==(const TrackSelection&, const TrackSelection&) = default;
};

/// The text of the selected subtitles that is due. Times are seconds of the movie.
struct SubtitleText {
    /// As Advanced SubStation Alpha writes it ("{\i1}Hello{\i0}\Nyou"), whatever the track's own format is; empty while
    /// there is none.
    QString text = {};
    double start = 0;
    double end = 0;

    friend bool operator==(const SubtitleText&, const SubtitleText&) = default;
};

/// A line of a track of subtitles, as its file has it.
struct SubtitleLine {
    /// Seconds of the movie.
    double time = 0;
    /// With the track's own markup; empty for bitmaps.
    QString text = {};

    friend bool operator==(const SubtitleLine&, const SubtitleLine&) = default;
};

/// The first line and the last one of a track.
struct SubtitleEnds {
    SubtitleLine first;
    SubtitleLine last;

    friend bool operator==(const SubtitleEnds&, const SubtitleEnds&) = default;
};

} // namespace platform

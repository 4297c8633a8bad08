// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string_view>

namespace platform {

/// One event of a file of subtitles, as its format writes it. What it refers to lasts until the next one.
struct SubtitlePacket {
    /// Milliseconds; a duration below 0 is not said by the file, nor by what follows.
    std::int64_t start = 0;
    std::int64_t duration = -1;
    /// With the format's own markup.
    std::string_view text;
    /// What a WebVTT cue says of its place.
    std::string_view settings;
};

/// Takes an event; false ends the reading.
using TakeSubtitlePacket = std::function<bool(const SubtitlePacket& packet)>;

/// Reads a text in UTF-8 as the format of a name that libavformat knows, and gives its events by their starts. False
/// when it is no such text, or memory is short. Opens nothing, whatever the text names. Any thread; blocks as long as
/// reading takes; holds nothing of whoever gave it. May be called again at any time, from several threads at once.
using ReadSubtitlePackets = std::function<bool(const QByteArray& utf8, const char* format,
                                               const std::atomic<bool>& cancelled, const TakeSubtitlePacket& take)>;

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/packets/TimedCue.h"

#include <atomic>
#include <optional>

/// Timed Text Markup Language (TTML, DFXP): a page of XML whose paragraphs have times.
namespace TimedText {

/// More of them than that in one another are no page that somebody wrote.
inline constexpr int maximumDepth = 64;

/// The cues of a page in UTF-8, in its order: italic, bold and underlined letters, colours, and whether they stand at
/// the top. None when it is no such page; one that breaks off gives what stood before. Opens nothing that it names.
/// Cancelled, it gives what it has. Any thread.
std::optional<std::vector<TimedCue>> read(const QByteArray& utf8, std::size_t maximumCues,
                                          const std::atomic<bool>& cancelled);

} // namespace TimedText

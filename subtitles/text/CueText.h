// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/input/LineReader.h"

#include <QString>

#include <functional>
#include <string_view>

namespace CueText {

/// Takes the text of a cue that stands on one line, "|" between its lines, apart: each segment is given to `append`
/// with the separators that follow it, the first of which becomes a line feed if it is a "|". What has no line end goes
/// on in the next piece of the file.
void splitSegments(std::string_view rest, LineReader& lines, const std::function<void(std::string_view)>& append);

/// Whether a line has nothing but white space.
bool isBlank(std::string_view line);

/// Without its line end.
std::string_view withoutLineEnd(std::string_view line);

/// Without white space and line ends at both ends, in memory of its own size. Never null.
QString trimmed(const QString& text);

/// The same of valid UTF-8, in place.
std::string_view trimmed(std::string_view utf8);

/// Strictly: no surrogates, nothing longer than it must be, nothing cut.
bool isValidUTF8(std::string_view bytes);

/// Whether a piece of a valid text begins and ends between two of its characters.
bool endsBetweenCharacters(std::string_view piece, std::string_view text);

} // namespace CueText

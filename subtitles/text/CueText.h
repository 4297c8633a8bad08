// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/text/LineReader.h"

#include <QString>

#include <functional>
#include <string_view>

namespace CueText {

/// Takes the text of a cue that stands on one line, "|" between its lines, apart: each segment is given to `append`
/// with the separators that follow it, the first of which becomes a line feed if it is a "|". What has no line end goes
/// on in the next piece of the file.
void splitSegments(std::string_view rest, LineReader& lines, const std::function<void(std::string_view)>& append);

/// Without white space and line ends at both ends, in memory of its own size. Never null.
QString trimmed(const QString& text);

} // namespace CueText

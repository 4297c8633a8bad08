// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/SubtitlePlacement.h"
#include "platform/window/StyledText.h"
#include "platform/window/TextLayout.h"

#include <optional>

/// What the markup in the text of a cue asks for. Subtitles of every kind hold the tags of web pages, the codes in
/// braces of other subtitle formats, and entities, whatever their own format says.
namespace SubtitleMarkup {

/// Of a text, that is looked at: each character that a screen shows may have a tag of its own.
inline constexpr qsizetype maximumRead = 16 * platform::maximumDisplayedCharacters;

struct Cue {
    platform::StyledText text;
    /// Where the text asks to stand, if it does.
    std::optional<SubtitlePlacement::Place> place;
};

/// Acts on what is known and can be drawn: italic, bold, underlined and struck out letters, colours, places, line
/// breaks and entities; leaves out what is known and cannot be drawn, like faces, sizes, voices and effects; and keeps
/// everything else as letters: "a < b", "<3", "<unknown>", "{not a code}", "AT&T". What is opened and never closed
/// lasts to the end. A text without any markup comes back as it is; of any other one only as much is read as a screen
/// could show.
Cue read(const QString& text);

} // namespace SubtitleMarkup

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/MarkupPen.h"

#include <QStringView>

/// The kinds of markup that stand between brackets, each without its brackets.
namespace MarkupTags {

enum class Outcome { taken, lineBreak, letters };

/// Between angle brackets: the tags of web pages and of WebVTT, whose time stamps go, too. Letters when no such tag has
/// that name, or when what follows the name can't belong to it: "<i think>".
Outcome takeTag(QStringView tag, MarkupPen& pen);

/// Override codes of (Advanced) SubStation: "\i1\c&H0000FF&\an8". Those that are not drawn, and remarks, go.
void takeCodes(QStringView codes, MarkupPen& pen);

/// A code of MicroDVD, which stands in front of a line: "y:i,b", "c:$0000FF". With a capital it counts for the whole
/// cue. False when it is none.
bool takeLineCode(QStringView code, MarkupPen& pen);

} // namespace MarkupTags

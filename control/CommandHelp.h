// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"

#include <QStringList>

#include <vector>

/// A line of the help: the keys of the commands that share a text, and the key of that text. Keys of one command are
/// joined by a stroke, commands stand apart: "Page Down/Super+→  Page Up/Super+←".
struct HelpLine {
    Section section;
    QStringList keys;
    std::string_view text;
};

/// Lines that serve the same wish ("Watch"), and the key of its localized name.
struct HelpGroup {
    std::string_view title;
    std::vector<HelpLine> lines;
};

/// The same lines as those of helpLines(), by what one wants to do; what is needed first comes first.
std::vector<HelpGroup> helpGroups(std::span<const Command> commands);

/// The lines of the commands that have keys, by section. A command without a help text is called by its title.
std::vector<HelpLine> helpLines(std::span<const Command> commands);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"

#include <QString>
#include <QStringList>

#include <vector>

/// A key in Qt's portable text ("Ctrl+O", "PgDown"): as menus want their shortcuts, and show keys.
QString portableKeyText(const CommandKey& key);
/// A key as help writes it ("Ctrl+←", "Page Down", "−").
QString readableKeyText(const CommandKey& key);

/// A line of the help: the keys of the commands that share a text, and the key of that text. Keys of one command are
/// joined by a stroke, commands stand apart: "Page Down/Super+→  Page Up/Super+←".
struct HelpLine {
    Section section;
    QStringList keys;
    std::string_view text;
};

/// The lines of the commands that have a help text, by section.
std::vector<HelpLine> helpLines(std::span<const Command> commands);

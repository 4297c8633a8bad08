// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

struct Command;
class QWindow;

/// Shows the keys of the commands in a modal panel above the window, until it is closed.
void runHelpPanel(std::span<const Command> commands, QWindow* window);

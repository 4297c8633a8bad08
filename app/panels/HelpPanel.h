// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWindow;

/// Shows the keys of the player in a modal panel above the window, until it is closed.
void runHelpPanel(QWindow* window);

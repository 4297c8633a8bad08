// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
class QWindow;

namespace platform {

/// Makes a panel that is about to be shown stand above the window (none: by itself), modal, with the keyboard.
void standAbove(QWidget& panel, QWindow* window);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/PanelPlacement.h"

#include <QWidget>
#include <QWindow>

namespace platform {

void standAbove(QWidget& panel, QWindow* window) {
    panel.winId();
    if (window)
        panel.windowHandle()->setTransientParent(window);
    panel.setWindowModality(Qt::ApplicationModal);
    // Without a window manager nobody else gives a new window the keyboard.
    QMetaObject::invokeMethod(
        &panel, [&panel] { panel.activateWindow(); }, Qt::QueuedConnection);
}

} // namespace platform

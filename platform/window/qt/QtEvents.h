// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Events.h"

#include <QKeySequence>

class QDropEvent;
class QKeyEvent;
class QMouseEvent;

namespace platform::qtEvents {

std::uint32_t modifierFlags(Qt::KeyboardModifiers modifiers);
/// Shift, Control and their like.
bool isModifierAlone(const QKeyEvent& event);
KeyEvent keyEvent(const QKeyEvent& event, bool isRepeat);
/// The key as a shortcut would be written ("Ctrl+O").
QKeySequence shortcut(const QKeyEvent& event);
MouseButton mouseButton(Qt::MouseButton button);
DraggingInfo draggingInfo(const QDropEvent& event);

} // namespace platform::qtEvents

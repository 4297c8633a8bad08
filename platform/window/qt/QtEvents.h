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
/// Reading what is dragged asks its source, which takes a while; the operations that it allows now are at hand.
DraggingInfo draggingInfo(const QDropEvent& event);
std::uint32_t dragOperations(const QDropEvent& event);
/// How an answer of platform::dragOperation is told to the source: as a link or a copy, never as a move.
Qt::DropAction dropAction(std::uint32_t operation, Qt::DropActions possible);

} // namespace platform::qtEvents

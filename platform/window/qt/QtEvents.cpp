// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/QtEvents.h"

#include "platform/base/AddressText.h"
#include "platform/base/PathNames.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

namespace platform::qtEvents {

namespace {

QString characters(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
        return QChar(functionKey::up);
    case Qt::Key_Down:
        return QChar(functionKey::down);
    case Qt::Key_Left:
        return QChar(functionKey::left);
    case Qt::Key_Right:
        return QChar(functionKey::right);
    case Qt::Key_Insert:
        return QChar(functionKey::insert);
    case Qt::Key_Delete:
        return QChar(functionKey::remove);
    case Qt::Key_Home:
        return QChar(functionKey::home);
    case Qt::Key_End:
        return QChar(functionKey::end);
    case Qt::Key_Backspace:
        return QChar(functionKey::backspace);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QChar(functionKey::enter);
    case Qt::Key_PageUp:
        return QChar(functionKey::pageUp);
    case Qt::Key_PageDown:
        return QChar(functionKey::pageDown);
    case Qt::Key_MediaPlay:
    case Qt::Key_MediaPause:
    case Qt::Key_MediaTogglePlayPause:
        return QChar(functionKey::mediaPlay);
    case Qt::Key_MediaStop:
        return QChar(functionKey::mediaStop);
    case Qt::Key_MediaNext:
        return QChar(functionKey::mediaNext);
    case Qt::Key_MediaPrevious:
        return QChar(functionKey::mediaPrevious);
    case Qt::Key_VolumeUp:
        return QChar(functionKey::mediaVolumeUp);
    case Qt::Key_VolumeDown:
        return QChar(functionKey::mediaVolumeDown);
    case Qt::Key_VolumeMute:
        return QChar(functionKey::mediaMute);
    case Qt::Key_Escape:
        return QChar(functionKey::escape);
    // Shift turns Tab into a key of its own.
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return QChar(functionKey::tab);
    default:
        break;
    }
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12)
        return QChar(static_cast<char16_t>(functionKey::f1 + (event.key() - Qt::Key_F1)));
    // The key rather than its text: Control turns a letter's text into a control character.
    if (event.key() >= Qt::Key_Space && event.key() < 0x10000)
        return QChar(static_cast<char16_t>(event.key()));
    return event.text();
}

} // namespace

std::uint32_t modifierFlags(Qt::KeyboardModifiers modifiers) {
    std::uint32_t flags = 0;
    if (modifiers & Qt::ShiftModifier)
        flags |= modifier::shift;
    if (modifiers & Qt::ControlModifier)
        flags |= modifier::control;
    if (modifiers & Qt::AltModifier)
        flags |= modifier::option;
    if (modifiers & Qt::MetaModifier)
        flags |= modifier::command;
    return flags;
}

bool isModifierAlone(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Mode_switch:
        return true;
    default:
        return false;
    }
}

KeyEvent keyEvent(const QKeyEvent& event, bool isRepeat) {
    KeyEvent result;
    result.type = event.type() == QEvent::KeyRelease ? KeyEvent::Type::up : KeyEvent::Type::down;
    result.charactersIgnoringModifiers = characters(event);
    result.keyCode = static_cast<std::uint16_t>(event.nativeScanCode());
    result.modifierFlags = modifierFlags(event.modifiers());
    result.isRepeat = isRepeat;
    return result;
}

QKeySequence shortcut(const QKeyEvent& event) {
    return QKeySequence(QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
}

MouseButton mouseButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::NoButton:
        return MouseButton::none;
    case Qt::LeftButton:
        return MouseButton::left;
    case Qt::RightButton:
        return MouseButton::right;
    case Qt::MiddleButton:
        return MouseButton::middle;
    case Qt::BackButton:
        return MouseButton::back;
    case Qt::ForwardButton:
        return MouseButton::forward;
    default:
        return MouseButton::other;
    }
}

std::uint32_t dragOperations(const QDropEvent& event) {
    // What can only be moved is left alone: its source would delete it.
    const Qt::DropActions actions = event.possibleActions() & (Qt::CopyAction | Qt::LinkAction);
    if (actions == Qt::IgnoreAction)
        return dragOperation::none;
    // A drag with Alt or Ctrl held asks for a copy, as a source does that can do nothing else.
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier))
        return dragOperation::copy;
    return dragOperation::generic | (actions & Qt::CopyAction ? dragOperation::copy : dragOperation::none);
}

Qt::DropAction dropAction(std::uint32_t operation, Qt::DropActions possible) {
    const Qt::DropAction wanted = operation == dragOperation::generic ? Qt::LinkAction : Qt::CopyAction;
    return possible & wanted ? wanted : wanted == Qt::LinkAction ? Qt::CopyAction : Qt::LinkAction;
}

DraggingInfo draggingInfo(const QDropEvent& event) {
    DraggingInfo info;
    for (const QUrl& url : event.mimeData()->urls()) {
        if (url.isLocalFile())
            info.fileNames.append(textOfNativePath(nativePath(url)));
        else if (url.isValid() && !url.scheme().isEmpty())
            info.urlStrings.append(url.toString(QUrl::FullyEncoded));
    }
    if (info.fileNames.isEmpty() && info.urlStrings.isEmpty() && event.mimeData()->hasText())
        info.urlStrings = addressesIn(event.mimeData()->text());
    info.offersFileNames = !info.fileNames.isEmpty();
    info.offersURL = !info.urlStrings.isEmpty();
    info.sourceOperationMask = dragOperations(event);
    return info;
}

} // namespace platform::qtEvents

// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PressedKey.h"

#include "control/KeyText.h"
#include "platform/window/Events.h"
#include "platform/window/qt/QtEvents.h"

#include <QChar>

std::optional<KeyChord> pressedKey(const QKeyEvent& event) {
    const platform::KeyEvent pressed = platform::qtEvents::keyEvent(event, false);
    if (pressed.charactersIgnoringModifiers.isEmpty())
        return std::nullopt;
    const QChar typed = pressed.charactersIgnoringModifiers.front().toLower();
    KeyChord key{typed.unicode(), pressed.modifierFlags};
    const bool typesSomething = typed.isPrint() && typed.category() != QChar::Other_PrivateUse && !typed.isSpace();
    if (typesSomething && !typed.isLetter())
        key.modifiers &= ~platform::modifier::shift;
    return keyOfPortableText(portableKeyText(key)) == key ? std::optional(key) : std::nullopt;
}

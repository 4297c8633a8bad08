// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace platform {

/// The masks of the modifier keys, in events and in the state of the keyboard.
namespace modifier {
inline constexpr std::uint32_t capsLock = 0x10000;
inline constexpr std::uint32_t shift = 0x20000;
inline constexpr std::uint32_t control = 0x40000;
inline constexpr std::uint32_t option = 0x80000;   // the Alt key
inline constexpr std::uint32_t command = 0x100000; // the Super key
} // namespace modifier

/// The characters under which keys without a text of their own arrive.
namespace functionKey {
inline constexpr char16_t up = 0xF700;
inline constexpr char16_t down = 0xF701;
inline constexpr char16_t left = 0xF702;
inline constexpr char16_t right = 0xF703;
inline constexpr char16_t f1 = 0xF704; // up to f12, one after the other
inline constexpr char16_t f12 = 0xF70F;
inline constexpr char16_t insert = 0xF727;
inline constexpr char16_t remove = 0xF728;
inline constexpr char16_t home = 0xF729;
inline constexpr char16_t end = 0xF72B;
inline constexpr char16_t pageUp = 0xF72C;
inline constexpr char16_t pageDown = 0xF72D;
inline constexpr char16_t mediaPlay = 0xF8F0; // the keyboard's keys for players, up to mute
inline constexpr char16_t mediaStop = 0xF8F1;
inline constexpr char16_t mediaNext = 0xF8F2;
inline constexpr char16_t mediaPrevious = 0xF8F3;
inline constexpr char16_t mediaVolumeUp = 0xF8F4;
inline constexpr char16_t mediaVolumeDown = 0xF8F5;
inline constexpr char16_t mediaMute = 0xF8F6;
inline constexpr char16_t backspace = 8;
inline constexpr char16_t enter = 13;
inline constexpr char16_t escape = 27;
inline constexpr char16_t tab = 9;
inline constexpr char16_t space = 32;
} // namespace functionKey

struct KeyEvent {
    enum class Type { down, up };
    Type type = Type::down;
    /// What the key types, modifiers ignored (Shift may show in it).
    QString charactersIgnoringModifiers;
    std::uint16_t keyCode = 0;
    std::uint32_t modifierFlags = 0;
    /// An automatic repeat of a held key. There are no key-up events between repeats. Modifier keys alone make no
    /// events.
    bool isRepeat = false;
};

enum class MouseButton { none, left, right, middle, back, forward, other };

struct MouseEvent {
    /// Where the pointer is, in the window's content coordinates (origin bottom left, y up, points).
    QPointF locationInWindow;
    /// How far it came since the last event; y grows downwards.
    double deltaX = 0;
    double deltaY = 0;
    MouseButton button = MouseButton::none;
    /// 2 for the press that makes a double click, which follows the plain press at the same place.
    int clickCount = 0;
    std::uint32_t modifierFlags = 0;
};

/// The operations that a dragging source allows and a target answers with.
namespace dragOperation {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t copy = 1;
inline constexpr std::uint32_t generic = 4;
} // namespace dragOperation

struct DraggingInfo {
    bool offersFileNames = false;
    bool offersURL = false;
    QStringList fileNames;
    QStringList urlStrings;
    std::uint32_t sourceOperationMask = dragOperation::none;
};

} // namespace platform

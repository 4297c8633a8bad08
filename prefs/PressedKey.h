// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"

#include <optional>

class QKeyEvent;

/// The key that a command would answer to when it arrived at the movie's window. Nothing for a key that settings cannot
/// hold. Shift counts with letters and with keys that type nothing; elsewhere it makes another character.
std::optional<KeyChord> pressedKey(const QKeyEvent& event);

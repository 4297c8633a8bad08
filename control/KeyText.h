// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"

#include <QString>

#include <optional>

/// A key in Qt's portable text ("Ctrl+O", "PgDown"): as menus want their shortcuts and show keys, and as settings hold
/// them.
QString portableKeyText(KeyChord key);
/// A key as help writes it ("Ctrl+←", "Page Down", "−").
QString readableKeyText(KeyChord key);

/// Reads what portableKeyText writes, in any case. Nothing for what is no key.
std::optional<KeyChord> keyOfPortableText(const QString& text);

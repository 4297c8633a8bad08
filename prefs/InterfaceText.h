// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Localization.h"

/// What the compiled interface files (resources/interface) ask for each of their texts; these are identifiers of the
/// translations.
inline QString interfaceText(const char* identifier, const char* = nullptr) {
    return platform::localizedString(QString::fromUtf8(identifier));
}

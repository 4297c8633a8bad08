// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace platform {

/// The name of a language, given by its code ("en"), in the first of the user's languages, of at most 32 UTF-16 units.
/// The code itself, after a logged line, when it has no name. Main thread.
QString localizedNameForLanguageID(const QString& code);

} // namespace platform

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace platform {

/// The name of a language, given by its code ("en"), in the first of the user's languages, of at most 32 UTF-16 units.
/// The code itself, after a logged line, when it has no name. Main thread.
QString localizedNameForLanguageID(const QString& code);

/// The languages that have a code of two letters and a name: both, in the order of the names. Main thread.
QList<std::pair<QString, QString>> localizedLanguages();

/// A language tag in one spelling ("de", "pt-BR") for a code of two or three letters, with or without a country or a
/// script behind it ("ger", "PT_br"), or for a language's name in English or in itself ("German", "deutsch"). Empty for
/// other words. Any thread.
QString languageTagOf(const QString& word);

} // namespace platform

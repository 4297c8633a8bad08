// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace platform {
class UserDefaults;
} // namespace platform

/// The languages in which the user wants subtitles and sound (kQVPreferredLanguages). Main thread.
namespace PreferredLanguages {

/// The tags ("de", "pt-BR"), the preferred one first: those that the user chose, else those of the user's system.
QStringList of(const platform::UserDefaults& settings);

/// How good a language is, given by its tag; less is better, nothing for one that is not wanted. An earlier language
/// comes before a later one, and of the same language the country asked for before none, and none before another.
std::optional<int> rank(const QString& tag, const QStringList& preferred);

} // namespace PreferredLanguages

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// The application's texts: resources/translations/lumaro_LANGUAGE.ts, as lrelease compiles it, its messages found by
/// their identifiers. The user's languages are tried in order, then English; a key that no translation holds is its own
/// text. `count` chooses the form of a message that has several ("1 movie", "2 movies"). Main thread.
QString localizedString(const QString& key, int count = -1);

/// localizedString of the format, its "%@" and "%d" filled in order with the arguments.
QString localizedFormat(const QString& format, const QStringList& arguments, int count = -1);

/// The direction that the texts are written in, by which panels and menus are laid out: of the language that most texts
/// come from, not of one that has no translation. Main thread.
Qt::LayoutDirection localizationDirection();

/// The user's languages ("de", "pt-BR"), the preferred one first.
QStringList localizationLanguages();

/// The translations into a language ("pt-PT", "zh-Hant-HK", "de_AT") by what their files are called, the closest one
/// first: "pt_PT", "pt", "pt_BR". Any thread.
QStringList translationNames(const QString& language);

/// Forgets the translations read so far, and takes these languages ("de", "pt-BR") in place of the user's; an empty
/// list goes back to the user's.
void setLocalizationLanguages(const QStringList& languages);

} // namespace platform

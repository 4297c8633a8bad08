// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace platform {

/// The application's string tables: resources/strings/LANGUAGE.strings.plist, a dictionary from key to text. The
/// user's languages are tried in order, then English; a key that no table holds is its own text. Main thread.
QString localizedString(const QString& key);

/// localizedString of the format, its "%@" and "%d" filled in order with the arguments.
QString localizedFormat(const QString& format, const QStringList& arguments);

/// The user's languages ("de", "pt-BR"), the preferred one first.
QStringList localizationLanguages();

/// Forgets the tables read so far, and takes these languages ("de", "pt-BR") in place of the user's; an empty list
/// goes back to the user's.
void setLocalizationLanguages(const QStringList& languages);

} // namespace platform

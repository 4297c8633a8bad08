// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the data file of a VobSub index lies. Any thread.
namespace SubFileSearch {

/// The file of that base with an extension given in lower case, which may be written in any: lower case is preferred,
/// then upper case. Empty when there is none.
QString fileBeside(const QString& base, const QString& extension);

/// The archive of that base, or the first of its volumes: film.rar, else film.part1.rar, film.part01.rar or
/// film.part001.rar. Empty when there is none.
QString archiveBeside(const QString& base);

/// The data file among the contents of an archive: directly in the folder, else in the folders below. The one called
/// like the index is preferred, then the first in the order of names. Empty when there is none.
QString dataFileWithin(const QString& folder, const QString& baseName);

} // namespace SubFileSearch

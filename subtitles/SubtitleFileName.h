// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the name of a subtitle file tells, as people write it: "film.de.srt", "film.pt-BR.forced.srt". Names are
/// without folders; `movie` is that of the movie's file, whose own words tell nothing. Any thread.
namespace SubtitleFileName {

/// The tag of the language ("de", "pt-BR"); empty where none is named.
QString languageOf(const QString& name, const QString& movie);

/// Whether only some of what is said is in it: signs, and what is spoken in another language.
bool isForced(const QString& name, const QString& movie);

} // namespace SubtitleFileName

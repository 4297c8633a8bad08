// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Desktop.h"
#include "playlist/MovieBatch.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <cstdint>

/// What is said about movies that could not be opened, in the user's language.
namespace OpeningReport {

/// A folder that was handed over and holds no movie; beside the codes of namespace platform::movieError.
inline constexpr std::int16_t noMoviesInFolder = -6100;
/// Files of subtitles that came without a movie, and what was entered as an address and is none.
inline constexpr std::int16_t subtitlesAlone = -6101;
inline constexpr std::int16_t notAnAddress = -6102;
/// Of lists of movies: what they are not, and what of them is left out. The last three, and the folders, come with a
/// count and names.
inline constexpr std::int16_t notAList = -6111;
inline constexpr std::int16_t listEmpty = -6112;
inline constexpr std::int16_t listTooLarge = -6113;
inline constexpr std::int16_t listTooLong = -6114;
inline constexpr std::int16_t listTooDeep = -6115;
inline constexpr std::int16_t listNamesDrives = -6116;
inline constexpr std::int16_t listNamesLocalFiles = -6117;
inline constexpr std::int16_t listNamesNothing = -6118;
inline constexpr std::int16_t unreadableFolders = -6119;

/// The cause in a sentence.
QString reason(std::int16_t error);
/// The folder of a file, the home folder as "~"; of an address the whole of it, without a name and a password.
QString place(const QUrl& url);

/// One alert for all of them, of which there is at least one.
platform::Desktop::Alert failed(const QList<OpeningFailure>& failures);
/// Asks whether these are tried nevertheless: the default button does, the other one drops them. At least one.
platform::Desktop::Alert mayNotPlay(const QList<QUrl>& urls);
/// Nothing stands in the list; the default button leads to the open panel. Says so of folders without movies.
platform::Desktop::Alert nothingToPlay(const QList<OpeningFailure>& failures);

} // namespace OpeningReport

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/OpeningReport.h"

#include "platform/base/Localization.h"
#include "platform/movie/Movie.h"
#include "playback/MovieOrdering.h"

#include <QDir>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace OpeningReport {

namespace {

/// More would not fit the screen.
constexpr qsizetype maximumLines = 10;

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

QString localized(const char* format, const QStringList& arguments) {
    return platform::localizedFormat(QString::fromUtf8(format), arguments);
}

const char* keyOfReason(std::int16_t error) {
    using namespace platform::movieError;
    static constexpr struct {
        std::int16_t error;
        const char* key;
    } reasons[] = {
        {fileNotFound, "OpenErrorMissing"},
        {fileEmpty, "OpenErrorEmpty"},
        {notAFile, "OpenErrorNotAFile"},
        {permissionDenied, "OpenErrorPermission"},
        {invalidMovie, "OpenErrorNotAMovie"},
        {timedOut, "OpenErrorTimeout"},
        {noMediaHandler, "OpenErrorLibraries"},
        {unknownScheme, "OpenErrorScheme"},
        {unknownHost, "OpenErrorUnknownHost"},
        {hostUnreachable, "OpenErrorUnreachable"},
        {connectionRefused, "OpenErrorRefused"},
        {connectionFailed, "OpenErrorConnection"},
        {needsRanges, "OpenErrorRanges"},
        {serverAsksForLogin, "OpenErrorLogin"},
        {serverForbids, "OpenErrorForbidden"},
        {serverHasNoSuchFile, "OpenErrorNotFound"},
        {serverRefuses, "OpenErrorRejected"},
        {serverFails, "OpenErrorServer"},
        {noMoviesInFolder, "OpenErrorNoMovies"},
        {subtitlesAlone, "OpenErrorSubtitles"},
        {notAnAddress, "OpenErrorNotAnAddress"},
        {notAList, "OpenErrorNotAList"},
        {listEmpty, "OpenErrorListEmpty"},
        {listTooLarge, "OpenErrorListTooLarge"},
        {listTooLong, "OpenErrorListTooLong"},
        {listTooDeep, "OpenErrorListTooDeep"},
        {listNamesDrives, "OpenErrorListDrives"},
        {listNamesLocalFiles, "OpenErrorListLocal"},
        {listNamesNothing, "OpenErrorListNothing"},
        {unreadableFolders, "OpenErrorFolders"},
    };
    const auto* known = std::ranges::find(reasons, error, [](const auto& entry) { return entry.error; });
    return known == std::end(reasons) ? nullptr : known->key;
}

/// The first so many, and how many more there are. `line` makes the text of one: of thousands only few are shown.
template <class Things, class Line>
QString listOf(const Things& things, Line line) {
    const bool isCut = things.size() > maximumLines;
    QStringList lines;
    for (const auto& thing : things.first(isCut ? maximumLines - 1 : things.size()))
        lines.append(line(thing));
    if (isCut)
        lines.append(localized("AndMoreMessage", {QString::number(things.size() - maximumLines + 1)}));
    return lines.join(u'\n');
}

/// The cause of one that may stand for several: how many they are, and which.
QString reasonOf(const OpeningFailure& failure) {
    if (failure.count == 0)
        return reason(failure.error);
    QString names = failure.names.join(QStringLiteral(", "));
    if (failure.count > failure.names.size())
        names += QStringLiteral(", …");
    return localized(keyOfReason(failure.error), {QLocale().toString(failure.count), names});
}

QString lineOf(const OpeningFailure& failure) {
    if (failure.error == unreadableFolders)
        return reasonOf(failure);
    return localized("UnableToOpenLine", {fileNameOfURL(failure.url), reasonOf(failure), place(failure.url)});
}

} // namespace

QString reason(std::int16_t error) {
    const char* key = keyOfReason(error);
    return key ? localized(key) : localized("QTUnableToOpenFileDetails", {QString::number(error)});
}

QString place(const QUrl& url) {
    if (!url.isLocalFile())
        return url.toDisplayString(QUrl::RemoveUserInfo);
    const QString path = url.toLocalFile();
    QString folder = path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 1));
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + u'/'))
        return u'~' + folder.mid(home.size());
    return folder;
}

platform::Desktop::Alert failed(const QList<OpeningFailure>& failures) {
    if (failures.size() == 1 && failures.front().error == unreadableFolders)
        return {localized("UnreadableFoldersMessage"), reasonOf(failures.front()), localized("OK"), QString(),
                QString()};
    if (failures.size() == 1) {
        const OpeningFailure& failure = failures.front();
        return {localized("QTUnableToOpenFileError", {fileNameOfURL(failure.url)}),
                reasonOf(failure) + QStringLiteral("\n\n") + place(failure.url), localized("OK"), QString(), QString()};
    }
    return {localized("UnableToOpenFilesMessage", {QString::number(failures.size())}), listOf(failures, lineOf),
            localized("OK"), QString(), QString()};
}

platform::Desktop::Alert mayNotPlay(const QList<QUrl>& urls) {
    const QString code = QString::number(platform::movieError::cannotPlay);
    const QString details = localized("QTUnableToPlayFileDetails", {code});
    if (urls.size() == 1)
        return {localized("QTUnableToPlayFileError", {fileNameOfURL(urls.front())}), details, localized("Continue"),
                QString(), localized("Cancel")};
    return {localized("UnableToPlayFilesMessage", {QString::number(urls.size())}),
            listOf(urls, fileNameOfURL) + QStringLiteral("\n\n") + details, localized("Continue"), QString(),
            localized("Cancel")};
}

platform::Desktop::Alert nothingToPlay(const QList<OpeningFailure>& failures) {
    QStringList folders;
    for (const OpeningFailure& failure : failures) {
        if (failure.error == noMoviesInFolder)
            folders.append(failure.url.toLocalFile());
    }
    const QString details = folders.isEmpty() ? localized("NoPlayableMoviesInListDetails")
                                              : localized("NoMoviesInFoldersDetails") + u'\n' +
                                                    listOf(folders, [](const QString& folder) { return folder; });
    return {localized("NoPlayableMoviesInListMessage"), details, localized("Open..."), localized("Cancel"), QString()};
}

} // namespace OpeningReport

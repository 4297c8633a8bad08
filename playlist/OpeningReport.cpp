// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/OpeningReport.h"

#include "platform/base/Localization.h"
#include "platform/movie/Movie.h"
#include "playback/MovieOrdering.h"

#include <QDir>
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
        {fileNotFound, "OpenErrorMissing"},      {fileEmpty, "OpenErrorEmpty"},
        {notAFile, "OpenErrorNotAFile"},         {permissionDenied, "OpenErrorPermission"},
        {invalidMovie, "OpenErrorNotAMovie"},    {timedOut, "OpenErrorTimeout"},
        {noMediaHandler, "OpenErrorLibraries"},  {unknownScheme, "OpenErrorScheme"},
        {unknownHost, "OpenErrorUnknownHost"},   {hostUnreachable, "OpenErrorUnreachable"},
        {connectionRefused, "OpenErrorRefused"}, {connectionFailed, "OpenErrorConnection"},
        {needsRanges, "OpenErrorRanges"},        {serverAsksForLogin, "OpenErrorLogin"},
        {serverForbids, "OpenErrorForbidden"},   {serverHasNoSuchFile, "OpenErrorNotFound"},
        {serverRefuses, "OpenErrorRejected"},    {serverFails, "OpenErrorServer"},
        {noMoviesInFolder, "OpenErrorNoMovies"}, {subtitlesAlone, "OpenErrorSubtitles"},
        {notAnAddress, "OpenErrorNotAnAddress"},
    };
    const auto* known = std::ranges::find(reasons, error, [](const auto& entry) { return entry.error; });
    return known == std::end(reasons) ? nullptr : known->key;
}

/// The first so many, and how many more there are.
QString listOf(const QStringList& lines) {
    if (lines.size() <= maximumLines)
        return lines.join(u'\n');
    return lines.first(maximumLines - 1).join(u'\n') + u'\n' +
           localized("AndMoreMessage", {QString::number(lines.size() - maximumLines + 1)});
}

QString lineOf(const OpeningFailure& failure) {
    return localized("UnableToOpenLine", {fileNameOfURL(failure.url), reason(failure.error), place(failure.url)});
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
    if (failures.size() == 1) {
        const OpeningFailure& failure = failures.front();
        return {localized("QTUnableToOpenFileError", {fileNameOfURL(failure.url)}),
                reason(failure.error) + QStringLiteral("\n\n") + place(failure.url), localized("OK"), QString(),
                QString()};
    }
    QStringList lines;
    std::ranges::transform(failures, std::back_inserter(lines), lineOf);
    return {localized("UnableToOpenFilesMessage", {QString::number(failures.size())}), listOf(lines), localized("OK"),
            QString(), QString()};
}

platform::Desktop::Alert mayNotPlay(const QList<QUrl>& urls) {
    const QString code = QString::number(platform::movieError::cannotPlay);
    const QString details = localized("QTUnableToPlayFileDetails", {code});
    if (urls.size() == 1)
        return {localized("QTUnableToPlayFileError", {fileNameOfURL(urls.front())}), details, localized("Continue"),
                QString(), localized("Cancel")};
    QStringList lines;
    std::ranges::transform(urls, std::back_inserter(lines), fileNameOfURL);
    return {localized("UnableToPlayFilesMessage", {QString::number(urls.size())}),
            listOf(lines) + QStringLiteral("\n\n") + details, localized("Continue"), QString(), localized("Cancel")};
}

platform::Desktop::Alert nothingToPlay(const QList<OpeningFailure>& failures) {
    QStringList folders;
    for (const OpeningFailure& failure : failures) {
        if (failure.error == noMoviesInFolder)
            folders.append(failure.url.toLocalFile());
    }
    const QString details = folders.isEmpty() ? localized("NoPlayableMoviesInListDetails")
                                              : localized("NoMoviesInFoldersDetails") + u'\n' + listOf(folders);
    return {localized("NoPlayableMoviesInListMessage"), details, localized("Open..."), localized("Cancel"), QString()};
}

} // namespace OpeningReport

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MovieFinder.h"

#include "app/OpeningFiles.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "playback/MovieOrdering.h"
#include "playlist/OpeningReport.h"
#include "playlist/files/ListAddress.h"
#include "playlist/files/ListFile.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <optional>

namespace {

/// Lists within lists.
constexpr std::size_t maximumDepth = 8;
constexpr std::size_t maximumFetches = 32;
/// So many of what went wrong in the same way are named.
constexpr qsizetype maximumNames = 3;

std::optional<struct stat> factsOf(const QByteArray& path, int& error) {
    struct stat facts {};
    error = ::stat(path.constData(), &facts) == 0 ? 0 : errno;
    return error == 0 ? std::optional(facts) : std::nullopt;
}

std::int16_t errorOf(int code) {
    using namespace platform::movieError;
    switch (code) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return fileNotFound;
    case EACCES:
    case EPERM:
        return permissionDenied;
    case EISDIR:
    case EINVAL:
        return notAFile;
    default:
        return couldNotOpen;
    }
}

bool isFolder(const QUrl& url) {
    int error = 0;
    const auto facts = factsOf(platform::nativePath(url), error);
    return facts && S_ISDIR(facts->st_mode);
}

bool isFetched(const QUrl& url) {
    return url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
}

void count(OpeningFailure& failure, const QString& name) {
    ++failure.count;
    if (failure.names.size() < maximumNames)
        failure.names.append(name);
}

} // namespace

MovieFinder::MovieFinder(const Means& means, const std::atomic<bool>& cancelled, Found found)
    : _means(means)
    , _cancelled(cancelled)
    , _tell(std::move(found)) {
    _unreadable.error = OpeningReport::unreadableFolders;
}

QList<OpeningFailure> MovieFinder::find(const QStringList& pathsOrUrls) {
    for (const QString& text : pathsOrUrls) {
        if (_cancelled)
            break;
        if (!isURLString(text))
            takePath(text);
        else if (const QList<QUrl> urls = urlsWithURLStrings({text}); !urls.isEmpty())
            takeURL(urls.front());
    }
    // Beside a movie its subtitles, its cover and the like are handed over, too.
    if (_count == 0)
        _failures += _otherFiles;
    if (_unreadable.count > 0)
        _failures.append(_unreadable);
    return _failures;
}

void MovieFinder::takeURL(const QUrl& url) {
    if (listFile::isListName(url.path()) && (url.isLocalFile() || isFetched(url)))
        openList(url, 1);
    else if (FolderWalk::Seen seen; url.isLocalFile() && isFolder(url))
        takeFolder(platform::nativePath(url), seen);
    else if (url.isLocalFile())
        takeFile({url, {}, -1});
    else
        found({url, {}, -1});
}

void MovieFinder::takePath(const QString& text) {
    const QString absolute = QDir::cleanPath(QDir(text).absolutePath());
    const QByteArray path = QFile::encodeName(absolute);
    const QUrl url = QUrl::fromLocalFile(absolute);
    int error = 0;
    const auto facts = text.isEmpty() ? std::nullopt : factsOf(path, error);
    if (FolderWalk::Seen seen; facts && S_ISDIR(facts->st_mode))
        takeFolder(path, seen);
    else if (facts && isFileOfType(text, _means.types) && listFile::isListName(text))
        openList(url, 1);
    else if (facts && isFileOfType(text, _means.types))
        found({url, {}, -1});
    else if (!text.isEmpty())
        _otherFiles.append({url, facts ? platform::movieError::invalidMovie : platform::movieError::fileNotFound});
}

void MovieFinder::takeFolder(const QByteArray& folder, FolderWalk::Seen& seen) {
    const std::size_t before = _count;
    const qsizetype unreadBefore = _unreadable.count;
    // Lists in a folder mostly name what lies beside them: they count where there is nothing else.
    std::vector<QByteArray> lists;
    FolderWalk walk(_means.types, _cancelled,
                    {[&](const QByteArray& path) {
                         if (listFile::isListName(QString::fromUtf8(path)))
                             lists.push_back(path);
                         else
                             found({platform::urlOfNativePath(path), {}, -1});
                     },
                     [this](const QByteArray& unread) {
                         if (_unreadable.url.isEmpty())
                             _unreadable.url = platform::urlOfNativePath(unread);
                         count(_unreadable, QString::fromUtf8(unread));
                     }},
                    seen);
    walk.walk(folder);
    const bool isNothingElse = _count == before;
    for (const QByteArray& list : lists) {
        if (isNothingElse && !_cancelled)
            openList(platform::urlOfNativePath(list), 1);
    }
    if (_count == before && _unreadable.count == unreadBefore && lists.empty() && !_cancelled)
        fail(platform::urlOfNativePath(folder), OpeningReport::noMoviesInFolder);
}

/// A file that somebody names is tried, whatever its type.
void MovieFinder::takeFile(MovieSource movie) {
    // The first ones are opened at once, and say themselves what is wrong.
    const bool isOpenedAtOnce = _count < MovieBatch::maximumOpened;
    int error = 0;
    const auto facts = factsOf(platform::nativePath(movie.url), error);
    if (isOpenedAtOnce || (facts && S_ISREG(facts->st_mode) && facts->st_size > 0))
        found(std::move(movie));
    else
        fail(movie.url, !facts                    ? errorOf(error)
                        : S_ISREG(facts->st_mode) ? platform::movieError::fileEmpty
                                                  : platform::movieError::notAFile);
}

void MovieFinder::found(MovieSource movie) {
    ++_count;
    _tell(std::move(movie));
}

void MovieFinder::openList(const QUrl& url, std::size_t depth) {
    if (depth > maximumDepth)
        fail(url, OpeningReport::listTooDeep);
    else if (url.isLocalFile())
        openListFile(url, depth);
    else
        openListOfNetwork(url, depth);
}

void MovieFinder::openListFile(const QUrl& url, std::size_t depth) {
    const QByteArray path = platform::nativePath(url);
    int error = 0;
    const auto facts = factsOf(path, error);
    if (facts && !_lists.insert({facts->st_dev, facts->st_ino}).second)
        return;
    if (facts && S_ISREG(facts->st_mode) && facts->st_size > listFile::maximumSize) {
        fail(url, OpeningReport::listTooLarge);
        return;
    }
    const auto bytes = error == 0 ? platform::readRegularFileAt(path, listFile::maximumSize, &error) : std::nullopt;
    if (!bytes)
        fail(url, errorOf(error));
    else
        readList(*bytes, url, depth);
}

void MovieFinder::openListOfNetwork(const QUrl& url, std::size_t depth) {
    if (_addresses.contains(url))
        return;
    _addresses.insert(url);
    if (++_fetched > maximumFetches) {
        fail(url, OpeningReport::listTooDeep);
        return;
    }
    const platform::FetchedFile file = _means.fetch(url, listFile::maximumSize + 1, _cancelled);
    if (_cancelled)
        return;
    if (file.error != platform::movieError::none)
        fail(url, file.error);
    else if (file.bytes.size() > listFile::maximumSize)
        fail(url, OpeningReport::listTooLarge);
    else
        readList(file.bytes, file.url, depth);
}

void MovieFinder::readList(const QByteArray& bytes, const QUrl& list, std::size_t depth) {
    const listFile::Contents contents = listFile::read(bytes, list);
    if (contents.kind == listFile::Kind::stream) {
        found({list, {}, -1});
        return;
    }
    if (contents.kind == listFile::Kind::unknown || contents.entries.empty()) {
        const bool isList = contents.kind == listFile::Kind::list || bytes.trimmed().isEmpty();
        fail(list, isList ? OpeningReport::listEmpty : OpeningReport::notAList);
        return;
    }
    std::vector<OpeningFailure> odd;
    for (const std::int16_t error :
         {OpeningReport::listNamesDrives, OpeningReport::listNamesLocalFiles, OpeningReport::listNamesNothing})
        odd.push_back({list, error});
    for (const listFile::Entry& entry : contents.entries) {
        if (_cancelled || _isFull)
            break;
        takeEntry(entry, list, depth, odd);
    }
    std::ranges::copy_if(odd, std::back_inserter(_failures), [](const auto& failure) { return failure.count > 0; });
    if (contents.isCut || _isFull)
        fail(list, OpeningReport::listTooLong);
}

void MovieFinder::takeEntry(const listFile::Entry& entry, const QUrl& list, std::size_t depth,
                            std::vector<OpeningFailure>& odd) {
    using Kind = listFile::Address::Kind;
    const auto exists = [](const QByteArray& path) {
        int error = 0;
        return factsOf(path, error).has_value();
    };
    const listFile::Address address = listFile::addressOf(entry, list, exists);
    switch (address.kind) {
    case Kind::file:
    case Kind::network:
        // Lists that name each other multiply.
        _isFull = _count >= listFile::maximumEntries;
        if (!_isFull)
            takeAddress({address.url, entry.title, entry.seconds}, depth);
        break;
    case Kind::windowsPath:
        count(odd[0], entry.text.left(100));
        break;
    case Kind::localOfNetwork:
        count(odd[1], entry.text.left(100));
        break;
    case Kind::unusable:
        count(odd[2], entry.text.left(100));
        break;
    }
}

void MovieFinder::takeAddress(MovieSource movie, std::size_t depth) {
    const QString path = movie.url.path();
    if (movie.url.isLocalFile()) {
        if (listFile::isListName(path))
            openList(movie.url, depth + 1);
        else if (isFolder(movie.url))
            takeFolder(platform::nativePath(movie.url), _folders);
        else
            takeFile(std::move(movie));
        return;
    }
    // An address of live streaming ends like a list in UTF-8, and a list may name thousands of them.
    const bool isStream = path.endsWith(QStringLiteral(".m3u8"), Qt::CaseInsensitive);
    if (listFile::isListName(path) && !isStream && isFetched(movie.url))
        openList(movie.url, depth + 1);
    else
        found(std::move(movie));
}

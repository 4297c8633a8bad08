// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/FolderWalk.h"
#include "platform/movie/MovieToolkit.h"
#include "playlist/MovieBatch.h"
#include "playlist/MovieSource.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace listFile {
struct Entry;
} // namespace listFile

/// Turns what is handed over into movies: paths and URLs (told apart by isURLString()), folders, which are walked to
/// the bottom, and lists, which are read, with the lists that they name. One thread, which may be any; it may wait for
/// disks and servers.
class MovieFinder {
public:
    struct Means {
        /// Of the files that are taken, those of lists among them (supportedFileTypes).
        QStringList types;
        platform::FetchFile fetch;
    };
    using Found = std::function<void(MovieSource movie)>;
    /// All outlive the finder. Once `cancelled` is set it ends with what was found so far.
    MovieFinder(const Means& means, const std::atomic<bool>& cancelled, Found found);

    /// Tells each movie as it is found, and answers what else there is to say: folders and lists without movies, what
    /// of them could not be read, and where nothing is there to be opened, each file that is missing or of another
    /// type.
    QList<OpeningFailure> find(const QStringList& pathsOrUrls);

private:
    void takeURL(const QUrl& url);
    void takePath(const QString& path);
    void takeFolder(const QByteArray& folder, FolderWalk::Seen& seen);
    void takeFile(MovieSource movie);
    void takeAddress(MovieSource movie, std::size_t depth);
    void found(MovieSource movie);
    void openList(const QUrl& url, std::size_t depth);
    void openListFile(const QUrl& url, std::size_t depth);
    void openListOfNetwork(const QUrl& url, std::size_t depth);
    void readList(const QByteArray& bytes, const QUrl& list, std::size_t depth);
    void takeEntry(const listFile::Entry& entry, const QUrl& list, std::size_t depth, std::vector<OpeningFailure>& odd);
    void fail(const QUrl& url, std::int16_t error) { _failures.append({url, error}); }

    const Means& _means;
    const std::atomic<bool>& _cancelled;
    Found _tell;
    std::size_t _count = 0; // of the movies found
    std::size_t _fetched = 0;
    bool _isFull = false;
    FolderWalk::Seen _lists;   // that were read: files, in the same way
    FolderWalk::Seen _folders; // that lists name
    QSet<QUrl> _addresses;     // of lists that were fetched
    QList<OpeningFailure> _failures;
    QList<OpeningFailure> _otherFiles;
    OpeningFailure _unreadable;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/SubtitleDiscovery.h"

#include "platform/base/RunLoop.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>
#include <vector>

namespace SubtitleDiscovery {

namespace {

/// The files of one folder that have one of the extensions.
struct Listing {
    QString folder;
    QStringList extensions;
    double readAt = 0;
    QDateTime changed; // when it was read
    /// Name in one case, and name as it is; ordered, so that those that begin alike stand together.
    std::vector<std::pair<QString, QString>> names;
};

constexpr double keptSeconds = 1;

Listing readFolder(const QString& folder, const QStringList& extensions) {
    Listing listing{folder, extensions, platform::RunLoop::main().now(), QFileInfo(folder).lastModified(), {}};
    // Plain files only: opening a pipe would wait for its other end.
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    for (const QString& name : names) {
        if (extensions.contains(QFileInfo(name).suffix().toLower()))
            listing.names.emplace_back(name.toCaseFolded(), name);
    }
    std::ranges::sort(listing.names);
    return listing;
}

const Listing& listingOfFolder(const QString& folder, const QStringList& extensions) {
    static Listing kept;
    const double age = platform::RunLoop::main().now() - kept.readAt;
    if (kept.folder != folder || kept.extensions != extensions || !(age >= 0 && age < keptSeconds) ||
        kept.changed != QFileInfo(folder).lastModified())
        kept = readFolder(folder, extensions);
    return kept;
}

} // namespace

QStringList filesBeginningWith(const QString& base, const QStringList& extensions) {
    const qsizetype slash = base.lastIndexOf(u'/');
    if (extensions.isEmpty() || slash < 0)
        return {};
    const QString folder = base.left(slash + 1);
    const QString beginning = base.mid(slash + 1).toCaseFolded();
    const Listing& listing = listingOfFolder(folder, extensions);
    QStringList found;
    auto entry = std::ranges::lower_bound(listing.names, beginning, {}, &std::pair<QString, QString>::first);
    for (; entry != listing.names.end() && entry->first.startsWith(beginning); ++entry)
        found.append(folder + entry->second);
    return found;
}

} // namespace SubtitleDiscovery

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/SubtitleDiscovery.h"

#include "platform/base/RunLoop.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr double keptSeconds = 1;
/// A folder that did not change for so long says so by the time of its last change.
constexpr qint64 settledSeconds = 3;

} // namespace

SubtitleDiscovery::Listing SubtitleDiscovery::readFolder(const QString& folder, const QStringList& extensions) const {
    const QDateTime changed = QFileInfo(folder).lastModified();
    // What changes a moment later may leave the same time behind.
    const bool isSettled = changed.secsTo(_clock.date()) >= settledSeconds;
    Listing listing{folder, extensions, _clock.now(), changed, isSettled, {}};
    // Plain files only: opening a pipe would wait for its other end.
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    for (const QString& name : names) {
        if (extensions.contains(QFileInfo(name).suffix().toLower()))
            listing.names.emplace_back(name.toCaseFolded(), name);
    }
    std::ranges::sort(listing.names);
    return listing;
}

const SubtitleDiscovery::Listing& SubtitleDiscovery::listingOfFolder(const QString& folder,
                                                                     const QStringList& extensions) {
    const double age = _clock.now() - _kept.readAt;
    const bool isFresh = age >= 0 && (age < keptSeconds || _kept.isSettled);
    if (_kept.folder != folder || _kept.extensions != extensions || !isFresh ||
        _kept.changed != QFileInfo(folder).lastModified())
        _kept = readFolder(folder, extensions);
    return _kept;
}

QStringList SubtitleDiscovery::filesBeginningWith(const QString& base, const QStringList& extensions) {
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

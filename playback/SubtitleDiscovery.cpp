// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/SubtitleDiscovery.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/base/RunLoop.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

constexpr double keptSeconds = 1;
/// A folder that did not change for so long says so by the time of its last change.
constexpr qint64 settledSeconds = 3;

/// In one case. The library's own folding makes one and the same mark of all bytes that are no text (pathOfBytes).
QString folded(const QString& name) {
    if (name.isValidUtf16())
        return name.toCaseFolded();
    QString other = name;
    for (QChar& unit : other)
        unit = unit.toCaseFolded();
    return other;
}

QDateTime lastChange(const QString& folder) {
    const auto facts = platform::factsOfFile(platform::bytesOfPath(folder));
    return facts ? facts->changed : QDateTime();
}

} // namespace

SubtitleDiscovery::Listing SubtitleDiscovery::readFolder(const QString& folder, const QStringList& extensions) const {
    const QDateTime changed = lastChange(folder);
    // What changes a moment later may leave the same time behind.
    const bool isSettled = changed.secsTo(_clock.date()) >= settledSeconds;
    Listing listing{folder, extensions, _clock.now(), changed, isSettled, {}};
    // By their names first: looking at each of thousands of movies would hold the player up.
    std::error_code error;
    for (std::filesystem::directory_iterator entry(platform::bytesOfPath(folder).toStdString(), error), end;
         !error && entry != end; entry.increment(error)) {
        const QString name = platform::pathOfBytes(entry->path().filename().c_str());
        const qsizetype dot = name.lastIndexOf(u'.');
        if (dot < 0 || !extensions.contains(name.sliced(dot + 1).toLower()))
            continue;
        // Plain files only: opening a pipe would wait for its other end.
        std::error_code unknown;
        if (entry->is_regular_file(unknown))
            listing.names.emplace_back(folded(name), name);
    }
    std::ranges::sort(listing.names);
    return listing;
}

const SubtitleDiscovery::Listing& SubtitleDiscovery::listingOfFolder(const QString& folder,
                                                                     const QStringList& extensions) {
    const double age = _clock.now() - _kept.readAt;
    const bool isFresh = age >= 0 && (age < keptSeconds || _kept.isSettled);
    if (_kept.folder != folder || _kept.extensions != extensions || !isFresh || _kept.changed != lastChange(folder))
        _kept = readFolder(folder, extensions);
    return _kept;
}

QStringList SubtitleDiscovery::filesBeginningWith(const QString& base, const QStringList& extensions) {
    const qsizetype slash = base.lastIndexOf(u'/');
    if (extensions.isEmpty() || slash < 0)
        return {};
    const QString folder = base.left(slash + 1);
    const QString beginning = folded(base.mid(slash + 1));
    const Listing& listing = listingOfFolder(folder, extensions);
    QStringList found;
    auto entry = std::ranges::lower_bound(listing.names, beginning, {}, &std::pair<QString, QString>::first);
    for (; entry != listing.names.end() && entry->first.startsWith(beginning); ++entry)
        found.append(folder + entry->second);
    return found;
}

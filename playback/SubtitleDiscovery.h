// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace platform {
class RunLoop;
} // namespace platform

/// Finds the files that may hold a movie's subtitles. A folder's listing is kept for a second, so that a thousand
/// movies of one folder are opened with a listing or two. Main thread.
class SubtitleDiscovery {
public:
    explicit SubtitleDiscovery(const platform::RunLoop& clock)
        : _clock(clock) {}
    SubtitleDiscovery(const SubtitleDiscovery&) = delete;
    SubtitleDiscovery& operator=(const SubtitleDiscovery&) = delete;

    /// The files beside the movie whose names begin with that of `base` and end in one of the extensions (lower case,
    /// without dots), both without regard to case, ordered by name. Without extensions nothing is looked up.
    QStringList filesBeginningWith(const QString& base, const QStringList& extensions);

private:
    /// The files of one folder that have one of the extensions.
    struct Listing {
        QString folder;
        QStringList extensions;
        double readAt = 0;
        QDateTime changed; // when it was read
        bool isSettled = false;
        /// Name in one case, and name as it is; ordered, so that those that begin alike stand together.
        std::vector<std::pair<QString, QString>> names;
    };

    Listing readFolder(const QString& folder, const QStringList& extensions) const;
    const Listing& listingOfFolder(const QString& folder, const QStringList& extensions);

    const platform::RunLoop& _clock;
    Listing _kept;
};

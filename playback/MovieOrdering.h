// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace platform {
class UserDefaults;
} // namespace platform

/// How movies are ordered: by their paths or their file names, without regard to case, with numbers by their value or
/// not.
struct MovieOrdering {
    bool onlyFileNames = false;
    bool numerically = false;

    /// By QVSortOnlyFilenames and QVSortNumerically as they are now.
    static MovieOrdering fromSettings(const platform::UserDefaults& settings);

    /// What of a movie's URL is compared.
    QString key(const QUrl& url) const;
    /// -1, 0 or 1.
    int compare(const QString& leftKey, const QString& rightKey) const;
};

/// The last component of the URL's path.
QString fileNameOfURL(const QUrl& url);

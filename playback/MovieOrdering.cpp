// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/MovieOrdering.h"

#include "platform/base/PathNames.h"
#include "platform/base/StringComparison.h"
#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

MovieOrdering MovieOrdering::fromSettings(const platform::UserDefaults& settings) {
    return {settings.boolForKey(kQVSortOnlyFilenames), settings.boolForKey(kQVSortNumerically)};
}

QString MovieOrdering::key(const QUrl& url) const {
    return platform::keyForComparison(onlyFileNames ? fileNameOfURL(url) : url.path(QUrl::FullyDecoded), numerically);
}

int MovieOrdering::compare(const QString& leftKey, const QString& rightKey) const {
    const int order = leftKey.compare(rightKey);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

QString fileNameOfURL(const QUrl& url) {
    QString path = url.path(QUrl::FullyDecoded);
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return platform::lastPathComponent(path);
}

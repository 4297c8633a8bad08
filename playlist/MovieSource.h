// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <cstdint>

/// A movie that is to be added to the playlist, and what is known of it before it is opened.
struct MovieSource {
    QUrl url;
    /// What whoever names it calls it; empty where its file's name is to be shown.
    QString title;
    /// How long they say that it lasts; -1 where they do not.
    std::int32_t seconds = -1;
};

inline QList<MovieSource> sourcesOf(const QList<QUrl>& urls) {
    QList<MovieSource> sources;
    sources.reserve(urls.size());
    for (const QUrl& url : urls)
        sources.append({url, {}, -1});
    return sources;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/MovieMemory.h"
#include "playlist/QVPlaylistController.h"
#include "tests/support/PlaybackRig.h"

inline QUrl url(const QString& name) {
    return QUrl::fromLocalFile(QStringLiteral("/movies/") + name);
}

struct PlaylistRig : PlaybackRig {
    using PlaybackRig::PlaybackRig;
    bool add(const QStringList& names, Adding adding = Adding::replace, Starting starting = Starting::yes) {
        QList<QUrl> urls;
        for (const QString& name : names)
            urls.append(url(name));
        bool answer = false;
        playlist.addURLs(urls, adding, starting, [&](bool added) { answer = added; });
        settings.runLoop.advance(0.2);
        return answer;
    }
    QString order() const {
        QStringList names;
        for (const QString& text : playlist.arrayWithURLsAsStrings())
            names.append(QUrl(text).fileName().section(u'.', 0, 0));
        return names.join(u' ');
    }

    MovieMemory memory;
    QVPlaylistController playlist{settings.environment,
                                  {movies, view, desktop, commands, openPanel, confirmations, memory}};
};

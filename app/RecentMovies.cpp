// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecentMovies.h"

#include "app/RememberedMovies.h"
#include "control/Commands.h"
#include "control/MenuTitles.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/window/Menu.h"
#include "playback/MovieOrdering.h"
#include "playlist/OpeningReport.h"

#include <QHash>

#include <utility>

namespace {

constexpr qsizetype maximumMovies = 20;

QString nameOf(const QUrl& address) {
    const QString name = fileNameOfURL(address);
    return name.size() > 1 ? name : address.host();
}

} // namespace

RecentMovies::RecentMovies(RememberedMovies& movies, std::function<void(const QString&)> open)
    : _movies(movies)
    , _open(std::move(open)) {}

void RecentMovies::fill(platform::Menu& menu) {
    menu.removeAllItems();
    _shown = _movies.recent(maximumMovies);
    QHash<QString, int> namesakes;
    for (const QUrl& address : _shown)
        ++namesakes[nameOf(address)];
    int position = 0;
    for (const QUrl& address : _shown) {
        const QString name = nameOf(address);
        QString title = shortenedInTheMiddle(name);
        if (namesakes.value(name) > 1)
            title += QStringLiteral(" — ") + shortenedInTheMiddle(OpeningReport::place(address));
        menu.addItem(title, QString::fromLatin1(openRecentOperation), position++);
    }
    if (!_shown.isEmpty())
        menu.addSeparator();
    menu.addItem(platform::localizedString(QStringLiteral("ClearRecent")), QString::fromLatin1(clearRecentOperation),
                 0);
}

void RecentMovies::open(std::int32_t position) {
    if (position < 0 || position >= _shown.size())
        return;
    const QUrl address = _shown[position];
    if (address.isLocalFile() && !platform::factsOfFile(platform::nativePath(address)))
        _movies.forget(address);
    _open(address.toString(QUrl::FullyEncoded));
}

void RecentMovies::clear() {
    _movies.forgetAll();
    _shown.clear();
}

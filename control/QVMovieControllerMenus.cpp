// SPDX-License-Identifier: GPL-3.0-or-later
// The movie controller's menus: the items' actions and states, and the items that follow the playlist and the movie.
#include "control/QVMovieController.h"

#include "context/Notifications.h"
#include "control/ApplicationServices.h"
#include "control/CurrentCommands.h"
#include "control/MenuTitles.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitlesController.h"

#include <algorithm>

using platform::localizedString;
using platform::MenuItem;

namespace {

/// So many movies before the current one, and after it, stand in the playlist menu.
constexpr std::uint32_t menuReach = 10;

const Command* commandOf(const MenuItem& item) {
    return commandOfMenuItem(item.action.toStdString(), item.tag);
}

} // namespace

bool QVMovieController::validateMenuItem(MenuItem& item) {
    const Command* command = commandOf(item);
    return !command || !command->operation.validate || (this->*command->operation.validate)(item);
}

void QVMovieController::performMenuItem(const MenuItem& item) {
    // The tag is taken out of the item first: some commands rebuild the menu that the item is in.
    const Command* command = commandOf(item);
    if (!command)
        return;
    // The list may have been arranged anew while the menu was open.
    const std::int32_t argument =
        item.action == QLatin1String(changeMovieOperation) ? positionOfMenuMovie(item.tag) : std::int32_t{item.tag};
    perform(*command, argument, command->operation.fromMenu);
}

bool QVMovieController::validateSize(MenuItem& item) const {
    item.state = item.tag == _with.view.movieSize();
    return true;
}

bool QVMovieController::validateLooping(MenuItem& item) const {
    item.state = item.tag == _with.playlist.looping();
    return true;
}

bool QVMovieController::validatePrevNext(MenuItem& item) const {
    if (item.tag == 1)
        return _with.playlist.willPlayNext();
    if (item.tag == -1)
        return _with.playlist.willPlayPrevious();
    return true;
}

bool QVMovieController::validateMotion(MenuItem& item) const {
    if (item.tag == 1)
        item.title =
            localizedString(_with.view.isPlaying() ? QStringLiteral("Fast Forward") : QStringLiteral("Step Forward"));
    else if (item.tag == -1)
        item.title =
            localizedString(_with.view.isPlaying() ? QStringLiteral("Rewind") : QStringLiteral("Step Backward"));
    return true;
}

bool QVMovieController::validateStartStop(MenuItem& item) const {
    item.title = localizedString(_with.view.isPlaying() && _with.view.rate() == 1.0F ? QStringLiteral("Pause")
                                                                                     : QStringLiteral("Play"));
    return true;
}

bool QVMovieController::validateSavePlaylist(MenuItem&) const {
    return _with.playlist.count() > 0;
}

bool QVMovieController::validateMovie(MenuItem& item) const {
    item.state = static_cast<std::uint32_t>(item.tag) == _with.playlist.index();
    return true;
}

bool QVMovieController::validateClearRecent(MenuItem&) const {
    return _with.application.hasRecent();
}

bool QVMovieController::validateDonation(MenuItem& item) const {
    item.hidden = !_with.application.canDonate();
    return !item.hidden;
}

void QVMovieController::currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) {
    listSubtitles(notification.movie);
}

void QVMovieController::fillPlaylistMenu(platform::Menu& menu) {
    menu.removeAllItems();
    _menuMovies.clear();
    const std::uint32_t count = _with.playlist.count();
    const std::uint32_t current = std::min(_with.playlist.index(), count);
    // As many as fit, where the current movie is near an end, too.
    const std::uint32_t shown = std::min(count, 2 * menuReach + 1);
    const std::uint32_t first = std::min(current - std::min(current, menuReach), count - shown);
    for (std::uint32_t position = first; position < first + shown; ++position) {
        const std::shared_ptr<QVMovie> movie = _with.playlist.movieAtIndex(position);
        menu.addItem(shortenedInTheMiddle(movie->displayName()), QString::fromLatin1(changeMovieOperation),
                     static_cast<int>(position));
        _menuMovies[static_cast<std::int32_t>(position)] = movie;
    }
    if (count == 0)
        return;
    menu.addSeparator();
    _with.commands.showKey(
        menu.addItem(localizedString(QStringLiteral("More...")), QString::fromLatin1(showPlaylistOperation), 0),
        "show-playlist");
}

std::int32_t QVMovieController::positionOfMenuMovie(std::int32_t tag) const {
    const auto shown = _menuMovies.find(tag);
    if (shown == _menuMovies.end())
        return tag;
    const std::shared_ptr<QVMovie> movie = shown->second.lock();
    return movie ? static_cast<std::int32_t>(_with.playlist.indexOfMovie(*movie)) : -1;
}

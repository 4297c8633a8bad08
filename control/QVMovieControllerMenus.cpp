// SPDX-License-Identifier: GPL-3.0-or-later
// The movie controller's menus: the items' actions and states, and the items that follow the playlist and the movie.
#include "control/QVMovieController.h"

#include "context/Notifications.h"
#include "context/QVAppContext.h"
#include "platform/base/Localization.h"
#include "playback/MovieOrdering.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "subtitles/QVSubtitlesController.h"

#include <array>
#include <utility>

using platform::localizedString;
using platform::MenuItem;

namespace {

enum class MenuAction {
    changeSize,
    changeVolume,
    changeLooping,
    playPrevNext,
    jump,
    beginningEnd,
    fastForwardRewind,
    startStop,
    changeMovie,
    changeSubtitles,
};

constexpr std::array<std::pair<const char16_t*, MenuAction>, 10> menuActions{{
    {u"changeSize", MenuAction::changeSize},
    {u"changeVolume", MenuAction::changeVolume},
    {u"changeLooping", MenuAction::changeLooping},
    {u"playPrevNext", MenuAction::playPrevNext},
    {u"jump", MenuAction::jump},
    {u"beginningEnd", MenuAction::beginningEnd},
    {u"fastForwardRewind", MenuAction::fastForwardRewind},
    {u"startStop", MenuAction::startStop},
    {u"changeMovie", MenuAction::changeMovie},
    {u"changeSubtitles", MenuAction::changeSubtitles},
}};

std::optional<MenuAction> menuAction(const QString& name) {
    for (const auto& [text, value] : menuActions) {
        if (name == QStringView(text))
            return value;
    }
    return std::nullopt;
}

QVPlaylistController* currentPlaylist() {
    return gAppController ? gAppController->playlist() : nullptr;
}

QVSubtitlesController* currentSubtitles() {
    return gAppController ? gAppController->subtitles() : nullptr;
}

/// The two fixed items of the subtitles menu: the one that turns subtitles off, and a separator while tracks follow.
constexpr int fixedSubtitlesItems = 2;

} // namespace

bool QVMovieController::handlesMenuAction(const QString& action) const {
    return menuAction(action).has_value();
}

bool QVMovieController::validateMenuItem(MenuItem& item) {
    const auto which = menuAction(item.action);
    if (!which)
        return true;
    const QVPlaylistController* playlist = currentPlaylist();
    const QVSubtitlesController* subtitles = currentSubtitles();
    const auto position = static_cast<std::uint32_t>(item.tag);
    switch (*which) {
    case MenuAction::changeSize:
        item.state = _movieView && item.tag == _movieView->movieSize();
        return true;
    case MenuAction::changeLooping:
        item.state = playlist && item.tag == playlist->looping();
        return true;
    case MenuAction::playPrevNext:
        if (item.tag == 1)
            return playlist && playlist->willPlayNext();
        if (item.tag == -1)
            return playlist && playlist->willPlayPrevious();
        return true;
    case MenuAction::fastForwardRewind:
        if (item.tag == 1)
            item.title =
                localizedString(isMoviePlaying() ? QStringLiteral("Fast Forward") : QStringLiteral("Step Forward"));
        else if (item.tag == -1)
            item.title = localizedString(isMoviePlaying() ? QStringLiteral("Rewind") : QStringLiteral("Step Backward"));
        return true;
    case MenuAction::startStop:
        item.title = localizedString(isMoviePlaying() && _movieView->rate() == 1.0F ? QStringLiteral("Pause")
                                                                                    : QStringLiteral("Play"));
        return true;
    case MenuAction::changeMovie:
        item.state = playlist && position == playlist->index();
        return true;
    case MenuAction::changeSubtitles: {
        const bool hasTracks = subtitles && subtitles->count() > 0;
        item.state = hasTracks && position == subtitles->index();
        return hasTracks;
    }
    case MenuAction::changeVolume:
    case MenuAction::jump:
    case MenuAction::beginningEnd:
        return true;
    }
    return true;
}

void QVMovieController::performMenuItem(const MenuItem& item) {
    const auto which = menuAction(item.action);
    if (!which)
        return;
    // The tag is taken out of the item first: some actions rebuild the menu that the item is in.
    const std::int32_t tag = item.tag;
    switch (*which) {
    case MenuAction::changeSize:
        return changeSize(tag);
    case MenuAction::changeVolume:
        return _setVolumeCtrl(tag, Feedback::yes);
    case MenuAction::changeLooping:
        return changeLooping(tag);
    case MenuAction::playPrevNext:
        return _prevNext(tag);
    case MenuAction::jump:
        return _jump(tag, Feedback::yes);
    case MenuAction::beginningEnd:
        return _beginEnd(tag);
    case MenuAction::fastForwardRewind:
        return fastForwardRewind(tag);
    case MenuAction::startStop:
        return _startStop(Feedback::yes);
    case MenuAction::changeMovie:
        return changeMovie(tag);
    case MenuAction::changeSubtitles:
        return changeSubtitles(tag);
    }
}

void QVMovieController::changeSize(std::int32_t tag) {
    if (_movieView)
        _movieView->setMovieSize(tag, QVMovieView::Recalculation::ifChanged);
}

void QVMovieController::changeLooping(std::int32_t tag) {
    if (QVPlaylistController* playlist = currentPlaylist())
        playlist->setLooping(tag);
}

void QVMovieController::fastForwardRewind(std::int32_t tag) {
    if (!isMoviePlaying())
        _step(tag);
    else if (tag == 1)
        _fastForward(Feedback::yes);
    else if (tag == -1)
        _fastRewind(Feedback::yes);
}

void QVMovieController::changeMovie(std::int32_t tag) {
    if (QVPlaylistController* playlist = currentPlaylist())
        playlist->play(static_cast<std::uint32_t>(tag));
}

void QVMovieController::changeSubtitles(std::int32_t tag) {
    if (QVSubtitlesController* subtitles = currentSubtitles())
        subtitles->setCurrenWithIndex(tag);
}

void QVMovieController::currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) {
    platform::Menu* menu = gAppController ? gAppController->subtitlesMenu() : nullptr;
    if (!menu)
        return;
    menu->removeAllItemsBut(fixedSubtitlesItems);
    const auto setFirstTitle = [menu](const QString& key) {
        if (menu->count() > 0)
            menu->itemAt(0).title = localizedString(key);
    };
    if (notification.movie && !notification.movie->subtitles().empty()) {
        setFirstTitle(QStringLiteral("Off"));
        if (menu->count() < fixedSubtitlesItems)
            menu->addSeparator();
        int index = 0;
        for (const auto& track : notification.movie->subtitles())
            menu->addItem(track->title(), QStringLiteral("changeSubtitles"), index++);
    } else {
        setFirstTitle(QStringLiteral("None"));
        if (menu->count() >= fixedSubtitlesItems)
            menu->removeItemAt(1);
    }
}

void QVMovieController::playlistChanged(const QVPlaylistChangedNotification& notification) {
    platform::Menu* menu = gAppController ? gAppController->playlistMenu() : nullptr;
    if (!menu)
        return;
    menu->removeAllItems();
    int index = 0;
    for (const auto& movie : notification.movies)
        menu->addItem(fileNameOfURL(movie->url()), QStringLiteral("changeMovie"), index++);
}

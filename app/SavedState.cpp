// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SavedState.h"

#include "app/HeldSubtitles.h"
#include "app/OpeningFiles.h"
#include "platform/base/PathNames.h"
#include "platform/base/PropertyValue.h"
#include "platform/base/UserDefaults.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/QVPlaylistController.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitles.h"
#include "subtitles/QVSubtitlesController.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

constexpr const char* className = "QVAppController";

/// Seconds. With the writing, what a killed player leaves is no more than half a minute old.
constexpr double saveInterval = 25;
/// Several changes that come together are saved together.
constexpr double saveDelay = 1;

namespace key {
const QString playlist = QStringLiteral("QVSavedPlaylist");
const QString index = QStringLiteral("QVSavedIndex");
const QString isPlaying = QStringLiteral("QVSavedIsPlaying");
const QString time = QStringLiteral("QVSavedTime");
const QString looping = QStringLiteral("QVSavedLooping");
const QString subtitles = QStringLiteral("QVSavedSubtitles");
const QString subtitlesIndex = QStringLiteral("QVSavedSubtitlesIndex");
// Beside the list, an entry for each of its own, and there only where a list said something of a movie.
const QString titles = QStringLiteral("QVSavedTitles");
const QString seconds = QStringLiteral("QVSavedSeconds");
} // namespace key

/// The movies of a saved list; `index` moves with the entry that it is the position of, where others are no addresses.
QList<MovieSource> moviesOf(const QVariantMap& state, std::uint32_t& index) {
    const QVariantList list = state.value(key::playlist).toList();
    // Of a list of another length they are another's.
    const auto beside = [&](const QString& name) {
        const QVariantList said = state.value(name).toList();
        return said.size() == list.size() ? said : QVariantList();
    };
    const QVariantList titles = beside(key::titles), seconds = beside(key::seconds);
    QList<MovieSource> movies;
    const std::uint32_t wanted = index;
    for (qsizetype position = 0; position < list.size(); ++position) {
        if (static_cast<std::uint64_t>(position) == wanted)
            index = static_cast<std::uint32_t>(movies.size());
        const QString text = platform::propertyValue::toString(list[position]);
        if (!isURLString(text))
            continue;
        for (const QUrl& url : urlsWithURLStrings({text}))
            movies.append({url, platform::propertyValue::toString(titles.value(position)),
                           seconds.isEmpty() ? -1 : platform::propertyValue::toInteger(seconds[position])});
    }
    if (wanted >= static_cast<std::uint64_t>(list.size()))
        index = static_cast<std::uint32_t>(movies.size());
    return movies;
}

} // namespace

SavedState::SavedState(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators) {
    platform::NotificationCenter& center = environment.notifications;
    _onTime = center.observe<QVMovieInterestingTimeNotification>(
        [this](const auto& notification) { movieMoved(notification); });
    _onMovie = center.observe<QVPlaylistMovieChangedNotification>([this](const auto&) { saveSoon(saveDelay); });
    _onList = center.observe<QVPlaylistChangedNotification>([this](const auto&) { saveSoon(saveInterval); });
}

bool SavedState::isWanted() const {
    return _environment.settings.integerForKey(kQVOnLaunchDefaultAction) == launchAction::restoreState;
}

/// Runs with each picture. The timer is armed by the movie, so that one that stands wakes nobody.
void SavedState::movieMoved(const QVMovieInterestingTimeNotification& notification) {
    if (!notification.movie)
        return;
    const double distance = std::abs(static_cast<double>(notification.movie->time()) - _savedTime);
    if (distance > saveInterval * notification.movie->timeScale())
        saveSoon(saveDelay);
    else if (!_timer || !_timer->isValid())
        saveSoon(saveInterval);
}

void SavedState::saveSoon(double seconds) {
    const double now = _environment.loop.now();
    if (_timer && _timer->isValid() && _dueAt <= now + seconds)
        return;
    _dueAt = now + seconds;
    _timer = _environment.loop.schedule(seconds, false, [this] {
        _savedTime = _with.view.time();
        if (isWanted())
            saveState();
    });
}

void SavedState::saveState() {
    trace("%@: Saving current playlist ...", className);
    if (!_with.playlist.movie())
        return;
    const bool isFinished = _with.playlist.isFinished();
    // The view still shows the one before.
    const bool isAwaited = _with.view.movie() != _with.playlist.movie();
    QVPlaylistController::Contents contents = _with.playlist.contentsWithAwaited();
    QVariantList addresses, titles, seconds;
    addresses.reserve(static_cast<qsizetype>(contents.entries.size()));
    bool hasTitles = false, hasSeconds = false;
    for (auto& entry : contents.entries) {
        hasTitles |= !entry.title.isEmpty();
        hasSeconds |= entry.seconds >= 0;
        addresses.append(std::move(entry.address));
        titles.append(std::move(entry.title));
        seconds.append(static_cast<qlonglong>(entry.seconds));
    }
    QVariantMap state{{key::playlist, addresses},
                      {key::index, static_cast<qlonglong>(isFinished ? 0 : contents.index)},
                      {key::isPlaying, isFinished || _with.view.isPlaying()},
                      {key::time, static_cast<qlonglong>(isFinished || isAwaited ? 0 : _with.view.time())},
                      {key::looping, static_cast<qlonglong>(_with.playlist.looping())}};
    if (hasTitles)
        state.insert(key::titles, titles);
    if (hasSeconds)
        state.insert(key::seconds, seconds);
    if (const auto track = _with.subtitles.current(); track && !track->path().isEmpty()) {
        state.insert(key::subtitles, platform::storedPath(track->path()));
        state.insert(key::subtitlesIndex, static_cast<qlonglong>(track->streamIndex()));
    }
    _environment.settings.setObject(state, kQVSavedState);
}

void SavedState::restoreState(std::function<void(bool)> restored) {
    using namespace platform;
    trace("%@: ... trying to load saved playlist ...", className);
    const QVariantMap state = _environment.settings.dictionaryForKey(kQVSavedState);
    SavedPlace place;
    place.index = static_cast<std::uint32_t>(propertyValue::toInteger(state.value(key::index)));
    place.time = std::max(propertyValue::toInteger(state.value(key::time)), 0);
    place.isPlaying = propertyValue::toBool(state.value(key::isPlaying));
    place.looping = propertyValue::toInteger(state.value(key::looping));
    const QList<MovieSource> movies = moviesOf(state, place.index);
    if (movies.isEmpty()) {
        if (restored)
            restored(false);
        return;
    }
    const QString subtitles = pathFromStored(propertyValue::toString(state.value(key::subtitles)));
    if (!subtitles.isEmpty())
        _with.heldSubtitles.hold(
            subtitles, static_cast<std::uint32_t>(propertyValue::toInteger(state.value(key::subtitlesIndex))));
    const bool reportsError = _with.playlist.reportsError();
    _with.playlist.setReportsError(false);
    _with.playlist.restore(movies, place, [this, restored = std::move(restored)](bool added) {
        if (!added)
            _with.heldSubtitles.drop();
        if (restored)
            restored(added);
    });
    _with.playlist.setReportsError(reportsError);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/QVPlaylistController.h"

#include "context/CommandTarget.h"
#include "context/Notifications.h"
#include "platform/base/Localization.h"
#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/MovieOrdering.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playlist/MovieMemory.h"
#include "playlist/OpenPanel.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QDir>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr const char* className = "QVPlaylistController";

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

QString addressOfEntry(const MovieSource& source) {
    return source.url.toString();
}

QString addressOfEntry(const std::shared_ptr<QVMovie>& movie) {
    return movie->description();
}

const QUrl& urlOfEntry(const MovieSource& source) {
    return source.url;
}

const QUrl& urlOfEntry(const std::shared_ptr<QVMovie>& movie) {
    return movie->url();
}

template <class List>
QString descriptionOf(const List& list) {
    QStringList lines;
    for (const auto& entry : list)
        lines.append(addressOfEntry(entry));
    return lines.join(u'\n');
}

template <class List>
void sortEntries(List& list, const MovieOrdering& ordering) {
    // The keys are made once an entry, not once a comparison.
    using Entry = typename List::value_type;
    std::vector<std::pair<QString, Entry>> keyed;
    keyed.reserve(static_cast<std::size_t>(list.size()));
    for (Entry& entry : list) {
        QString key = ordering.key(urlOfEntry(entry));
        keyed.emplace_back(std::move(key), std::move(entry));
    }
    std::ranges::stable_sort(
        keyed, [&](const auto& left, const auto& right) { return ordering.compare(left.first, right.first) < 0; });
    std::ranges::transform(keyed, list.begin(), [](auto& entry) { return std::move(entry.second); });
}

/// Whether the setting orders at all; then the list is put in its order.
template <class List>
bool arrangeBy(const platform::UserDefaults& settings, List& list) {
    const std::int32_t arrangement = settings.integerForKey(kQVPlaylistDefaultArrangement);
    if (arrangement != Arrangement::shuffled && arrangement != Arrangement::sorted)
        return false;
    const bool shuffles = arrangement == Arrangement::shuffled;
    if (gTracingEnabled)
        trace("%@: Playlist before %s:\n%@", className, shuffles ? "shuffle" : "sort", descriptionOf(list));
    if (shuffles)
        Arrangement::shuffle(list, Arrangement::drawFromSystem);
    else
        sortEntries(list, MovieOrdering::fromSettings(settings));
    if (gTracingEnabled)
        trace("%@: Playlist after %s:\n%@", className, shuffles ? "shuffle" : "sort", descriptionOf(list));
    return true;
}

} // namespace

QVPlaylistController::QVPlaylistController(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators)
    , _looping(environment.settings.integerForKey(kQVPlaylistDefaultLooping))
    , _auto_play(environment.settings.boolForKey(kQVPlaylistAutoPlay))
    , _auto_next(environment.settings.boolForKey(kQVPlaylistAutoNext))
    , _auto_quit(environment.settings.boolForKey(kQVPlaylistAutoQuit))
    , _loadingMessage(environment, collaborators.feedback) {
    platform::NotificationCenter& center = environment.notifications;
    _movieComplete = center.observe<QVMovieCompleteNotification>(
        [this](const auto& notification) { movieDidComplete(notification); });
    _movieFailed =
        center.observe<QVMovieFailedNotification>([this](const auto& notification) { movieFailed(notification); });
    _preferencesChanged = center.observe<QVPreferencesChangedNotification>(
        [this](const auto& notification) { preferencesChanged(notification); });
}

QStringList QVPlaylistController::arrayWithURLsAsStrings() const {
    QStringList strings;
    for (const auto& movie : _playlist) {
        if (!movie->address().isEmpty())
            strings.append(movie->address());
    }
    return strings;
}

std::shared_ptr<QVMovie> QVPlaylistController::movieAtIndex(std::uint32_t index) const {
    return index < count() ? _playlist[index] : nullptr;
}

std::uint32_t QVPlaylistController::indexOfMovie(const QVMovie& movie) const {
    const auto entry = std::ranges::find(_playlist, &movie, [](const auto& listed) { return listed.get(); });
    return entry == _playlist.end() ? NSNotFound : static_cast<std::uint32_t>(entry - _playlist.begin());
}

bool QVPlaylistController::isAtEnd() const {
    return Arrangement::isAtEnd(place());
}

QString QVPlaylistController::currentInfoAsString() const {
    const auto current = movie();
    if (!current)
        return localized("None");
    return platform::formatted(QStringLiteral("%@ (%d/%d)"),
                               {current->displayName(), QString::number(_index + 1), QString::number(count())});
}

QString QVPlaylistController::loopingInfoAsString() const {
    const QString mode = localized(_looping == looping::one ? "One" : _looping == looping::all ? "All" : "Off");
    return platform::localizedFormat(QStringLiteral("Loop: %@"), {mode});
}

std::vector<bool> QVPlaylistController::marked(const std::vector<std::uint32_t>& positions) const {
    std::vector<bool> marks(_playlist.size(), false);
    for (const std::uint32_t position : positions) {
        if (position < count())
            marks[position] = true;
    }
    return marks;
}

void QVPlaylistController::entriesChanged(std::vector<std::shared_ptr<QVMovie>> entries) {
    const std::shared_ptr<QVMovie> current = movie();
    _playlist = std::move(entries);
    if (current)
        _index = indexOfMovie(*current);
    _environment.notifications.post(QVPlaylistChangedNotification{_playlist});
}

void QVPlaylistController::moveEntries(const std::vector<std::uint32_t>& positions, std::uint32_t before) {
    const std::vector<bool> moves = marked(positions);
    std::vector<std::shared_ptr<QVMovie>> entries, moved, after;
    for (std::uint32_t position = 0; position < count(); ++position)
        (moves[position] ? moved : position < before ? entries : after).push_back(_playlist[position]);
    entries.insert(entries.end(), moved.begin(), moved.end());
    entries.insert(entries.end(), after.begin(), after.end());
    if (entries != _playlist)
        entriesChanged(std::move(entries));
}

bool QVPlaylistController::removeEntries(const std::vector<std::uint32_t>& positions) {
    const std::vector<bool> goes = marked(positions);
    std::vector<std::shared_ptr<QVMovie>> kept;
    for (std::uint32_t position = 0; position < count(); ++position) {
        if (!goes[position] || position == _index)
            kept.push_back(_playlist[position]);
    }
    const bool isAnyGone = kept.size() < _playlist.size();
    if (isAnyGone)
        entriesChanged(std::move(kept));
    return isAnyGone;
}

void QVPlaylistController::rearrange() {
    const std::shared_ptr<QVMovie> current = movie();
    if (arrangeBy(_environment.settings, _playlist) && current)
        _index = indexOfMovie(*current);
}

void QVPlaylistController::arrange(QList<MovieSource>& sources) const {
    arrangeBy(_environment.settings, sources);
}

void QVPlaylistController::reset() {
    _finished = false;
    setIndex(0);
}

void QVPlaylistController::setIndex(std::uint32_t index) {
    selectAt(index, 0);
}

void QVPlaylistController::selectAt(std::uint32_t index, std::int32_t time) {
    const auto entry = movieAtIndex(index);
    if (!entry)
        return;
    _restored.reset();
    _with.memory.movieWillChange();
    trace("%@: Next movie: %@", className, entry->address());
    _direction = index + 1 == _index ? Direction::back : Direction::forth;
    _index = index;
    _playsWhenOpened = false;
    _startTime = time;
    if (entry->isOpened())
        showCurrent();
    else
        openCurrent();
}

void QVPlaylistController::play() {
    if (_isCurrentAwaited)
        _playsWhenOpened = true;
    else if (_index < count())
        _with.view.start();
}

void QVPlaylistController::play(std::uint32_t index) {
    if (index >= count())
        return;
    setIndex(index);
    if (movie())
        play();
    else
        playNext();
}

void QVPlaylistController::playNext() {
    if (isAtEnd()) {
        onPlaylistEnd();
        return;
    }
    trace("%@: Switching to next movie.", className);
    play(_index + 1);
}

void QVPlaylistController::playPrevious() {
    const std::uint32_t previous = Arrangement::previousIndex(place());
    if (previous + 1 == _index)
        trace("%@: Switching to previous movie.", className);
    play(previous);
}

void QVPlaylistController::playCurrent() {
    if (_index < count()) {
        trace("%@: Restarting current movie.", className);
        play(_index);
    } else {
        trace("ERROR: %@: Attempt to restart movie with invalid index: %d.", className, _index);
    }
}

bool QVPlaylistController::willPlayNext() const {
    return Arrangement::willPlayNext(place());
}

bool QVPlaylistController::willPlayPrevious() const {
    return Arrangement::willPlayPrevious(place());
}

void QVPlaylistController::setLooping(std::int32_t mode) {
    if (mode < looping::off || mode > looping::all || mode == _looping)
        return;
    _looping = mode;
    _environment.notifications.post(QVPlaylistLoopingChangedNotification{this});
}

void QVPlaylistController::toggleLooping(std::int32_t step) {
    setLooping(Arrangement::steppedLooping(_looping, step));
}

void QVPlaylistController::onMovieEnd() {
    switch (Arrangement::atEndOfMovie(place(), _auto_next)) {
    case Arrangement::EndOfMovie::playAgain:
        playCurrent();
        break;
    case Arrangement::EndOfMovie::playNext:
        playNext();
        break;
    case Arrangement::EndOfMovie::endList:
        onPlaylistEnd();
        break;
    case Arrangement::EndOfMovie::stay:
        break;
    }
}

void QVPlaylistController::onPlaylistEnd() {
    switch (Arrangement::atEndOfList(_looping, _auto_quit)) {
    case Arrangement::EndOfList::startAgain:
        trace("%@: Playlist finished. Looping is On. Restarting playlist.", className);
        reset();
        play();
        break;
    case Arrangement::EndOfList::quit:
        trace("%@: Playlist finished. Looping is Off. AutoQuit is ON. Terminating app.", className);
        _finished = true;
        _with.commands.performAction(action::quit, Feedback::yes);
        break;
    case Arrangement::EndOfList::stay:
        break;
    }
}

void QVPlaylistController::movieDidComplete(const QVMovieCompleteNotification&) {
    trace("%@: Current movie finished.", className);
    // The next one is on its way already.
    if (_isCurrentAwaited)
        return;
    _environment.loop.perform([this, alive = std::weak_ptr<bool>(_alive)] {
        if (!alive.expired())
            onMovieEnd();
    });
}

void QVPlaylistController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    const QString& key = notification.key;
    if (key == kQVPlaylistDefaultArrangement || key == kQVSortNumerically || key == kQVSortOnlyFilenames)
        rearrange();
    else if (key == kQVPlaylistDefaultLooping)
        setLooping(_environment.settings.integerForKey(kQVPlaylistDefaultLooping));
    else if (key == kQVPlaylistAutoPlay)
        _auto_play = _environment.settings.boolForKey(key);
    else if (key == kQVPlaylistAutoNext)
        _auto_next = _environment.settings.boolForKey(key);
    else if (key == kQVPlaylistAutoQuit)
        _auto_quit = _environment.settings.boolForKey(key);
}

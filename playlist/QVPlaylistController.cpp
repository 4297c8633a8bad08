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

/// The movie's folder as the settings keep it: the home folder is "~".
QString abbreviatedFolder(const QUrl& url) {
    const QString path = url.toLocalFile();
    QString folder = path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 1));
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + u'/'))
        return u'~' + folder.mid(home.size());
    return folder;
}

QString descriptionOf(const std::vector<std::shared_ptr<QVMovie>>& movies) {
    QStringList lines;
    for (const auto& movie : movies)
        lines.append(movie->description());
    return lines.join(u'\n');
}

void sortMovies(std::vector<std::shared_ptr<QVMovie>>& movies, const MovieOrdering& ordering) {
    // The keys are made once a movie, not once a comparison.
    std::vector<std::pair<QString, std::shared_ptr<QVMovie>>> keyed;
    keyed.reserve(movies.size());
    for (auto& movie : movies) {
        QString key = ordering.key(movie->url());
        keyed.emplace_back(std::move(key), std::move(movie));
    }
    std::ranges::stable_sort(
        keyed, [&](const auto& left, const auto& right) { return ordering.compare(left.first, right.first) < 0; });
    std::ranges::transform(keyed, movies.begin(), [](auto& entry) { return std::move(entry.second); });
}

} // namespace

QVPlaylistController::QVPlaylistController(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators)
    , _looping(environment.settings.integerForKey(kQVPlaylistDefaultLooping))
    , _auto_play(environment.settings.boolForKey(kQVPlaylistAutoPlay))
    , _auto_next(environment.settings.boolForKey(kQVPlaylistAutoNext))
    , _auto_quit(environment.settings.boolForKey(kQVPlaylistAutoQuit)) {
    platform::NotificationCenter& center = environment.notifications;
    _movieComplete = center.observe<QVMovieCompleteNotification>(
        [this](const auto& notification) { movieDidComplete(notification); });
    _preferencesChanged = center.observe<QVPreferencesChangedNotification>(
        [this](const auto& notification) { preferencesChanged(notification); });
}

QVPlaylistController::~QVPlaylistController() = default;

bool QVPlaylistController::addURLs(const QList<QUrl>& urls, Adding adding, Starting starting) {
    const TraceScope scope("-[QVPlaylistController addURLs:replace:start:]");
    const Request request{urls, adding, starting, _reports_error};
    if (_is_adding) {
        _waiting.push_back(request);
        return false;
    }
    _is_adding = true;
    const bool added = add(request);
    while (!_waiting.empty()) {
        const Request next = std::move(_waiting.front());
        _waiting.pop_front();
        add(next);
    }
    _is_adding = false;
    return added;
}

bool QVPlaylistController::add(const Request& request) {
    std::vector<std::shared_ptr<QVMovie>> movies = openMovies(request);
    const bool added = !movies.empty();
    if (added)
        takeIn(std::move(movies), request);
    if (_playlist.empty())
        offerToOpenOthers(!request.urls.isEmpty());
    return added;
}

std::vector<std::shared_ptr<QVMovie>> QVPlaylistController::openMovies(const Request& request) {
    std::vector<std::shared_ptr<QVMovie>> movies;
    movies.reserve(static_cast<std::size_t>(request.urls.size()));
    QString lastFolder;
    for (const QUrl& url : request.urls) {
        trace("%@: Adding to playlist movie file: %@", className, url.toString());
        std::shared_ptr<QVMovie> movie = QVMovie::movieWithURL(_environment, _with.movies, url);
        if (!shouldKeep(movie, url, request.reportsError))
            continue;
        if (url.isLocalFile()) {
            if (const QString folder = abbreviatedFolder(url); folder != lastFolder) {
                lastFolder = folder;
                _environment.settings.setObject(folder, kNSNavLastRootDirectory);
            }
        }
        movies.push_back(std::move(movie));
    }
    return movies;
}

bool QVPlaylistController::shouldKeep(const std::shared_ptr<QVMovie>& movie, const QUrl& url, bool reportsError) const {
    const std::int16_t error = _with.movies.toolkit.stickyError();
    const auto alert = [&](const char* title, const char* details, const QString& button, const QString& other) {
        const QString code = QString::number(error);
        return _with.desktop.runAlert({platform::localizedFormat(QString::fromUtf8(title), {fileNameOfURL(url)}),
                                       platform::localizedFormat(QString::fromUtf8(details), {code}), button, QString(),
                                       other});
    };
    if (!movie) {
        logAlways("ERROR: %@: QT failed to open movie.", className);
        if (reportsError)
            alert("QTUnableToOpenFileError", "QTUnableToOpenFileDetails", localized("OK"), QString());
        return false;
    }
    if (error == platform::movieError::none)
        return true;
    logAlways("ERROR: %@: QT sticky error: %d.", className, error);
    if (error != platform::movieError::cannotPlay || !reportsError)
        return true;
    if (alert("QTUnableToPlayFileError", "QTUnableToPlayFileDetails", localized("Continue"), localized("Cancel")) == 1)
        return true;
    logAlways("ERROR: %@: Cancelled effort to open movie.", className);
    return false;
}

void QVPlaylistController::takeIn(std::vector<std::shared_ptr<QVMovie>> movies, const Request& request) {
    if (_playlist.empty() || request.adding == Adding::replace) {
        _playlist = std::move(movies);
        _index = NSNotFound;
        rearrange();
        reset();
        setLooping(_environment.settings.integerForKey(kQVPlaylistDefaultLooping));
        if (request.starting == Starting::yes && _auto_play)
            play();
    } else {
        _playlist.insert(_playlist.end(), std::make_move_iterator(movies.begin()),
                         std::make_move_iterator(movies.end()));
        rearrange();
    }
    _environment.notifications.post(QVPlaylistChangedNotification{_playlist});
}

void QVPlaylistController::offerToOpenOthers(bool failed) {
    if (failed) {
        trace("%@: No playable movies foung in playlist.\n", className);
        const int answer = _with.desktop.runAlert({localized("NoPlayableMoviesInListMessage"),
                                                   localized("NoPlayableMoviesInListDetails"), localized("Open..."),
                                                   localized("Cancel"), QString()});
        if (answer != 1)
            return;
    }
    _environment.loop.perform([this, alive = std::weak_ptr<bool>(_alive)] {
        if (!alive.expired())
            _with.openPanel.doOpen();
    });
    trace("%@: Launching File Open panel.\n", className);
}

QStringList QVPlaylistController::arrayWithURLsAsStrings() const {
    QStringList strings;
    for (const auto& movie : _playlist) {
        if (const QString text = movie->url().toString(QUrl::FullyEncoded); !text.isEmpty())
            strings.append(text);
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
                               {fileNameOfURL(current->url()), QString::number(_index + 1), QString::number(count())});
}

QString QVPlaylistController::loopingInfoAsString() const {
    const QString mode = localized(_looping == looping::one ? "One" : _looping == looping::all ? "All" : "Off");
    return platform::localizedFormat(QStringLiteral("Loop: %@"), {mode});
}

void QVPlaylistController::rearrange() {
    const std::int32_t arrangement = _environment.settings.integerForKey(kQVPlaylistDefaultArrangement);
    if (arrangement != Arrangement::shuffled && arrangement != Arrangement::sorted)
        return;
    const bool shuffles = arrangement == Arrangement::shuffled;
    if (gTracingEnabled)
        trace("%@: Playlist before %s:\n%@", className, shuffles ? "shuffle" : "sort", descriptionOf(_playlist));
    const std::shared_ptr<QVMovie> current = movie();
    if (shuffles)
        Arrangement::shuffle(_playlist, Arrangement::drawFromSystem);
    else
        sortMovies(_playlist, MovieOrdering::fromSettings(_environment.settings));
    if (current)
        _index = indexOfMovie(*current);
    if (gTracingEnabled)
        trace("%@: Playlist after %s:\n%@", className, shuffles ? "shuffle" : "sort", descriptionOf(_playlist));
}

void QVPlaylistController::reset() {
    _finished = false;
    setIndex(0);
}

void QVPlaylistController::setIndex(std::uint32_t index) {
    const auto entry = movieAtIndex(index);
    if (!entry)
        return;
    trace("%@: Next movie: %@", className, entry->url().toString(QUrl::FullyEncoded));
    _index = index;
    _environment.notifications.post(QVPlaylistMovieChangedNotification{entry});
}

void QVPlaylistController::play() {
    if (_index < count())
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RememberedMovies.h"

#include "app/RememberedTracks.h"
#include "control/CurrentCommands.h"
#include "control/KeyText.h"
#include "overlays/ClockText.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/PropertyValue.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/RecentlyUsed.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitles.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype maximumMovies = 1000;
/// Seconds of a movie's beginning, and of its end, in which it is as good as not begun, or seen.
constexpr double beginning = 60;
constexpr double ending = 120;
/// As often as the saved state. Seconds.
constexpr double keepInterval = 25;
/// What else comes with a new movie is more urgent. Seconds.
constexpr double changeDelay = 2;

// The members of a movie's dictionary.
namespace key {
const QString size = QStringLiteral("Size"); // of a file, in bytes
const QString used = QStringLiteral("Used");
const QString position = QStringLiteral("Position"); // seconds
const QString subtitles = QStringLiteral("Subtitles");
const QString subtitlesIndex = QStringLiteral("SubtitlesIndex");
const QString audio = QStringLiteral("AudioTrack"); // its number; only one that the user chose
} // namespace key

/// -2 where it says none that could be.
qlonglong sizeIn(const QVariantMap& record) {
    bool isNumber = false;
    const qlonglong size = record.value(key::size, -1).toLongLong(&isNumber);
    return isNumber ? size : -2;
}

double inSeconds(const QVMovie& movie, std::int32_t time) {
    return static_cast<double>(time) / movie.timeScale();
}

QDateTime usedAt(const QVariant& record) {
    const QVariant used = platform::propertyValue::toDictionary(record).value(key::used);
    return used.typeId() == QMetaType::QDateTime ? used.toDateTime() : QDateTime();
}

/// A movie's, not the file's own.
bool isRecord(const QString& address, const QVariant& value) {
    return address.contains(u':') && value.typeId() == QMetaType::QVariantMap;
}

/// The latest first.
std::vector<std::pair<QDateTime, QString>> byUse(const QVariantMap& records) {
    std::vector<std::pair<QDateTime, QString>> used;
    for (auto record = records.begin(); record != records.end(); ++record) {
        if (isRecord(record.key(), *record))
            used.emplace_back(usedAt(*record), record.key());
    }
    std::ranges::sort(used, std::greater<>());
    return used;
}

} // namespace

std::optional<double> placeToKeep(double seconds, double duration) {
    return seconds >= beginning && seconds < duration - ending ? std::optional(seconds) : std::nullopt;
}

RememberedMovies::RememberedMovies(const Environment& environment, Collaborators collaborators)
    : _environment(environment)
    , _with(std::move(collaborators)) {
    platform::NotificationCenter& center = environment.notifications;
    _onMovie = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { movieChanged(notification); });
    _onTime = center.observe<QVMovieInterestingTimeNotification>(
        [this](const auto& notification) { movieMoved(notification); });
}

bool RememberedMovies::isOn() const {
    return _environment.settings.boolForKey(kQVRememberMovies);
}

QVariantMap& RememberedMovies::records() {
    if (!_records)
        _records = _with.storage.load();
    return *_records;
}

void RememberedMovies::movieWillChange() {
    rememberCurrent();
}

std::int32_t RememberedMovies::placeOf(QVMovie& movie) {
    using namespace platform;
    rememberCurrent(); // it may be the same one, opened once more
    if (!isOn())
        return 0;
    const QVariantMap record = propertyValue::toDictionary(records().value(movie.address()));
    if (record.isEmpty() || sizeIn(record) != movie.info().fileSize)
        return 0;
    if (const QString path = pathFromStored(propertyValue::toString(record.value(key::subtitles))); !path.isEmpty())
        _with.holdSubtitles(path,
                            static_cast<std::uint32_t>(propertyValue::toInteger(record.value(key::subtitlesIndex))));
    if (const std::int32_t audio = propertyValue::toInteger(record.value(key::audio)); audio > 0)
        movie.setAudioTrack(audio);
    const auto seconds =
        placeToKeep(propertyValue::toDouble(record.value(key::position)), inSeconds(movie, movie.duration()));
    if (!seconds)
        return 0;
    sayWhereItGoesOn(*seconds);
    return static_cast<std::int32_t>(std::lround(*seconds * movie.timeScale()));
}

/// Once the movie is there.
void RememberedMovies::sayWhereItGoesOn(double seconds) {
    _environment.loop.perform([this, seconds, alive = std::weak_ptr<bool>(_alive)] {
        if (alive.expired())
            return;
        const QString time = stringWithTimeIntervalInSeconds(static_cast<std::int32_t>(seconds));
        const Command* command = _with.commands.withName("beginning");
        const bool hasKey = command && command->keys.front().character;
        _with.feedback.postFeedback(
            hasKey ? platform::localizedFormat(QStringLiteral("ResumedAt"),
                                               {time, readableKeyText(command->keys.front().chord())})
                   : platform::localizedFormat(QStringLiteral("Resumed at %@"), {time}));
    });
}

void RememberedMovies::movieChanged(const QVPlaylistMovieChangedNotification& notification) {
    if (!notification.movie || !isOn())
        return;
    const QVMovie& movie = *notification.movie;
    if (movie.url().isLocalFile()) {
        // The desktop's list holds no addresses, which may hold names and passwords.
        _desktopTimer = _environment.loop.schedule(changeDelay, false, [this, file = movie.url()] {
            if (isOn())
                _with.desktop.add(file);
        });
    }
    QVariantMap record = platform::propertyValue::toDictionary(records().value(movie.address()));
    const qlonglong size = movie.info().fileSize;
    if (sizeIn(record) != size)
        record = {}; // another movie stands there now
    if (size >= 0)
        record.insert(key::size, size);
    restoreTracks(notification.movie, record);
    record.insert(key::used, _environment.loop.date().toUTC());
    store(movie.address(), record);
    writeSoon(changeDelay);
}

/// Before the tracks are chosen from, unless a drive lets wait for the files that were added.
void RememberedMovies::restoreTracks(const std::shared_ptr<QVMovie>& movie, const QVariantMap& record) {
    RememberedTracks::restore(*movie, record);
    _files.abandon();
    _awaited = RememberedTracks::addedFiles(record);
    if (_awaited.isEmpty())
        return;
    _files.look(_awaited, [this, weak = std::weak_ptr(movie), record](const QStringList& readable) {
        _awaited.clear();
        const auto owner = weak.lock();
        if (!owner)
            return;
        RememberedTracks::restoreFiles(*owner, readable, record);
        _environment.notifications.post(QVMovieTracksChangedNotification{owner});
    });
}

/// Runs with each picture. The timer is armed by the movie, so that one that stands wakes nobody.
void RememberedMovies::movieMoved(const QVMovieInterestingTimeNotification&) {
    if (!_timer || !_timer->isValid())
        writeSoon(keepInterval);
}

void RememberedMovies::rememberCurrent() {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    if (!movie || !isOn() || movie == _unwanted.lock())
        return;
    const QVariantMap before = platform::propertyValue::toDictionary(records().value(movie->address()));
    if (before.isEmpty())
        return; // what is remembered was begun with the movie, and forgotten since
    QVariantMap record = before;
    if (const auto place = placeToKeep(inSeconds(*movie, movie->time()), inSeconds(*movie, movie->duration())))
        record.insert(key::position, *place);
    else
        record.remove(key::position);
    if (const auto track = _with.currentSubtitles(); track && !track->path().isEmpty()) {
        record.insert(key::subtitles, platform::storedPath(track->path()));
        record.insert(key::subtitlesIndex, static_cast<qlonglong>(track->streamIndex()));
    }
    RememberedTracks::keep(*movie, _awaited, record);
    if (const std::optional<int> audio = movie->chosenAudio())
        record.insert(key::audio, static_cast<qlonglong>(*audio));
    if (record != before)
        store(movie->address(), record);
}

void RememberedMovies::store(const QString& address, const QVariantMap& record) {
    records().insert(address, record);
    _hasChanged = _hasEverChanged = true;
    prune();
}

void RememberedMovies::prune() {
    if (records().size() <= maximumMovies)
        return;
    const auto used = byUse(records());
    for (std::size_t number = maximumMovies; number < used.size(); ++number)
        records().remove(used[number].second);
}

void RememberedMovies::writeSoon(double seconds) {
    _timer = _environment.loop.schedule(seconds, false, [this] {
        rememberCurrent();
        write();
    });
}

void RememberedMovies::write() {
    // One that failed was reported, and is tried again at the end.
    if (!std::exchange(_hasChanged, false) || _hasFailed)
        return;
    _with.storage.storeInBackground(records(), [this, alive = std::weak_ptr<bool>(_alive)](bool isStored) {
        if (!alive.expired() && !isStored)
            _hasFailed = _hasChanged = true;
    });
}

void RememberedMovies::keep() {
    rememberCurrent();
    // What was given to a thread may not be written when the process ends.
    if (_hasEverChanged)
        _with.storage.store(records());
}

QList<QUrl> RememberedMovies::recent(qsizetype maximum) {
    QList<QUrl> addresses;
    if (!isOn())
        return addresses;
    for (const auto& [used, address] : byUse(records())) {
        if (addresses.size() == maximum)
            break;
        addresses.append(QUrl(address));
    }
    return addresses;
}

void RememberedMovies::forget(const QUrl& address) {
    if (records().remove(address.toString(QUrl::FullyEncoded)) == 0)
        return;
    _hasChanged = _hasEverChanged = true;
    write();
}

void RememberedMovies::forgetAll() {
    // What other players have remembered since goes, too.
    _records = _with.storage.load();
    for (const auto& [used, address] : byUse(records()))
        records().remove(address);
    _unwanted = _with.view.movie();
    _desktopTimer.reset();
    _with.desktop.removeAll();
    _with.storage.store(records());
    _hasChanged = false;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/QVMovie.h"

#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/PathNames.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/UserActivity.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/AudioChoice.h"
#include "playback/EmbeddedSubtitles.h"
#include "playback/MovieOrdering.h"
#include "playback/StreamQuality.h"
#include "playback/SubtitleDiscovery.h"
#include "playback/TrackNames.h"
#include "settings/PreferredLanguages.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/SubtitleRegistry.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr const char* className = "QVMovie";

std::int32_t wholeSeconds(std::int32_t time, std::int32_t timeScale) {
    return timeScale > 0 ? static_cast<std::int32_t>(static_cast<double>(time) / timeScale) : 0;
}

} // namespace

std::unique_ptr<platform::MovieOpening> QVMovie::movieWithURL(const Environment& environment,
                                                              const MovieServices& services, const QUrl& url,
                                                              Opened completion) {
    return services.toolkit.openAsync(
        url, [environment, services, completion = std::move(completion)](platform::OpenedMovie opened) {
            const std::int16_t error = opened.error;
            completion(movieWithOpened(environment, services, std::move(opened)), error);
        });
}

std::shared_ptr<QVMovie> QVMovie::movieWithOpened(const Environment& environment, const MovieServices& services,
                                                  platform::OpenedMovie opened) {
    if (opened.error != platform::movieError::none)
        logAlways("ERROR: in [QVMovie initWithURL:byReference:] QT Sticky Error Code %d\n", opened.error);
    if (!opened.info)
        return nullptr;
    auto movie = std::make_shared<QVMovie>(environment, services, *std::move(opened.info));
    if (environment.settings.boolForKey(kQVAutoloadSubtitles))
        movie->fetchSubtitleFiles();
    return movie;
}

std::shared_ptr<QVMovie> QVMovie::unopened(const Environment& environment, const MovieServices& services,
                                           const QUrl& url) {
    platform::MovieInfo info;
    info.url = url;
    auto movie = std::make_shared<QVMovie>(environment, services, std::move(info));
    movie->_isOpened = false;
    return movie;
}

std::unique_ptr<platform::MovieOpening> QVMovie::open(std::function<void(std::int16_t error)> completion) {
    return _services.toolkit.openAsync(
        url(), [weak = weak_from_this(), completion = std::move(completion)](platform::OpenedMovie opened) {
            const std::shared_ptr<QVMovie> movie = weak.lock();
            if (!movie)
                return;
            movie->takeOpened(std::move(opened.info), opened.error);
            completion(opened.error);
        });
}

void QVMovie::takeOpened(std::optional<platform::MovieInfo> found, std::int16_t error) {
    if (error != platform::movieError::none)
        logAlways("ERROR: in [QVMovie initWithURL:byReference:] QT Sticky Error Code %d\n", error);
    if (!found)
        return;
    setInfo(*std::move(found));
    _isOpened = true;
    listEmbedded();
    if (_environment.settings.boolForKey(kQVAutoloadSubtitles))
        fetchSubtitleFiles();
}

void QVMovie::setSaid(const QString& title, std::int32_t seconds) {
    _saidTitle = title;
    _saidSeconds = seconds;
}

QString QVMovie::displayName() const {
    return _saidTitle.isEmpty() ? fileNameOfURL(url()) : _saidTitle;
}

QString QVMovie::fileName() const {
    return url().isLocalFile() ? platform::lastPathComponent(platform::pathOfBytes(platform::nativePath(url())))
                               : url().fileName();
}

std::int32_t QVMovie::knownSeconds() const {
    return duration() > 0 ? durationInSeconds() : _saidSeconds;
}

QVMovie::QVMovie(const Environment& environment, const MovieServices& services, platform::MovieInfo info)
    : Movie(std::move(info), services.toolkit.player())
    , _environment(environment)
    , _services(services)
    , _address(url().toString(QUrl::FullyEncoded)) {
    listEmbedded();
}

QVMovie::~QVMovie() {
    cancelCallbacks();
}

std::int32_t QVMovie::timeInSeconds() const {
    return wholeSeconds(time(), timeScale());
}

std::int32_t QVMovie::durationInSeconds() const {
    return wholeSeconds(duration(), timeScale());
}

std::int32_t QVMovie::nextFrameTime() const {
    return nextInterestingTime(time(), rate());
}

std::uint32_t QVMovie::frameCount() {
    if (_frameCount == 0)
        _frameCount = info().videoSampleCount;
    return _frameCount;
}

float QVMovie::frameRate() {
    if (_frameRate == 0.0F)
        _frameRate = static_cast<float>(frameCount()) / static_cast<float>(durationInSeconds());
    return _frameRate;
}

platform::Rect QVMovie::naturalBounds() const {
    return platform::Rect(QPointF(0, 0), shape().applied(info().naturalSize));
}

platform::Rect QVMovie::naturalFrame(double windowHeight) const {
    const platform::Rect bounds = naturalBounds();
    return bounds.translated(QPointF(0, windowHeight - bounds.height()));
}

void QVMovie::setTime(std::int32_t time) {
    if (const std::int16_t error = setTimeValue(time); error != platform::movieError::none)
        logAlways("ERROR: %@: SetMovieTimeValue() returned error code: %d", className, error);
    post<QVMovieInterestingTimeNotification>();
}

void QVMovie::setAudioDelay(std::int32_t milliseconds) {
    constexpr std::int32_t maximum = 600'000;
    platform::TrackSelection changed = selection();
    changed.audioDelay = std::clamp(milliseconds, -maximum, maximum) / 1000.0;
    select(changed);
}

int QVMovie::compare(const QVMovie& other) const {
    const MovieOrdering ordering = MovieOrdering::fromSettings(_environment.settings);
    return ordering.compare(ordering.key(url()), ordering.key(other.url()));
}

QStringList QVMovie::filesBeside() const {
    if (!url().isLocalFile())
        return {};
    const QString base = platform::pathWithoutExtension(platform::pathOfBytes(platform::nativePath(url())));
    return _services.subtitleDiscovery.filesBeginningWith(base,
                                                          _services.subtitleReaders.subtitleUnfilteredFileTypes());
}

void QVMovie::fetchSubtitleFiles() {
    trace("%@: Begin fetching subtitles for \"%@\".", className, fileNameOfURL(url()));
    _fetchedIn = readingMode(_environment.settings);
    for (const QString& path : filesBeside()) {
        trace("%@: Found \"%@\".", className, platform::lastPathComponent(path));
        addSubtitleFile(path);
    }
    trace("%@: %d supported subtitle streams found.", className, _subtitles.size());
}

void QVMovie::addSubtitleFile(const QString& path) {
    std::vector<std::shared_ptr<QVSubtitles>> tracks = _services.subtitleReaders.subtitlesWithFilePath(path, *this);
    if (tracks.empty())
        return;
    trace("%@: Added %d subtitles stream(s) from file \"%@\"", className, tracks.size(),
          platform::lastPathComponent(path));
    _subtitles.insert(_subtitles.end() - static_cast<std::ptrdiff_t>(_embedded.size()),
                      std::make_move_iterator(tracks.begin()), std::make_move_iterator(tracks.end()));
}

void QVMovie::drawFile(const QString& path, const CueShift& shift) {
    platform::TrackSelection wanted = selection();
    wanted.subtitles = 0;
    wanted.subtitleFile = path;
    wanted.drawn = platform::TrackSelection::Drawn::inPicture;
    wanted.subtitleDelay = shift.delay / 1000.0;
    wanted.subtitleSpeed = shift.speed;
    if (wanted != selection())
        select(wanted);
}

void QVMovie::endDrawing(const QString& path) {
    platform::TrackSelection wanted = selection();
    if (wanted.subtitleFile != path)
        return;
    wanted.subtitleFile.clear();
    select(wanted);
}

std::shared_ptr<QVSubtitles> QVMovie::addSubtitles(const QString& path) {
    const auto known = std::ranges::find_if(_subtitles, [&path](const auto& track) { return track->path() == path; });
    if (known != _subtitles.end())
        return *known;
    const std::size_t count = _subtitles.size();
    addSubtitleFile(path);
    if (_subtitles.size() == count)
        return nullptr;
    _addedSubtitles.append(path);
    return _subtitles[count];
}

void QVMovie::followReadingMode() {
    const ReadingMode mode = readingMode(_environment.settings);
    if (!_fetchedIn || *_fetchedIn == mode)
        return;
    _fetchedIn = mode;
    std::vector<std::shared_ptr<QVSubtitles>> before = std::exchange(_subtitles, {});
    before.resize(before.size() - _embedded.size());
    _subtitles.assign(_embedded.begin(), _embedded.end());
    QStringList paths = filesBeside();
    for (const auto& track : before)
        paths.append(track->path());
    paths.removeDuplicates();
    for (const QString& path : paths) {
        const auto isOfFile = [&path](const auto& track) { return track->path() == path; };
        // An index is one in every mode; reading it again may take long.
        const auto known = std::ranges::find_if(before, isOfFile);
        if (known != before.end() && (*known)->isImageBased())
            std::ranges::copy_if(
                before, std::inserter(_subtitles, _subtitles.end() - static_cast<std::ptrdiff_t>(_embedded.size())),
                isOfFile);
        else
            addSubtitleFile(path);
    }
    // Those that are the same stay: they may be loaded, and selected.
    for (std::shared_ptr<QVSubtitles>& track : _subtitles) {
        const auto same = std::ranges::find_if(before, [&track](const auto& old) {
            return old->path() == track->path() && old->type() == track->type() &&
                   old->streamIndex() == track->streamIndex();
        });
        if (same != before.end())
            track = *same;
    }
}

// What is inside

/// Known tracks stay the objects that they are: one may be selected.
void QVMovie::listEmbedded() {
    _subtitles.resize(_subtitles.size() - _embedded.size());
    std::size_t known = 0;
    for (const platform::MovieTrack& track : tracks()) {
        if (track.kind != platform::MovieTrack::Kind::subtitles || track.isExternal)
            continue;
        if (known++ >= _embedded.size())
            _embedded.push_back(
                std::make_shared<EmbeddedSubtitles>(_environment.settings, _services.toolkit, *this, *this, track));
    }
    _subtitles.insert(_subtitles.end(), _embedded.begin(), _embedded.end());
}

void QVMovie::tracksChanged() {
    listEmbedded();
    selectTracks();
    post<QVMovieTracksChangedNotification>();
}

void QVMovie::subtitleTextChanged() {
    for (const auto& track : _embedded)
        track->textChanged();
}

void QVMovie::secondSubtitleTextChanged() {
    for (const auto& track : _embedded)
        track->secondTextChanged();
}

platform::MovieTracks QVMovie::audioTracks() const {
    return AudioChoice::tracks(StreamQuality::withSoundOf(tracks(), quality()));
}

platform::MovieTracks QVMovie::qualities() const {
    return StreamQuality::choices(tracks());
}

void QVMovie::setAudioTrack(int id) {
    _chosenAudio = id;
    selectTracks();
}

std::optional<int> QVMovie::chosenAudio() const {
    const platform::MovieTracks choices = audioTracks();
    const bool isThere = _chosenAudio && std::ranges::count(choices, *_chosenAudio, &platform::MovieTrack::id) > 0;
    return isThere ? _chosenAudio : std::nullopt;
}

void QVMovie::setQuality(int id) {
    const platform::MovieTracks offered = qualities();
    const platform::MovieTrack* const wanted = StreamQuality::find(offered, id);
    if (!wanted)
        return;
    _environment.settings.setInteger(wanted == &offered.front() ? 0 : StreamQuality::kilobitsOf(*wanted),
                                     kQVStreamQuality);
    _chosenQuality = id;
    // Each quality has tracks of sound of its own, in the same order.
    const platform::MovieTracks before = audioTracks();
    const auto chosen = std::ranges::find(before, _chosenAudio.value_or(0), &platform::MovieTrack::id);
    const platform::MovieTracks after = AudioChoice::tracks(StreamQuality::withSoundOf(tracks(), id));
    const auto place = static_cast<std::size_t>(chosen - before.begin());
    if (chosen != before.end() && place < after.size())
        _chosenAudio = after[place].id;
    selectTracks();
}

void QVMovie::selectTracks() {
    platform::TrackSelection wanted = selection();
    const int quality = _chosenQuality && StreamQuality::find(qualities(), *_chosenQuality)
                            ? *_chosenQuality
                            : StreamQuality::first(tracks(), _environment.settings.integerForKey(kQVStreamQuality));
    if (quality != 0)
        wanted.video = quality;
    const platform::MovieTracks heard = StreamQuality::withSoundOf(tracks(), quality);
    const bool isThere =
        _chosenAudio && std::ranges::count(AudioChoice::tracks(heard), *_chosenAudio, &platform::MovieTrack::id) > 0;
    const int id = isThere ? *_chosenAudio : AudioChoice::first(heard, PreferredLanguages::of(_environment.settings));
    if (id != 0)
        wanted.audio = id;
    if (wanted == selection())
        return;
    select(wanted);
    post<QVMovieTracksChangedNotification>();
}

QString QVMovie::audioLanguage() const {
    for (const platform::MovieTrack& track : tracks())
        if (track.kind == platform::MovieTrack::Kind::audio && track.id == audioTrack())
            return TrackNames::languageOf(track);
    return {};
}

void QVMovie::resetCallbacks() {
    cancelCallbacks();
    _scheduleStopCallback();
    _scheduleInterestingTimeCallback();
    _scheduleTimeJumpCallback();
}

void QVMovie::armEnd() {
    _scheduleStopCallback();
}

void QVMovie::cancelCallbacks() {
    cancelStopped();
    cancelTimePasses();
    cancelTimeJumps();
}

void QVMovie::_scheduleStopCallback() {
    callWhenStopped([this] { movieComplete(); });
}

void QVMovie::_scheduleInterestingTimeCallback() {
    callWhenTimePasses(nextFrameTime(), [this] { interestingTime(); });
}

void QVMovie::_scheduleTimeJumpCallback() {
    callWhenTimeJumps([this] { timeJump(); });
}

/// Nobody hears of a movie that is being made or has gone.
template <class Notification>
void QVMovie::post() {
    if (std::shared_ptr<QVMovie> self = weak_from_this().lock())
        _environment.notifications.post(Notification{std::move(self)});
}

void QVMovie::movieComplete() {
    if (!needsTimeTable())
        post<QVMovieCompleteNotification>();
}

void QVMovie::interestingTime() {
    // An observer may let go of the movie.
    const std::shared_ptr<QVMovie> self = weak_from_this().lock();
    // A jump of a resting movie keeps nobody's screen awake: nothing would let it sleep again.
    if (rate() != 0)
        _services.userActivity.setUserActive(true);
    post<QVMovieInterestingTimeNotification>();
    _scheduleInterestingTimeCallback();
}

void QVMovie::timeJump() {
    const std::shared_ptr<QVMovie> self = weak_from_this().lock();
    interestingTime();
    _scheduleTimeJumpCallback();
    _scheduleStopCallback();
}

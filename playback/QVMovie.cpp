// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/QVMovie.h"

#include "context/QVAppContext.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/PathNames.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "platform/window/Window.h"
#include "playback/MovieOrdering.h"
#include "playback/SubtitleDiscovery.h"
#include "settings/QVUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/SubtitleRegistry.h"

#include <utility>

namespace {

constexpr const char* className = "QVMovie";

std::int32_t wholeSeconds(std::int32_t time, std::int32_t timeScale) {
    return timeScale > 0 ? static_cast<std::int32_t>(static_cast<double>(time) / timeScale) : 0;
}

template <class Notification>
void postAbout(const std::shared_ptr<QVMovie>& movie) {
    if (movie)
        platform::NotificationCenter::defaultCenter().post(Notification{movie});
}

} // namespace

std::shared_ptr<QVMovie> QVMovie::movieWithURL(const QUrl& url) {
    platform::MovieToolkit& toolkit = platform::MovieToolkit::shared();
    toolkit.clearStickyError();
    std::optional<platform::MovieInfo> info = toolkit.open(url);
    if (const std::int16_t error = toolkit.stickyError(); error != platform::movieError::none)
        logAlways("ERROR: in [QVMovie initWithURL:byReference:] QT Sticky Error Code %d\n", error);
    if (!info)
        return nullptr;
    auto movie = std::make_shared<QVMovie>(*std::move(info), toolkit.player());
    if (QVUserDefaults::standardUserDefaults().boolForKey(kQVAutoloadSubtitles))
        movie->fetchSubtitleFiles();
    return movie;
}

std::shared_ptr<QVMovie> QVMovie::movieWithFilePath(const QString& path) {
    return movieWithURL(QUrl::fromLocalFile(path));
}

QVMovie::QVMovie(platform::MovieInfo info, platform::MoviePlayer& player)
    : Movie(std::move(info), player) {}

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

QRectF QVMovie::naturalBounds() const {
    return QRectF(QPointF(0, 0), info().naturalSize);
}

QRectF QVMovie::naturalFrame() const {
    const platform::Window* window = gAppController ? gAppController->window() : nullptr;
    const double height = window ? window->frame().height() : 0;
    const QRectF bounds = naturalBounds();
    return bounds.translated(0, height - bounds.height());
}

void QVMovie::setTime(std::int32_t time) {
    if (const std::int16_t error = setTimeValue(time); error != platform::movieError::none)
        logAlways("ERROR: %@: SetMovieTimeValue() returned error code: %d", className, error);
    postAbout<QVMovieInterestingTimeNotification>(weak_from_this().lock());
}

int QVMovie::compare(const QVMovie& other) const {
    const MovieOrdering ordering = MovieOrdering::fromSettings();
    return ordering.compare(ordering.key(url()), ordering.key(other.url()));
}

void QVMovie::fetchSubtitleFiles() {
    trace("%@: Begin fetching subtitles for \"%@\".", className, fileNameOfURL(url()));
    if (url().isLocalFile()) {
        const QString base = platform::pathWithoutExtension(url().toLocalFile());
        const QStringList types = SubtitleRegistry::shared().subtitleUnfilteredFileTypes();
        for (const QString& path : SubtitleDiscovery::filesBeginningWith(base, types)) {
            trace("%@: Found \"%@\".", className, platform::lastPathComponent(path));
            addSubtitleFile(path);
        }
    }
    trace("%@: %d supported subtitle streams found.", className, _subtitles.size());
}

void QVMovie::addSubtitleFile(const QString& path) {
    std::vector<std::shared_ptr<QVSubtitles>> tracks = SubtitleRegistry::shared().subtitlesWithFilePath(path, *this);
    if (tracks.empty())
        return;
    trace("%@: Added %d subtitles stream(s) from file \"%@\"", className, tracks.size(),
          platform::lastPathComponent(path));
    _subtitles.insert(_subtitles.end(), std::make_move_iterator(tracks.begin()), std::make_move_iterator(tracks.end()));
}

void QVMovie::resetCallbacks() {
    cancelCallbacks();
    _scheduleStopCallback();
    _scheduleInterestingTimeCallback();
    _scheduleTimeJumpCallback();
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

void QVMovie::movieComplete() {
    if (!needsTimeTable())
        postAbout<QVMovieCompleteNotification>(weak_from_this().lock());
}

void QVMovie::interestingTime() {
    // An observer may let go of the movie.
    const std::shared_ptr<QVMovie> self = weak_from_this().lock();
    // A jump of a resting movie keeps nobody's screen awake: nothing would let it sleep again.
    if (rate() != 0)
        platform::Desktop::shared().setUserActive(true);
    postAbout<QVMovieInterestingTimeNotification>(self);
    _scheduleInterestingTimeCallback();
}

void QVMovie::timeJump() {
    const std::shared_ptr<QVMovie> self = weak_from_this().lock();
    interestingTime();
    _scheduleTimeJumpCallback();
}
